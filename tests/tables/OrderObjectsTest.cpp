#include "Statement.h"
#include "TableObjects.h"
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
    EXPECT_EQ(back.NAZWA1, QStringLiteral("Magazyn Północ"));
    EXPECT_EQ(back.ID_KRAJU18, 2);
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
    TKontrahenciObj contractor(db.connection());
    contractor.SKROT = QStringLiteral("Klient");
    contractor.Insert();
    contractor.SKROT = QStringLiteral("Przewoźnik");
    contractor.Insert();
    TMiastaObj city(db.connection());
    for (const char *name : {"Poznań", "Łódź", "Kraków"}) {
        city.NAZWA = QString::fromUtf8(name);
        city.Insert();
    }
    TFakturyObj invoice(db.connection());
    invoice.NR_KOLEJNY = 17;
    invoice.DATA_WYSTAWIENIA = DateTime::fromDate(QDate(2026, 11, 2));
    invoice.Insert();

    TZlecenia_przychObj order(db.connection());
    order.NUMER = 12;
    order.IDKONTRAHENTA = 1;
    order.IDPRZEWOZNIK = 2;
    order.IDMIASTO_OD = 1;
    order.IDMIASTO_VIA = 2;
    order.IDMIASTO_DO = 3;
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

TEST(OrderObjects, DistanceIsFoundInBothDirectionsWithTheSameViaCity)
{
    TestDatabase db;
    db.exec(QStringLiteral("INSERT into ODLEGLOSCI (IDMIASTAOD,IDMIASTAVIA,IDMIASTADO,ODLEGLOSC) "
                           "VALUES (1, 2, 3, 310)"));
    db.exec(QStringLiteral("INSERT into ODLEGLOSCI (IDMIASTAOD,IDMIASTAVIA,IDMIASTADO,ODLEGLOSC) "
                           "VALUES (5, 0, 6, 90)"));
    const auto distance = [&](int from, int via, int to) {
        Statement st(db.connection());
        st.add(QStringLiteral(
            "SELECT ODLEGLOSC FROM ODLEGLOSCI WHERE (IDMIASTAOD =:aIDMIASTAOD AND IDMIASTAVIA =:aIDMIASTAVIA "
            "AND IDMIASTADO=:aIDMIASTADO) OR (IDMIASTAOD =:aIDMIASTADO AND IDMIASTAVIA =:aIDMIASTAVIA AND "
            "IDMIASTADO=:aIDMIASTAOD)"));
        st.bind(QStringLiteral("aIDMIASTAOD"), from);
        st.bind(QStringLiteral("aIDMIASTAVIA"), via);
        st.bind(QStringLiteral("aIDMIASTADO"), to);
        st.exec();
        return st.atEnd() ? -1 : st.integer(0);
    };
    EXPECT_EQ(distance(1, 2, 3), 310);
    EXPECT_EQ(distance(3, 2, 1), 310);
    EXPECT_EQ(distance(1, 4, 3), -1);
    EXPECT_EQ(distance(6, 0, 5), 90);
}
