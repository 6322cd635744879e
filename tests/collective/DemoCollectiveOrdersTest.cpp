// What the demo company offers a dispatcher who corrects collective orders.
#include "Consignments.h"
#include "DemoSeeder.h"
#include "TVzlecenia_zbiorObj.h"
#include "TestDatabase.h"

#include <gtest/gtest.h>

TEST(DemoCollectiveOrders, RunsOfBothKindsOneOverloadedAndFreeOrdersAroundToday)
{
    TestDatabase db;
    DemoSeeder::Options options;
    options.orders = 150;
    options.today = QDate(2026, 11, 22);
    DemoSeeder(db.connection(), options).seed();
    Connection &c = db.connection();

    const auto runs = TVzlecenia_zbiorObj(c).SelectAll(QStringLiteral("NUMER"));
    ASSERT_EQ(runs.size(), 4u);
    int outside = 0;
    int own = 0;
    int overloaded = 0;
    for (const TVzlecenia_zbiorObj &run : runs) {
        const auto consignments = Consignments::onVehicle(c, run.ID_ZLECENIA_ZBIOR);
        EXPECT_FALSE(consignments.empty()) << run.NUMER;
        EXPECT_FALSE(run.POJAZD.isEmpty()) << run.NUMER;
        EXPECT_EQ(run.LADOWNOSCPALET, 33) << run.NUMER;
        if (run.IDPRZEWOZNIK == DemoSeeder::OwnerKey) {
            ++own;
            EXPECT_GT(run.STAWKA, 0.0);
            EXPECT_FALSE(run.KIEROWCA.isEmpty());
        } else {
            ++outside;
            EXPECT_FALSE(run.FAKTURA_OBCA.isEmpty()) << run.NUMER;
            EXPECT_GT(run.KWOTA_PRZEWOZNIKA, 0.0);
        }
        if (Consignments::overloaded(run.LADOWNOSCPALET,
                                     Consignments::plannedPallets(consignments)))
            ++overloaded;
    }
    EXPECT_EQ(outside, 2);
    EXPECT_EQ(own, 2);
    EXPECT_EQ(overloaded, 1);

    const auto offered
        = Consignments::unassigned(c, options.today.addDays(-7), options.today.addDays(7));
    EXPECT_GE(offered.size(), 5u);
}
