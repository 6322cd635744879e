#include "TableObjects.h"
#include "TestData.h"
#include "TestDatabase.h"

#include <gtest/gtest.h>

TEST(OrderObjects, PlacesRecordRoundTripsAllEighteenSlots)
{
    TestDatabase db;
    TMiejsca_zlecObj places(db.connection());
    places.ID_ZLECENIA = 7;
    places.ID_ZRP = 1;
    places.ID_KONTRAHENT = 3;
    places.setSlot(1, {QStringLiteral("ul. Portowa 4"), QStringLiteral("80-001"), QStringLiteral("Gdańsk"), 1,
                       QStringLiteral("Magazyn Północ")});
    places.setSlot(18, {QStringLiteral("Hafenstraße 1"), QStringLiteral("20095"), QStringLiteral("Hamburg"), 2,
                        QStringLiteral("Lager")});
    places.Insert();

    const auto read = places.SelectClause(QStringLiteral("WHERE ID_ZLECENIA=7"));
    ASSERT_EQ(read.size(), 1u);
    const TMiejsca_zlecObj &back = read.front();
    EXPECT_EQ(back.slot(1), places.slot(1));
    EXPECT_EQ(back.slot(18), places.slot(18));
    EXPECT_EQ(back.ID_ZRP, 1);
    EXPECT_EQ(back.ID_KONTRAHENT, 3);
    for (int slot = 2; slot <= 17; ++slot)
        EXPECT_EQ(back.slot(slot), TMiejsca_zlecObj::Slot()) << slot;
    EXPECT_EQ(db.count(QStringLiteral("MIEJSCA_ZLEC"), QStringLiteral("ADRES2 = '' AND ID_KRAJU2 = 0")), 1);
    EXPECT_THROW(back.slot(19), std::out_of_range);
}

TEST(OrderObjects, OrderViewResolvesNames)
{
    TestDatabase db;
    Connection &c = db.connection();
    TZlecenia_przychObj order(c);
    order.IDKONTRAHENTA = TestData::addContractor(c, QStringLiteral("Klient"));
    order.IDPRZEWOZNIK = TestData::addContractor(c, QStringLiteral("Przewoźnik"));
    order.IDMIASTO_OD = TestData::addCity(c, {.name = QStringLiteral("Poznań")});
    order.IDMIASTO_VIA = TestData::addCity(c, {.name = QStringLiteral("Łódź")});
    order.IDMIASTO_DO = TestData::addCity(c, {.name = QStringLiteral("Kraków")});
    TFakturyObj invoice(c);
    invoice.NR_KOLEJNY = 17;
    invoice.DATA_WYSTAWIENIA = DateTime::fromDate(QDate(2026, 11, 2));
    invoice.Insert();
    order.NUMER = 12;
    order.IDFAKTURY = invoice.GetMaxId();
    order.Insert();

    TVzlecenia_przychObj view(db.connection());
    view.UniDirectional = true;
    const auto rows = view.SelectAll();
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows.front().KONTRAHENT, QStringLiteral("Klient"));
    EXPECT_EQ(rows.front().PRZEWOZNIK, QStringLiteral("Przewoźnik"));
    EXPECT_EQ(rows.front().MIASTOVIA, QStringLiteral("Łódź"));
    EXPECT_EQ(rows.front().NRFAKTURY, 17);
    EXPECT_EQ(rows.front().FAK_DWYST.date(), QDate(2026, 11, 2));
    EXPECT_EQ(view.SelectById(rows.front().ID_ZLECENIA_PRZYCH).NUMER, 12);
}
