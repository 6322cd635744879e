#include "DbError.h"
#include "OrderCopy.h"
#include "OrderSaving.h"
#include "TZlecenia_przychObj.h"
#include "TestDatabase.h"
#include "Transaction.h"

#include <gtest/gtest.h>

namespace {

class OrderSavingTest : public testing::Test
{
protected:
    TZlecenia_przychObj newOrder(Connection &connection, int number = 0)
    {
        TZlecenia_przychObj order(connection);
        order.DATA = DateTime::fromDate(QDate(2026, 4, 14));
        order.NUMER = number;
        return order;
    }

    TZlecenia_przychObj stored(int key)
    {
        return TZlecenia_przychObj(db.connection()).SelectById(key);
    }

    TestDatabase db;
    Transaction transaction{db.connection()};
};

} // namespace

TEST_F(OrderSavingTest, ANewOrderIsNumberedAndKnownByTheKeyOfItsOwnInsert)
{
    for (int expected = 1; expected <= 2; ++expected) {
        TZlecenia_przychObj order = newOrder(db.connection());
        order.NUMER_OBCY = QStringLiteral("Z/%1").arg(expected);
        OrderSaving::save(transaction, order, true);
        EXPECT_EQ(order.NUMER, expected);
        EXPECT_EQ(stored(order.ID_ZLECENIA_PRZYCH).NUMER_OBCY, order.NUMER_OBCY);
        EXPECT_EQ(stored(order.ID_ZLECENIA_PRZYCH).NUMER, expected);
    }
    EXPECT_FALSE(transaction.InTransaction());
    EXPECT_EQ(db.countSeenElsewhere(QStringLiteral("ZLECENIA_PRZYCH")), 2);

    // A number typed by hand is kept, and locks no year's numbering.
    const int locks = db.count(QStringLiteral("NUMERACJA"));
    TZlecenia_przychObj typed = newOrder(db.connection(), 77);
    typed.DATA = DateTime::fromDate(QDate(2025, 4, 14));
    OrderSaving::save(transaction, typed, true);
    EXPECT_EQ(stored(typed.ID_ZLECENIA_PRZYCH).NUMER, 77);
    EXPECT_EQ(db.count(QStringLiteral("NUMERACJA")), locks);
}

TEST_F(OrderSavingTest, ACopyGetsTheNumberAfterTheOrderItWasCopiedFrom)
{
    TZlecenia_przychObj source = newOrder(db.connection(), 4242);
    OrderSaving::save(transaction, source, true);
    const int copyKey
        = copyOrderWithPlacesAndGoods(db.connection(), transaction, source.ID_ZLECENIA_PRZYCH);
    ASSERT_NE(copyKey, 0);
    TZlecenia_przychObj copy = stored(copyKey);
    ASSERT_EQ(copy.NUMER, 0);
    OrderSaving::save(transaction, copy, false);
    EXPECT_EQ(copy.NUMER, 4243);
    EXPECT_EQ(copy.ID_ZLECENIA_PRZYCH, copyKey);
    EXPECT_EQ(stored(copyKey).NUMER, 4243);
}

TEST_F(OrderSavingTest, InAnOlderTransactionAnotherWorkstationsNumberIsAConflictNotADuplicate)
{
    TZlecenia_przychObj first = newOrder(db.connection());
    OrderSaving::save(transaction, first, true);

    // This workstation's transaction was running when another one saved.
    transaction.StartTransaction();
    Connection other;
    other.open(db.path());
    Transaction otherTransaction(other);
    TZlecenia_przychObj theirs = newOrder(other);
    OrderSaving::save(otherTransaction, theirs, true);
    ASSERT_EQ(theirs.NUMER, 2);

    TZlecenia_przychObj mine = newOrder(db.connection());
    try {
        OrderSaving::save(transaction, mine, true);
        FAIL() << "saved with number " << mine.NUMER;
    } catch (const DbError &error) {
        EXPECT_EQ(error.kind(), DbError::Kind::Conflict);
    }
    EXPECT_EQ(mine.NUMER, 0);
    EXPECT_EQ(mine.ID_ZLECENIA_PRZYCH, 0);
    transaction.Rollback();
    EXPECT_EQ(db.scalar(QStringLiteral("SELECT LIST(NUMER) FROM "
                                       "(SELECT NUMER FROM ZLECENIA_PRZYCH ORDER BY NUMER)")),
              QStringLiteral("1,2"));

    // Begun afresh, the save sees the other workstation's order.
    OrderSaving::save(transaction, mine, true);
    EXPECT_EQ(mine.NUMER, 3);
}
