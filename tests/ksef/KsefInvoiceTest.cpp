// Issued invoices as FA(3) e-invoices: what they say, that the schema
// accepts them and that their amounts are the printout's to the grosz.
#include "Format.h"
#include "KsefFixture.h"
#include "KsefExport.h"
#include "KsefXml.h"
#include "TKrajeObj.h"
#include "TKontrahenciObj.h"
#include "TfrmRachunekPL.h"


namespace {

// An amount of the document as the printout writes it.
QString asPrinted(const QString &amount)
{
    return Format::number(amount.toDouble(), u"#,##0.00");
}

} // namespace

class KsefInvoiceTest : public KsefFixture
{
protected:
    QByteArray exported(int invoiceKey)
    {
        return KsefExport(db.connection()).document(invoiceKey, Created);
    }

    QStringList printout(int invoiceKey)
    {
        TfrmRachunekPL report(db.connection(), invoiceKey);
        return printed(report.qrRachunekPL().prepare());
    }

    int addCountry(const char *symbol)
    {
        TKrajeObj country(db.connection());
        country.SYMBOL = QString::fromLatin1(symbol);
        EXPECT_TRUE(country.Insert());
        return db.scalar(QStringLiteral("SELECT MAX(ID_KRAJU) FROM KRAJE")).toInt();
    }

    void changeClient(const std::function<void(TKontrahenciObj &)> &change)
    {
        TKontrahenciObj client = TKontrahenciObj(db.connection()).SelectById(ClientKey);
        change(client);
        ASSERT_TRUE(client.Update());
    }
};

TEST_F(KsefInvoiceTest, OneOrderInvoiceValidatesWithItsPartiesDatesAndPayment)
{
    const int invoice = addInvoice();
    addPosition(invoice, QStringLiteral("Usługa transportowa Łódź - Warszawa"), 1, 1150, 1);
    addOrder([invoice](TZlecenia_przychObj &o) { o.IDFAKTURY = invoice; });

    const KsefXml xml(exported(invoice));
    ASSERT_TRUE(xml.error.isEmpty()) << xml.error.toStdString();
    EXPECT_EQ(xml.rootNamespace, "http://crd.gov.pl/wzor/2025/06/25/13775/");
    // The payment's term is the one the printout prints under "Termin zapłaty:".
    const std::pair<const char *, const char *> fields[] = {
        {"Naglowek/WariantFormularza", "3"}, {"Naglowek/SystemInfo", "Haulix"},
        {"Naglowek/DataWytworzeniaFa", "2026-07-10T09:30:00Z"},
        {"Podmiot1/DaneIdentyfikacyjne/NIP", "7251002030"},
        {"Podmiot1/DaneIdentyfikacyjne/Nazwa", "Spedycja Żuraw Sp. z o.o."},
        {"Podmiot1/Adres/AdresL1", "Piotrkowska 100"}, {"Podmiot1/Adres/AdresL2", "90-001 Łódź"},
        {"Podmiot2/DaneIdentyfikacyjne/NIP", "5213002829"}, {"Podmiot2/Adres/KodKraju", "PL"},
        {"Podmiot2/NrKlienta", "4711"}, {"Fa/KodWaluty", "PLN"}, {"Fa/P_1", "2026-07-10"},
        {"Fa/P_1M", "Łódź"}, {"Fa/P_2", "007/07/2026"}, {"Fa/P_6", "2026-07-08"},
        {"Fa/P_13_1", "1150.00"}, {"Fa/P_14_1", "264.50"}, {"Fa/P_15", "1414.50"},
        {"Fa/Adnotacje/Zwolnienie/P_19N", "1"}, {"Fa/RodzajFaktury", "VAT"},
        {"Fa/DodatkowyOpis/Klucz", "Zlecenie"}, {"Fa/DodatkowyOpis/Wartosc", "00000042"},
        {"Fa/FaWiersz/P_7", "Usługa transportowa Łódź - Warszawa"}, {"Fa/FaWiersz/P_8A", "usł."},
        {"Fa/FaWiersz/P_8B", "1"}, {"Fa/FaWiersz/P_9A", "1150.00"}, {"Fa/FaWiersz/P_12", "23"},
        {"Fa/Platnosc/TerminPlatnosci/Termin", "2026-07-24"},
        {"Fa/Platnosc/FormaPlatnosci", "6"},
        {"Fa/Platnosc/RachunekBankowy/NrRB", "12102033520000110201234567"},
        {"Fa/Platnosc/RachunekBankowy/NazwaBanku", "Bank Śląski"}};
    for (const auto &[path, text] : fields)
        EXPECT_EQ(xml.all(QString::fromLatin1(path)), QStringList{QString::fromUtf8(text)}) << path;
}

