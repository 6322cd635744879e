#include "InvoicePrintout.h"

#include "AmountInWords.h"
#include "Format.h"
#include "InvoiceData.h"

namespace {

QString town(const QString &postcode, const QString &place)
{
    return postcode + u' ' + place;
}

void fillParties(InvoicePrintout &p, const InvoiceData &data)
{
    const CompanyData &company = data.company;
    p.sellerName = company.NAZWA;
    p.sellerStreet = company.ADRES;
    if (!company.POBOX.isEmpty())
        p.sellerStreet += QStringLiteral(" ,skr.poczt ") + company.POBOX;
    p.sellerTown = town(company.KOD, company.MIEJSCOWOSC);
    p.sellerNip = company.NIP;
    p.sellerBank = data.account.BANK + u' ' + data.account.RACHUNEK;

    const TKontrahenciObj &client = data.client;
    p.buyerName = client.NAZWA;
    p.buyerStreet = client.ADRES;
    p.buyerTown = town(client.KOD, client.MIEJSCOWOSC);
    p.buyerNip = client.NIP;
    if (client.NR_IDENT != 0)
        p.buyerIdent = QString::number(client.NR_IDENT);
}

} // namespace

InvoicePrintout InvoicePrintout::of(const InvoiceData &data, bool perKilometre)
{
    const TFakturyObj &f = data.invoice;
    InvoicePrintout p;
    p.title = data.documentKind + QStringLiteral(" Nr ") + f.NUMER_PELNY;
    p.placeAndDate = data.company.MIEJSCE_WYSTAWIANIA + QStringLiteral(" dn.  ")
        + Format::date(f.DATA_WYSTAWIENIA);
    fillParties(p, data);
    p.saleDate = saleDateText(f.DATA_SPRZEDAZY, data.shortSaleDate);
    p.paymentType = data.paymentType;
    if (!f.DATA_WYSTAWIENIA.isNull())
        p.dueDate = Format::date(f.DATA_WYSTAWIENIA.date().addDays(f.ILOSC_DNI_PLATN));
    p.remarks = f.UWAGI;

    p.orders = InvoiceOrderBlock::of(data.orders, data.goods, perKilometre);
    for (const TFaktury_pozycjeObj &position : data.positions) {
        p.lines.push_back(InvoiceLine::of(position, data.rateOf(position.ID_VAT)));
        p.totals.add(p.lines.back());
    }
    p.amountDue = data.amountDue;
    p.amountDueText = Format::number(data.amountDue, u"#,##0.00");
    p.amountInWords = AmountInWords::words(data.amountDue);
    p.issuer = data.issuer;
    p.receiver = receiverText(f.ODEBRAL);
    return p;
}

QString InvoicePrintout::saleDateText(DateTime saleDate, bool shortForm)
{
    if (saleDate.isNull())
        return QString();
    if (!shortForm)
        return Format::date(saleDate);
    const QDate date = saleDate.date();
    return QStringLiteral("%1-%2").arg(date.month(), 2, 10, QLatin1Char('0')).arg(date.year());
}

QString InvoicePrintout::receiverText(const QString &receiver)
{
    if (receiver.compare(QStringLiteral("Upoważnienie"), Qt::CaseInsensitive) == 0)
        return QStringLiteral("   ");
    if (receiver.isEmpty())
        return QStringLiteral("    ");
    return receiver;
}
