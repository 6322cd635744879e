#include "KsefInvoice.h"

#include "InvoiceData.h"
#include "InvoicePrintout.h"
#include "KsefBuyer.h"
#include "KsefError.h"
#include "KsefVatField.h"
#include "TaxNumber.h"

#include <QXmlStreamWriter>

#include <array>
#include <optional>

namespace {

// Quantities and unit prices as the schema's decimals, with as many
// decimals as they have, at least the given few.
QString decimal(double value, int decimals, int fewest)
{
    // A negative zero would be written "-0".
    QString text = QString::number(value == 0.0 ? 0.0 : value, 'f', decimals);
    const qsizetype point = text.indexOf(u'.');
    if (point >= 0) {
        while (text.endsWith(u'0') && text.size() - point - 1 > fewest)
            text.chop(1);
        if (text.endsWith(u'.'))
            text.chop(1);
    }
    return text;
}

// The amounts are the printout's, already rounded to the grosz; writing
// them with two decimals only drops the binary noise of their sums.
QString money(double amount)
{
    return decimal(amount, 2, 2);
}

QString isoDate(DateTime date)
{
    return date.date().toString(Qt::ISODate);
}

// What the payment type's description says in the schema's terms: 1 cash,
// 2 card, 4 cheque, 5 credit, 6 transfer, 7 mobile; none for anything else.
std::optional<int> paymentForm(const QString &description)
{
    const QString text = description.toLower();
    const std::pair<const char *, int> forms[] = {
        {"gotów", 1}, {"kart", 2}, {"czek", 4}, {"kredyt", 5}, {"przelew", 6}, {"mobil", 7}};
    for (const auto &[word, form] : forms) {
        if (text.contains(QString::fromUtf8(word)))
            return form;
    }
    return std::nullopt;
}

// The orders' numbers, eight digits each, in as few descriptions as the
// schema's 256 characters a value allow.
QStringList orderNumberTexts(const std::vector<TZlecenia_przychObj> &orders)
{
    QStringList texts;
    QString current;
    for (const TZlecenia_przychObj &order : orders) {
        const QString number = QStringLiteral("%1").arg(order.NUMER, 8, 10, QLatin1Char('0'));
        if (!current.isEmpty() && current.size() + 2 + number.size() > 256) {
            texts << current;
            current.clear();
        }
        current += (current.isEmpty() ? QString() : QStringLiteral(", ")) + number;
    }
    if (!current.isEmpty())
        texts << current;
    return texts;
}

class Writer
{
public:
    Writer(QByteArray &target, const InvoiceData &data, const QString &country)
        : w(&target), d(data), m_country(country), p(InvoicePrintout::of(data, false))
    {
        w.setAutoFormatting(true);
        w.setAutoFormattingIndent(2);
    }

    void document(const QDateTime &created)
    {
        w.writeStartDocument();
        w.writeDefaultNamespace(KsefInvoice::ns());
        w.writeStartElement(KsefInvoice::ns(), QStringLiteral("Faktura"));
        header(created);
        seller();
        buyer();
        invoice();
        w.writeEndElement();
        w.writeEndDocument();
    }

private:
    void text(const QString &name, const QString &value)
    {
        w.writeTextElement(KsefInvoice::ns(), name, value);
    }
    // Optional elements are left out rather than written empty.
    void optional(const QString &name, const QString &value)
    {
        if (!value.trimmed().isEmpty())
            text(name, value.trimmed());
    }
    void start(const QString &name) { w.writeStartElement(KsefInvoice::ns(), name); }
    void end() { w.writeEndElement(); }

