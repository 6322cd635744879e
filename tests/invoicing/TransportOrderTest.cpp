#include "InvoicingFixture.h"
#include "TKierowcyObj.h"
#include "TMiejsca_zlecObj.h"
#include "TTowaryObj.h"
#include "TfrmPrintReport.h"

class TransportOrderTest : public InvoicingFixture
{
protected:
    int fullOrder()
    {
        const int order = addOrder([](TZlecenia_przychObj &o) {
            o.NUMER = 1207;
            o.AWIZO = DateTime::fromDateTime(QDateTime(QDate(2026, 7, 6), QTime(7, 30), Qt::UTC));
            o.DOSTARCZENIE
                = DateTime::fromDateTime(QDateTime(QDate(2026, 7, 7), QTime(10, 0), Qt::UTC));
            o.DATA_ROZLADUNKU = DateTime::fromDate(QDate(2026, 7, 8));
            o.IDMIASTO_VIA = Krakow;
            o.ODLEGLOSC = 412;
            o.POJAZD = QStringLiteral("EL 4521K");
            o.NACZEPA = QStringLiteral("EL 7730N");
            o.KIEROWCA = QStringLiteral("Łukasz Dąbrowski");
            o.TELEFON = QStringLiteral("+48 501 222 333");
            o.PALETYILOSC = 33;
            o.KM_PUSTE = 20.5;
            o.KOSZTRAZEM = 1234.5;
            o.NUMER_OBCY = QStringLiteral("ZAM/2026/4471");
            o.DODATKOWY_OPIS = QStringLiteral("Towar delikatny, zakaz piętrowania.");
        });
        TMiejsca_zlecObj place(db.connection());
        place.ID_ZLECENIA = order;
        place.ID_ZRP = 1;
        place.setSlot(1, {QStringLiteral("ul. Hutnicza 9"), QStringLiteral("91-100"),
                          QStringLiteral("Łódź"), 1, QStringLiteral("Stalex Magazyn")});
        EXPECT_TRUE(place.Insert());
        place.ID_ZRP = 2;
        place.setSlot(1, {QStringLiteral("ul. Magazynowa 1"), QStringLiteral("02-001"),
                          QStringLiteral("Warszawa"), 1, QStringLiteral("Odbiorca Północ")});
        place.setSlot(2, {QStringLiteral("ul. Portowa 2"), QStringLiteral("02-200"),
                          QStringLiteral("Warszawa"), 1, QStringLiteral("Odbiorca Południe")});
        EXPECT_TRUE(place.Insert());
        addGoods(order, QStringLiteral("Pręty stalowe"), 20.5);
        TTowaryObj adr(db.connection());
        adr.ID_ZLECENIA = order;
        adr.NAZWA = QStringLiteral("Farby");
        adr.NUMER1 = QStringLiteral("UN 1263 kl. 3");
        adr.NUMER2 = QStringLiteral("w beczkach");
        adr.ILOSC = 4;
        adr.ID_JEDNOSTKI_MIARY = TonneUnit;
        EXPECT_TRUE(adr.Insert());
        return order;
    }

    QStringList print(int orderKey)
    {
        TfrmPrintReport printout(db.connection(), orderKey);
        return printed(printout.qrZlecenie().prepare());
    }
};

TEST_F(TransportOrderTest, SaysWhoOrdersWhoCarriesWhereWhenWhatAndForHowMuch)
{
    const QStringList texts = print(fullOrder());
    EXPECT_TRUE(inOrder(texts, {
        "Zlecenie transportowe nr 00001207", "z dnia 2026-07-06",
        "Zleceniodawca:",
        "Spedycja Żuraw Sp. z o.o.\nPiotrkowska 100\n90-001 Łódź\nNIP: 725-100-20-30\n"
        "tel. 42 630 10 20",
        "Przewoźnik:",
        "Żwirek Transport Jan Kolski\nul. Kolejowa 3\n93-100 Łódź\nNIP: 725-400-01-02\n"
        "tel. +48 600 100 200",
        "Miejsce załadunku:",
        "Stalex Magazyn\nul. Hutnicza 9, 91-100 Łódź\nTermin załadunku: 2026-07-06 07:30",
        "Miejsce rozładunku:",
        "1. Odbiorca Północ\nul. Magazynowa 1, 02-001 Warszawa\n"
        "2. Odbiorca Południe\nul. Portowa 2, 02-200 Warszawa\n"
        "Termin dostarczenia: 2026-07-07 10:00\nData rozładunku: 2026-07-08",
        "Trasa:", "Łódź - Kraków - Warszawa", "Odległość:", "412 km",
        "Pojazd:", "EL 4521K", "Naczepa:", "EL 7730N",
        "Kierowca:", "Łukasz Dąbrowski", "Telefon:", "+48 501 222 333"}));
    EXPECT_TRUE(inOrder(texts, {
        "Towar:", "Lp.", "Nazwa towaru", "Ilość", "Jm", "ADR", "Opis",
        "1", "Pręty stalowe", "20,5", "t",
        "2", "Farby", "4", "t", "UN 1263 kl. 3", "w beczkach",
        "Palety:", "33", "Waga:", "20,500 t",
        "Fracht:", "1\u00A0234,50 PLN netto + VAT",
        "Słownie złotych:", "jeden tysiąc  dwieście trzydzieści cztery 50/100",
        "Termin płatności:",
        "45 dni od daty otrzymania faktury wraz z potwierdzonym dokumentem przewozowym",
        "Nr zlecenia klienta:", "ZAM/2026/4471",
        "Uwagi:", "Towar delikatny, zakaz piętrowania.",
        "Warunki zlecenia:",
        "Anna Łęcka", "Zleceniodawca (podpis i pieczęć)",
        "Przewoźnik - przyjęcie zlecenia (podpis i pieczęć)"}));
}

TEST_F(TransportOrderTest, WithoutAddressesTheRouteCitiesAndTheDriversPhone)
{
    TKierowcyObj driver(db.connection());
    driver.IMIE = QStringLiteral("Marek");
    driver.NAZWISKO = QStringLiteral("Wójcik");
    driver.TEL_KOM = QStringLiteral("+48 602 000 111");
    ASSERT_TRUE(driver.Insert());
    const int order = addOrder([](TZlecenia_przychObj &o) {
        o.IDKIEROWCY = 1;
        o.DNI_FAKT = 21;
    });
    const QStringList texts = print(order);
    EXPECT_TRUE(inOrder(texts, {"Miejsce załadunku:", "Łódź\nTermin załadunku: 2026-07-06",
                                "Miejsce rozładunku:", "Warszawa", "Telefon:", "+48 602 000 111",
                                "21 dni od daty otrzymania faktury wraz z potwierdzonym "
                                "dokumentem przewozowym"}));
    EXPECT_FALSE(texts.contains("Uwagi:"));
}
