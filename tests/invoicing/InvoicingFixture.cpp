#include "InvoicingFixture.h"

#include "ReportTexts.h"
#include "TableObjects.h"

void InvoicingFixture::SetUp()
{
    db.exec(QStringLiteral(
        "INSERT INTO DANE_FIRMY (NAZWA, KOD, MIEJSCOWOSC, ADRES, POBOX, NIP, KONTAKT1,"
        " MIEJSCE_WYSTAWIANIA) VALUES ('Spedycja Żuraw Sp. z o.o.', '90-001', 'Łódź',"
        " 'Piotrkowska 100', '', '725-100-20-30', 'tel. 42 630 10 20', 'Łódź')"));
    TStawki_vatObj rate(db.connection());
    for (const auto &[label, fraction] :
         {std::pair{"23%", 0.23}, {"0%", 0.0}, {"zw.", 0.0}, {"NP", 0.0}, {"23% usł.", 0.23},
          {"8%", 0.08}}) {
        rate.OPIS = QString::fromUtf8(label);
        rate.PROCENT = fraction;
        ASSERT_TRUE(rate.Insert());
    }
    TRodzaje_platnosciObj payment(db.connection());
    payment.OPIS = QStringLiteral("przelew");
    ASSERT_TRUE(payment.Insert());
    TDokumentyObj kind(db.connection());
    kind.NAZWA = QStringLiteral("Faktura VAT");
    ASSERT_TRUE(kind.Insert());
    TKonta_bankoweObj account(db.connection());
    account.BANK = QStringLiteral("Bank Śląski");
    account.RACHUNEK = QStringLiteral("12 1020 3352 0000 1102 0123 4567");
    ASSERT_TRUE(account.Insert());
    TUsersObj user(db.connection());
    user.LOGIN = QStringLiteral("anna");
    user.IMIE = QStringLiteral("Anna");
    user.NAZWISKO = QStringLiteral("Łęcka");
    ASSERT_TRUE(user.Insert());

    TKontrahenciObj contractor(db.connection());
    const auto addContractor = [&contractor](const char *shortName, const char *name,
                                             const char *street, const char *postcode,
                                             const char *town, const char *nip) {
        contractor.SKROT = QString::fromUtf8(shortName);
        contractor.NAZWA = QString::fromUtf8(name);
        contractor.ADRES = QString::fromUtf8(street);
        contractor.KOD = QString::fromUtf8(postcode);
        contractor.MIEJSCOWOSC = QString::fromUtf8(town);
        contractor.NIP = QString::fromUtf8(nip);
        EXPECT_TRUE(contractor.Insert());
    };
    contractor.NR_IDENT = 4711;
    addContractor("GĘŚLA", "Gęśla Jaźń S.A.", "ul. Źródlana 8", "00-950", "Warszawa",
                  "521-300-28-29");
    contractor.NR_IDENT = 0;
    contractor.TELEFON = QStringLiteral("+48 600 100 200");
    contractor.PLATNOSC_DNI = 45;
    addContractor("ŻWIREK", "Żwirek Transport Jan Kolski", "ul. Kolejowa 3", "93-100", "Łódź",
                  "725-400-01-02");

    TMiastaObj city(db.connection());
    for (const char *name : {"Łódź", "Warszawa", "Kraków", "Gdańsk"}) {
        city.NAZWA = QString::fromUtf8(name);
        ASSERT_TRUE(city.Insert());
    }
    TMiaryObj unit(db.connection());
    unit.NAZWA = QStringLiteral("tona");
    unit.SKROT = QStringLiteral("t");
    ASSERT_TRUE(unit.Insert());
}

int InvoicingFixture::addInvoice(const std::function<void(TFakturyObj &)> &change)
{
    TFakturyObj invoice(db.connection());
    invoice.NR_KOLEJNY = 7;
    invoice.NUMER_PELNY = QStringLiteral("007/07/2026");
    invoice.ID_RODZAJ_DOK = 1;
    invoice.ID_KONTRAHENTA = ClientKey;
    invoice.DATA_WYSTAWIENIA = DateTime::fromDate(QDate(2026, 7, 10));
    invoice.DATA_SPRZEDAZY = DateTime::fromDate(QDate(2026, 7, 8));
    invoice.ID_RODZ_PLATNOSCI = 1;
    invoice.ILOSC_DNI_PLATN = 14;
    invoice.ID_WYSTAWIL = 1;
    invoice.KONTO_BANKOWE = 1;
    invoice.ODEBRAL = QStringLiteral("Jan Źdźbło");
    if (change)
        change(invoice);
    EXPECT_TRUE(invoice.Insert());
    return invoice.ID_FAKTURY;
}

void InvoicingFixture::addPosition(int invoiceKey, const QString &text, double quantity,
                                   double price, int rateKey)
{
    TFaktury_pozycjeObj position(db.connection());
    position.ID_FAKTURY = invoiceKey;
    position.TRESC = text;
    position.ILOSC = quantity;
    position.JM = QStringLiteral("usł.");
    position.CENA_NETTO = price;
    position.ID_VAT = rateKey;
    EXPECT_TRUE(position.Insert());
}

int InvoicingFixture::addOrder(const std::function<void(TZlecenia_przychObj &)> &change)
{
    TZlecenia_przychObj order(db.connection());
    order.NUMER = 42;
    order.DATA = DateTime::fromDate(QDate(2026, 7, 6));
    order.IDKONTRAHENTA = ClientKey;
    order.IDPRZEWOZNIK = CarrierKey;
    order.IDMIASTO_OD = Lodz;
    order.IDMIASTO_DO = Warszawa;
    order.IDUSER = 1;
    if (change)
        change(order);
    EXPECT_TRUE(order.Insert());
    return order.ID_ZLECENIA_PRZYCH;
}

void InvoicingFixture::addGoods(int orderKey, const QString &name, double quantity, int unit)
{
    TTowaryObj goods(db.connection());
    goods.ID_ZLECENIA = orderKey;
    goods.NAZWA = name;
    goods.ILOSC = quantity;
    goods.ID_JEDNOSTKI_MIARY = unit;
    EXPECT_TRUE(goods.Insert());
}

QStringList InvoicingFixture::printed(const std::vector<ReportPage> &pages)
{
    // Dotted signature lines are left out too.
    QStringList texts = ReportTexts::printed(pages);
    texts.removeIf([](const QString &text) { return text.startsWith(QStringLiteral("....")); });
    return texts;
}

testing::AssertionResult InvoicingFixture::inOrder(const QStringList &texts,
                                                   const QStringList &expected)
{
    if (ReportTexts::inOrder(texts, expected))
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "expected in order: " << expected.join(u'|').toStdString()
                                       << "\nprinted: " << texts.join(u'|').toStdString();
}