TEST_F(KsefInvoiceTest, ManyOrdersAndEveryVatGroupAgreeWithThePrintoutToTheGrosz)
{
    const int invoice = addInvoice([](TFakturyObj &f) {
        f.DATA_SPRZEDAZY = f.DATA_WYSTAWIENIA;
        f.UWAGI = QStringLiteral("Płatne w terminie");
    });
    addPosition(invoice, QStringLiteral("Przewóz towaru wg załącznika"), 1, 3000.455, 1);
    addPosition(invoice, QStringLiteral("Fracht dodatkowy"), 3, 10.125, 5);
    addPosition(invoice, QStringLiteral("Towar ubezpieczony do 50 000 zł"), 0, 99, 1);
    addPosition(invoice, QStringLiteral("Przewóz międzynarodowy"), 1, 500, 2);
    addPosition(invoice, QStringLiteral("Opłata skarbowa"), 1, 17, 3);
    addPosition(invoice, QStringLiteral("Usługa poza krajem"), 1, 800.005, 4);
    addPosition(invoice, QStringLiteral("Paletowanie"), 2.5, 12.345, 6);
    for (int i = 1; i <= 45; ++i)
        addOrder([invoice, i](TZlecenia_przychObj &o) {
            o.NUMER = i;
            o.IDFAKTURY = invoice;
        });

    const KsefXml xml(exported(invoice));
    ASSERT_TRUE(xml.error.isEmpty()) << xml.error.toStdString();
    EXPECT_FALSE(xml.has("Fa/P_6")) << "sold on the day of issue";

    // The summary's groups row by row, then the whole and the amount due.
    const QStringList texts = printout(invoice);
    EXPECT_TRUE(inOrder(texts, {"W tym:", "23%", asPrinted(xml.one("Fa/P_13_1")),
                                asPrinted(xml.one("Fa/P_14_1")), "0%",
                                asPrinted(xml.one("Fa/P_13_6_1")), "zw.",
                                asPrinted(xml.one("Fa/P_13_7")), "NP",
                                asPrinted(xml.one("Fa/P_13_8")), "Do zapłaty:",
                                asPrinted(xml.one("Fa/P_15"))}));
    double net = 0.0;
    for (const char *field : {"P_13_1", "P_13_2", "P_13_6_1", "P_13_7", "P_13_8"})
        net += xml.one(QStringLiteral("Fa/") + QLatin1String(field)).toDouble();
    EXPECT_TRUE(inOrder(texts, {"Razem:", Format::number(net, u"#,##0.00")}));
    // The 8 % rate has no row of its own on the printout; here it has its field.
    EXPECT_EQ(xml.one("Fa/P_13_2"), "30.86");
    EXPECT_EQ(xml.one("Fa/P_14_2"), "2.47");
    EXPECT_FALSE(xml.has("Fa/P_14_7"));

    EXPECT_EQ(xml.all("Fa/FaWiersz/P_12"),
              (QStringList{"23", "23", "0 KR", "zw", "np I", "8"}));
    // The text-only position keeps its place, with its text alone.
    EXPECT_EQ(xml.all("Fa/FaWiersz/NrWierszaFa").size(), 7);
    EXPECT_EQ(xml.all("Fa/FaWiersz/P_7").at(2), "Towar ubezpieczony do 50 000 zł");
    EXPECT_EQ(xml.all("Fa/FaWiersz/P_11").size(), 6);
    EXPECT_EQ(xml.all("Fa/FaWiersz/P_8B").at(1), "3");
    EXPECT_EQ(xml.all("Fa/FaWiersz/P_9A").at(1), "10.125");
    EXPECT_EQ(xml.all("Fa/FaWiersz/P_8B").at(5), "2.5");
    // The exempt position brings the exemption with its basis.
    EXPECT_EQ(xml.one("Fa/Adnotacje/Zwolnienie/P_19"), "1");
    EXPECT_FALSE(xml.one("Fa/Adnotacje/Zwolnienie/P_19A").isEmpty());

    // 45 numbers of eight digits do not fit one value of 256 characters.
    const QStringList numbers = xml.all("Fa/DodatkowyOpis/Wartosc");
    ASSERT_EQ(numbers.size(), 3);   // 2 lists of orders and the remarks
    EXPECT_EQ(xml.all("Fa/DodatkowyOpis/Klucz"), (QStringList{"Zlecenia", "Zlecenia", "Uwagi"}));
    EXPECT_TRUE(numbers[0].startsWith("00000001, 00000002, "));
    EXPECT_LE(numbers[0].size(), 256);
    EXPECT_TRUE(numbers[1].endsWith(", 00000045"));
    EXPECT_EQ(numbers[2], "Płatne w terminie");
}

