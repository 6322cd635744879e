#include "OrderNumbering.h"
#include "TZlecenia_przychObj.h"
#include "TestDatabase.h"

#include <gtest/gtest.h>

namespace {

void addOrder(TestDatabase &db, QDate day, int number)
{
    TZlecenia_przychObj order(db.connection());
    order.DATA = DateTime::fromDate(day);
    order.NUMER = number;
    order.Insert();
}

} // namespace

TEST(OrderNumbering, FollowsTheMostRecentlyInsertedOrderOfTheYearNotTheHighestNumber)
{
    TestDatabase db;
    addOrder(db, QDate(2024, 2, 1), 90);
    addOrder(db, QDate(2024, 1, 5), 14);
    addOrder(db, QDate(2023, 6, 1), 500);
    EXPECT_EQ(OrderNumbering::propose(db.connection(), 2024), 15);
    EXPECT_EQ(OrderNumbering::propose(db.connection(), 2023), 501);
    // The first order of a year is number one.
    EXPECT_EQ(OrderNumbering::propose(db.connection(), 2025), 1);
}

TEST(OrderNumbering, LeavesOutTheOrderBeingNumberedAndOrdersWithoutANumber)
{
    TestDatabase db;
    addOrder(db, QDate(2024, 3, 1), 57);
    TZlecenia_przychObj copy(db.connection());
    copy.DATA = DateTime::fromDate(QDate(2024, 3, 2));
    copy.Insert();
    addOrder(db, QDate(2024, 3, 3), 0);
    EXPECT_EQ(OrderNumbering::propose(db.connection(), 2024, copy.ID_ZLECENIA_PRZYCH), 58);
}
