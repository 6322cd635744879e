// What a collective order's head becomes as a record of ZLECENIA_ZBIOR.
#include "CollectiveOrder.h"
#include "TZlecenia_zbiorObj.h"
#include "TestDatabase.h"

#include <gtest/gtest.h>

TEST(CollectiveOrderRecord, TheTabDecidesTheCarriersSideAndOtherColumnsStayNew)
{
    TestDatabase db;
    CollectiveOrder order;
    order.number = 7;
    // 2026-05-06 18:00 and the like: the hours go.
    order.date = DateTime(46148.75);
    order.loadingDate = DateTime(46149.5);
    order.unloadingDate = DateTime(46150.25);
    order.carrierIssued = DateTime(46151.9);
    order.carrier = 9;
    order.vehicle = 3;
    order.driver = 4;
    order.ownRate = 500.0;
    order.carrierInvoice = QStringLiteral("FV 1/2026");
    order.carrierAmount = 1200.0;
    order.vatRate = 2;
    order.textNumber = 5;

    order.ownFleet = true;
    TZlecenia_zbiorObj own = order.record(db.connection(), 12, 77);
    EXPECT_EQ(own.ID_ZLECENIA_ZBIOR, 12);
    EXPECT_EQ(own.IDPRZEWOZNIK, 77);
    EXPECT_DOUBLE_EQ(own.STAWKA, 500.0);
    EXPECT_TRUE(own.FAKTURA_OBCA.isEmpty());
    EXPECT_EQ(own.IDPOJAZDU, 3);
    EXPECT_EQ(own.IDKIEROWCY, 4);
    for (const DateTime day : {own.DATA, own.DATAZALADUNKU, own.DATAWYLADUNKU,
                               own.DATAWYSTAWIENIA_PRZEWOZNIK})
        EXPECT_EQ(day.time(), QTime(0, 0));
    EXPECT_EQ(own.DATAZALADUNKU.date(), DateTime(46149.0).date());
    // What the editor does not show is what a new record holds.
    EXPECT_EQ(own.IDKONTRAHENTA, 0);
    EXPECT_EQ(own.IDUSER, 0);
    EXPECT_TRUE(own.TRASA.isEmpty());

    order.ownFleet = false;
    const TZlecenia_zbiorObj outside = order.record(db.connection(), 12, 77);
    EXPECT_EQ(outside.IDPRZEWOZNIK, 9);
    EXPECT_DOUBLE_EQ(outside.STAWKA, 0.0);
    EXPECT_EQ(outside.FAKTURA_OBCA, "FV 1/2026");
    EXPECT_DOUBLE_EQ(outside.KWOTA_PRZEWOZNIKA, 1200.0);
    EXPECT_EQ(outside.IDVAT_PRZEWOZNIK, 2);
    EXPECT_EQ(outside.IDUWAGI, 5);
}
