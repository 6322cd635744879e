// A second connection on the same database stands for another workstation.
#include "DbError.h"
#include "NumberingLock.h"
#include "TestDatabase.h"
#include "Transaction.h"

#include <gtest/gtest.h>

namespace {

const NumberSeries Orders2026{QStringLiteral("ZLECENIA_PRZYCH"), 2026};

class NumberingLockTest : public testing::Test
{
protected:
    NumberingLockTest() { other.open(db.path()); }

    // What another workstation does: numbers in the series and commits.
    void numberElsewhere(const NumberSeries &series)
    {
        Transaction transaction(other);
        TransactionScope scope(transaction);
        NumberingLock::take(transaction, series);
        scope.commit();
    }

    static DbError::Kind failureOf(Transaction &transaction, const NumberSeries &series)
    {
        try {
            NumberingLock::take(transaction, series);
        } catch (const DbError &error) {
            return error.kind();
        }
        return DbError::Kind::Other;
    }

    TestDatabase db;
    Transaction transaction{db.connection()};
    Connection other;
};

} // namespace

TEST_F(NumberingLockTest, TheFirstUseOfASeriesAddsItsRowOnce)
{
    for (int i = 0; i < 2; ++i) {
        TransactionScope scope(transaction);
        NumberingLock::take(transaction, Orders2026);
        NumberingLock::take(transaction, {QStringLiteral("FAKTURY"), 2026, 3});
        scope.commit();
    }
    EXPECT_EQ(db.count(QStringLiteral("NUMERACJA")), 2);
    EXPECT_EQ(db.count(QStringLiteral("NUMERACJA"),
                       QStringLiteral("RODZAJ='FAKTURY' AND ROK=2026 AND MIESIAC=3")),
              1);
}

TEST_F(NumberingLockTest, ATransactionOlderThanAnotherWorkstationsNumberingIsRefused)
{
    // Its proposal would miss what the other workstation has just numbered,
    // whether that added the series' row or found it there.
    for (int run = 0; run < 2; ++run) {
        transaction.StartTransaction();
        numberElsewhere(Orders2026);
        EXPECT_EQ(failureOf(transaction, Orders2026), DbError::Kind::Conflict) << run;
        transaction.Rollback();
        EXPECT_EQ(db.count(QStringLiteral("NUMERACJA")), 1);
    }
    TransactionScope fresh(transaction);
    EXPECT_NO_THROW(NumberingLock::take(transaction, Orders2026));
}

TEST_F(NumberingLockTest, SeriesDoNotLockEachOther)
{
    numberElsewhere(Orders2026);
    transaction.StartTransaction();
    numberElsewhere({QStringLiteral("ZLECENIA_PRZYCH"), 2027});
    numberElsewhere({QStringLiteral("FAKTURY"), 2026, 1});
    EXPECT_NO_THROW(NumberingLock::take(transaction, Orders2026));
    transaction.Rollback();
}

TEST_F(NumberingLockTest, OutsideATransactionTheLockIsRefused)
{
    EXPECT_THROW(NumberingLock::take(transaction, Orders2026), DbError);
    EXPECT_EQ(db.count(QStringLiteral("NUMERACJA")), 0);
}