    void header(const QDateTime &created)
    {
        start(QStringLiteral("Naglowek"));
        start(QStringLiteral("KodFormularza"));
        w.writeAttribute(QStringLiteral("kodSystemowy"), QStringLiteral("FA (3)"));
        w.writeAttribute(QStringLiteral("wersjaSchemy"), QStringLiteral("1-0E"));
        w.writeCharacters(QStringLiteral("FA"));
        end();
        text(QStringLiteral("WariantFormularza"), QStringLiteral("3"));
        text(QStringLiteral("DataWytworzeniaFa"),
             created.toUTC().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ssZ")));
        text(QStringLiteral("SystemInfo"), QStringLiteral("Haulix"));
        end();
    }

    void address(const QString &country, const QString &street, const QString &town)
    {
        start(QStringLiteral("Adres"));
        text(QStringLiteral("KodKraju"), country);
        text(QStringLiteral("AdresL1"), street.trimmed());
        optional(QStringLiteral("AdresL2"), town);
        end();
    }

    void seller()
    {
        start(QStringLiteral("Podmiot1"));
        start(QStringLiteral("DaneIdentyfikacyjne"));
        text(QStringLiteral("NIP"), TaxNumber::nip(d.company.NIP));
        text(QStringLiteral("Nazwa"), d.company.NAZWA.trimmed());
        end();
        address(QStringLiteral("PL"), p.sellerStreet, p.sellerTown);
        end();
    }

    void buyer()
    {
        const KsefBuyer id = KsefBuyer::of(d.client, m_country);
        start(QStringLiteral("Podmiot2"));
        start(QStringLiteral("DaneIdentyfikacyjne"));
        switch (id.kind) {
        case KsefBuyer::Kind::Nip:
            text(QStringLiteral("NIP"), id.number);
            break;
        case KsefBuyer::Kind::EuVat:
            text(QStringLiteral("KodUE"), id.code);
            text(QStringLiteral("NrVatUE"), id.number);
            break;
        case KsefBuyer::Kind::ForeignId:
            text(QStringLiteral("KodKraju"), id.code);
            text(QStringLiteral("NrID"), id.number);
            break;
        case KsefBuyer::Kind::NoId:
            text(QStringLiteral("BrakID"), QStringLiteral("1"));
            break;
        }
        text(QStringLiteral("Nazwa"), d.client.NAZWA.trimmed());
        end();
        address(KsefBuyer::countryCode(m_country), p.buyerStreet, p.buyerTown);
        optional(QStringLiteral("NrKlienta"), p.buyerIdent);
        // A forwarder's client is neither a local government unit nor a
        // member of a VAT group as far as this register knows.
        text(QStringLiteral("JST"), QStringLiteral("2"));
        text(QStringLiteral("GV"), QStringLiteral("2"));
        end();
    }

    void invoice()
    {
        const TFakturyObj &f = d.invoice;
        start(QStringLiteral("Fa"));
        // The module invoices in złoty only (IDWALUTA 24).
        text(QStringLiteral("KodWaluty"), QStringLiteral("PLN"));
        text(QStringLiteral("P_1"), isoDate(f.DATA_WYSTAWIENIA));
        optional(QStringLiteral("P_1M"), d.company.MIEJSCE_WYSTAWIANIA);
        text(QStringLiteral("P_2"), f.NUMER_PELNY.trimmed());
        // The sale date is given only where it differs from the issue date.
        if (!f.DATA_SPRZEDAZY.isNull() && f.DATA_SPRZEDAZY.date() != f.DATA_WYSTAWIENIA.date())
            text(QStringLiteral("P_6"), isoDate(f.DATA_SPRZEDAZY));
        totals();
        annotations();
        text(QStringLiteral("RodzajFaktury"), QStringLiteral("VAT"));
        descriptions();
        lines();
        payment();
        end();
    }

    void totals()
    {
        std::array<VatAmounts, KsefVatField::Count> sums;
        std::array<bool, KsefVatField::Count> used{};
        for (std::size_t i = 0; i < p.lines.size(); ++i) {
            const InvoiceLine &line = p.lines[i];
            if (line.textOnly)
                continue;
            const KsefVatField field = fieldOf(i);
            sums[field.field].net += line.netValue;
            sums[field.field].vat += line.vatValue;
            used[field.field] = true;
        }
        for (int f = 0; f < KsefVatField::Count; ++f) {
            if (!used[std::size_t(f)])
                continue;
            const auto field = KsefVatField::Field(f);
            text(KsefVatField::netElement(field), money(sums[std::size_t(f)].net));
            if (const QString vat = KsefVatField::vatElement(field); !vat.isEmpty())
                text(vat, money(sums[std::size_t(f)].vat));
        }
        text(QStringLiteral("P_15"), money(p.amountDue));
    }

    // The answers of a domestic transport service: no cash accounting,
    // self-billing, reverse charge or split payment, no new means of
    // transport, no simplified triangular procedure, no margin scheme. An
    // exempt position brings the exemption and its basis.
    void annotations()
    {
        start(QStringLiteral("Adnotacje"));
        for (const char *name : {"P_16", "P_17", "P_18", "P_18A"})
            text(QString::fromLatin1(name), QStringLiteral("2"));
        start(QStringLiteral("Zwolnienie"));
        if (hasExemptLine()) {
            text(QStringLiteral("P_19"), QStringLiteral("1"));
            text(QStringLiteral("P_19A"), QStringLiteral("art. 43 ust. 1 ustawy o VAT"));
        } else {
            text(QStringLiteral("P_19N"), QStringLiteral("1"));
        }
        end();
        start(QStringLiteral("NoweSrodkiTransportu"));
        text(QStringLiteral("P_22N"), QStringLiteral("1"));
        end();
        text(QStringLiteral("P_23"), QStringLiteral("2"));
        start(QStringLiteral("PMarzy"));
        text(QStringLiteral("P_PMarzyN"), QStringLiteral("1"));
        end();
        end();
    }

    bool hasExemptLine() const
    {
        for (std::size_t i = 0; i < p.lines.size(); ++i) {
            if (!p.lines[i].textOnly && fieldOf(i).field == KsefVatField::Exempt)
                return true;
        }
        return false;
    }

    void description(const QString &key, const QString &value)
    {
        start(QStringLiteral("DodatkowyOpis"));
        text(QStringLiteral("Klucz"), key);
        text(QStringLiteral("Wartosc"), value);
        end();
    }

    void descriptions()
    {
        const QString key = d.orders.size() == 1 ? QStringLiteral("Zlecenie")
                                                 : QStringLiteral("Zlecenia");
        for (const QString &numbers : orderNumberTexts(d.orders))
            description(key, numbers);
        if (!p.remarks.trimmed().isEmpty())
            description(QStringLiteral("Uwagi"), p.remarks.trimmed());
    }

    // A position of quantity 0 is a line of text on the printout; here it is
    // a row with its text only, so that both show the same rows in order.
    void lines()
    {
        int number = 0;
        for (std::size_t i = 0; i < p.lines.size(); ++i) {
            const InvoiceLine &line = p.lines[i];
            const TFaktury_pozycjeObj &position = d.positions[i];
            if (line.textOnly && line.name.trimmed().isEmpty())
                continue;
            start(QStringLiteral("FaWiersz"));
            text(QStringLiteral("NrWierszaFa"), QString::number(++number));
            optional(QStringLiteral("P_7"), line.name);
            if (!line.textOnly) {
                optional(QStringLiteral("P_8A"), position.JM);
                text(QStringLiteral("P_8B"), decimal(position.ILOSC, 6, 0));
                text(QStringLiteral("P_9A"), decimal(position.CENA_NETTO, 8, 2));
                text(QStringLiteral("P_11"), money(line.netValue));
                text(QStringLiteral("P_12"), fieldOf(i).rateCode);
            }
            end();
        }
    }

    void payment()
    {
        const TFakturyObj &f = d.invoice;
        start(QStringLiteral("Platnosc"));
        if (!f.DATA_WYSTAWIENIA.isNull()) {
            start(QStringLiteral("TerminPlatnosci"));
            text(QStringLiteral("Termin"),
                 f.DATA_WYSTAWIENIA.date().addDays(f.ILOSC_DNI_PLATN).toString(Qt::ISODate));
            end();
        }
        if (const std::optional<int> form = paymentForm(d.paymentType)) {
            text(QStringLiteral("FormaPlatnosci"), QString::number(*form));
        } else if (!d.paymentType.trimmed().isEmpty()) {
            text(QStringLiteral("PlatnoscInna"), QStringLiteral("1"));
            text(QStringLiteral("OpisPlatnosci"), d.paymentType.trimmed());
        }
        start(QStringLiteral("RachunekBankowy"));
        text(QStringLiteral("NrRB"), TaxNumber::compact(d.account.RACHUNEK));
        optional(QStringLiteral("NazwaBanku"), d.account.BANK);
        end();
        end();
    }

    // Checked complete before anything is written.
    KsefVatField fieldOf(std::size_t line) const
    {
        const TFaktury_pozycjeObj &position = d.positions[line];
        return *KsefVatField::of(position.ID_VAT, d.rateOf(position.ID_VAT).PROCENT);
    }

    QXmlStreamWriter w;
    const InvoiceData &d;
    QString m_country;
    InvoicePrintout p;
};

} // namespace

KsefInvoice::KsefInvoice(const InvoiceData &data, const QString &buyerCountry)
    : m_data(data), m_country(buyerCountry)
{
}

QString KsefInvoice::ns()
{
    return QStringLiteral("http://crd.gov.pl/wzor/2025/06/25/13775/");
}

void KsefInvoice::checkComplete() const
{
    const TFakturyObj &f = m_data.invoice;
    const QString invoice = QStringLiteral("Faktura %1: ").arg(f.NUMER_PELNY.trimmed());
    // A correction needs the corrected invoice's number and date, which
    // the invoices of this module do not keep.
    if (m_data.documentKind.contains(QStringLiteral("koryg"), Qt::CaseInsensitive)) {
        throw KsefError(invoice
                        + QStringLiteral("dokument „%1” jest korektą, a program nie "
                                         "przechowuje danych faktury korygowanej. E-faktury "
                                         "nie utworzono.")
                              .arg(m_data.documentKind));
    }
    if (m_data.company.NIP.trimmed().isEmpty()) {
        throw KsefError(invoice
                        + QStringLiteral("w danych firmy nie ma NIP-u sprzedawcy. Uzupełnij NIP "
                                         "w danych firmy."));
    }
    if (KsefBuyer::domestic(m_country) && m_data.client.NIP.trimmed().isEmpty()) {
        throw KsefError(invoice
                        + QStringLiteral("kontrahent „%1” nie ma NIP-u. Uzupełnij NIP w "
                                         "kartotece kontrahentów (nabywca spoza Polski: "
                                         "jego kraj).")
                              .arg(m_data.client.NAZWA.trimmed()));
    }
    if (m_data.account.ID_KONTA == 0) {
        throw KsefError(invoice
                        + QStringLiteral("nie wskazano rachunku bankowego. Uzupełnij rachunek "
                                         "w kartotece rachunków bankowych."));
    }
    if (TaxNumber::compact(m_data.account.RACHUNEK).isEmpty()) {
        throw KsefError(invoice
                        + QStringLiteral("rachunek bankowy „%1” nie ma numeru. Uzupełnij "
                                         "numer w kartotece rachunków bankowych.")
                              .arg(m_data.account.BANK.trimmed()));
    }
    for (const TFaktury_pozycjeObj &position : m_data.positions) {
        if (position.ILOSC == 0.0)
            continue;
        const TStawki_vatObj &rate = m_data.rateOf(position.ID_VAT);
        if (rate.ID_STAWKI == 0) {
            throw KsefError(invoice
                            + QStringLiteral("pozycja „%1” nie ma stawki VAT. Popraw pozycję "
                                             "faktury.")
                                  .arg(position.TRESC));
        }
        if (!KsefVatField::of(position.ID_VAT, rate.PROCENT)) {
            throw KsefError(invoice
                            + QStringLiteral("stawki VAT „%1” pozycji „%2” nie ma w "
                                             "strukturze FA(3). Popraw stawkę w tabeli "
                                             "stawek VAT.")
                                  .arg(rate.OPIS, position.TRESC));
        }
    }
}

QByteArray KsefInvoice::xml(const QDateTime &created) const
{
    checkComplete();
    QByteArray document;
    Writer(document, m_data, m_country).document(created);
    return document;
}