TEST_F(KsefInvoiceTest, GroszeAreRoundedPerLineAsThePrintoutRoundsThem)
{
    // 1 × 10.125 is 10.13 with VAT 2.33; three lines of 0.125 are 0.39, not 0.38.
    const int invoice = addInvoice();
    addPosition(invoice, QStringLiteral("A"), 1, 10.125, 1);
    for (int i = 0; i < 3; ++i)
        addPosition(invoice, QStringLiteral("B"), 1, 0.125, 2);
    const KsefXml xml(exported(invoice));
    EXPECT_EQ(xml.all("Fa/FaWiersz/P_11"), (QStringList{"10.13", "0.13", "0.13", "0.13"}));
    EXPECT_EQ(xml.one("Fa/P_13_1"), "10.13");
    EXPECT_EQ(xml.one("Fa/P_14_1"), "2.33");
    EXPECT_EQ(xml.one("Fa/P_13_6_1"), "0.39");
    EXPECT_EQ(xml.one("Fa/P_15"), "12.85");
    EXPECT_TRUE(inOrder(printout(invoice), {"Do zapłaty:", "12,85"}));
}

TEST_F(KsefInvoiceTest, ABuyerWithoutPolishNipGetsTheSchemasAlternativeAndValidates)
{
    const int germany = addCountry("DE");
    const int ukraine = addCountry("UA");
    const int invoice = addInvoice();
    addPosition(invoice, QStringLiteral("Przewóz Łódź - Berlin"), 1, 2000, 4);

    changeClient([germany](TKontrahenciObj &c) {
        c.NIP.clear();
        c.ID_KRAJU = germany;
    });
    KsefXml xml(exported(invoice));
    EXPECT_EQ(xml.one("Podmiot2/DaneIdentyfikacyjne/BrakID"), "1");
    EXPECT_FALSE(xml.has("Podmiot2/DaneIdentyfikacyjne/NIP"));
    EXPECT_EQ(xml.one("Podmiot2/Adres/KodKraju"), "DE");

    changeClient([](TKontrahenciObj &c) { c.EURONIP_1 = QStringLiteral("DE 123 456 789"); });
    xml = KsefXml(exported(invoice));
    EXPECT_EQ(xml.one("Podmiot2/DaneIdentyfikacyjne/KodUE"), "DE");
    EXPECT_EQ(xml.one("Podmiot2/DaneIdentyfikacyjne/NrVatUE"), "123456789");

    changeClient([ukraine](TKontrahenciObj &c) {
        c.EURONIP_1.clear();
        c.NIP = QStringLiteral("3012345678");
        c.ID_KRAJU = ukraine;
    });
    xml = KsefXml(exported(invoice));
    EXPECT_EQ(xml.one("Podmiot2/DaneIdentyfikacyjne/KodKraju"), "UA");
    EXPECT_EQ(xml.one("Podmiot2/DaneIdentyfikacyjne/NrID"), "3012345678");
    EXPECT_EQ(xml.one("Podmiot2/Adres/KodKraju"), "UA");
}

TEST_F(KsefInvoiceTest, SpecialCharactersAreEscapedAndSurviveTheRoundTrip)
{
    const QString name = QStringLiteral("Kowalski & Syn <\"Łódź\"> żółw 'Ż'");
    changeClient([&name](TKontrahenciObj &c) {
        c.NAZWA = name;
        c.ADRES = QStringLiteral("ul. A&B <1>");
    });
    const int invoice = addInvoice();
    addPosition(invoice, QStringLiteral("Przewóz \"pilny\" & <ostrożnie>"), 1, 100, 1);
    const QByteArray document = exported(invoice);
    EXPECT_TRUE(document.contains("Kowalski &amp; Syn &lt;"));
    EXPECT_FALSE(document.contains("A&B"));
    const KsefXml xml(document);
    ASSERT_TRUE(xml.error.isEmpty()) << xml.error.toStdString();
    EXPECT_EQ(xml.one("Podmiot2/DaneIdentyfikacyjne/Nazwa"), name);
    EXPECT_EQ(xml.one("Podmiot2/Adres/AdresL1"), "ul. A&B <1>");
    EXPECT_EQ(xml.one("Fa/FaWiersz/P_7"), "Przewóz \"pilny\" & <ostrożnie>");
}
