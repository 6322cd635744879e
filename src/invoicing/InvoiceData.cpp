#include "InvoiceData.h"

#include "AmountDue.h"
#include "Configuration.h"
#include "PrintoutError.h"
#include "TDokumentyObj.h"
#include "TRodzaje_platnosciObj.h"
#include "TUsersObj.h"

InvoiceData::InvoiceData(Connection &connection)
    : invoice(connection), account(connection), client(connection), m_noRate(connection)
{
}

const TStawki_vatObj &InvoiceData::rateOf(int rateKey) const
{
    for (const TStawki_vatObj &rate : rates) {
        if (rate.ID_STAWKI == rateKey)
            return rate;
    }
    return m_noRate;
}

InvoiceData InvoiceData::load(Connection &connection, int invoiceKey)
{
    InvoiceData data(connection);
    data.invoice = TFakturyObj(connection).SelectById(invoiceKey);
    if (data.invoice.ID_FAKTURY == 0)
        throw PrintoutError(QStringLiteral("Nie ma faktury o identyfikatorze %1.").arg(invoiceKey));
    const TFakturyObj &f = data.invoice;
    data.documentKind = TDokumentyObj(connection).SelectById(f.ID_RODZAJ_DOK).NAZWA;
    data.account = TKonta_bankoweObj(connection).SelectById(f.KONTO_BANKOWE);
    data.paymentType = TRodzaje_platnosciObj(connection).SelectById(f.ID_RODZ_PLATNOSCI).OPIS;
    data.client = TKontrahenciObj(connection).SelectById(f.ID_KONTRAHENTA);
    const TUsersObj user = TUsersObj(connection).SelectById(f.ID_WYSTAWIL);
    data.issuer = QString(user.IMIE + u' ' + user.NAZWISKO).trimmed();
    data.company = CompanyData::load(connection);
    data.shortSaleDate
        = Configuration(&connection).GetConfigBool(QStringLiteral("DATASPRZEDAZYKROTKA"));
    data.positions = TFaktury_pozycjeObj(connection).SelectWhere(
        QStringLiteral("ID_FAKTURY"), opEqual, invoiceKey, QStringLiteral("ID_POZYCJI"));
    data.rates = TStawki_vatObj(connection).SelectAll();
    data.orders = TZlecenia_przychObj(connection).SelectClause(
        QStringLiteral("where idfaktury = ") + QString::number(invoiceKey));
    if (data.orders.size() == 1)
        data.goods = OrderGoods::of(connection, data.orders.front().ID_ZLECENIA_PRZYCH);
    data.amountDue = AmountDue::of(connection, invoiceKey);
    return data;
}
