// Two connections on one database stand for two workstations.
#include "Connection.h"
#include "DbError.h"
#include "Statement.h"
#include "TestDatabase.h"
#include "Transaction.h"

#include <gtest/gtest.h>

namespace {

void setRate(Connection &connection, double rate)
{
    Statement st(connection);
    st.add(QStringLiteral("UPDATE TARYFYPRZEWOZNIKA SET KWOTA_ZA_KM=:aKwota"));
    st.bind(QStringLiteral("aKwota"), rate);
    st.exec();
}

class Conflicts : public testing::Test
{
protected:
    Conflicts()
    {
        db.exec(QStringLiteral("INSERT INTO TARYFYPRZEWOZNIKA (NAZWA_STAWKI, KWOTA_ZA_KM) "
                               "VALUES ('Krajowa', 1.0)"));
        other.open(db.path());
    }

    double storedRate()
    {
        return db.scalar(QStringLiteral("SELECT KWOTA_ZA_KM FROM TARYFYPRZEWOZNIKA")).toDouble();
    }

    TestDatabase db;
    Transaction transaction{db.connection()};
    Connection other;
};

} // namespace

TEST_F(Conflicts, ARowChangedElsewhereAfterTheTransactionStartedIsAConflict)
{
    transaction.StartTransaction();
    setRate(other, 2.0);
    try {
        setRate(db.connection(), 3.0);
        FAIL() << "the update went through";
    } catch (const DbError &error) {
        EXPECT_EQ(error.kind(), DbError::Kind::Conflict);
        EXPECT_EQ(error.nativeCode(), -913);
        EXPECT_TRUE(error.message().contains(QStringLiteral("update conflicts with concurrent "
                                                            "update")))
            << error.message().toStdString();
        EXPECT_TRUE(error.message().contains(QStringLiteral("UPDATE TARYFYPRZEWOZNIKA")));
    }
    transaction.Rollback();
    EXPECT_EQ(storedRate(), 2.0);
}

TEST_F(Conflicts, RetryingStartsOverInANewTransactionThatSeesTheOtherChange)
{
    int attempts = 0;
    double seen = 0.0;
    TransactionScope::retrying(transaction, [&] {
        ++attempts;
        if (attempts == 1)
            setRate(other, 2.0);
        seen = db.scalar(QStringLiteral("SELECT KWOTA_ZA_KM FROM TARYFYPRZEWOZNIKA")).toDouble();
        setRate(db.connection(), seen + 1.0);
    });
    EXPECT_EQ(attempts, 2);
    EXPECT_FALSE(transaction.InTransaction());
    EXPECT_EQ(storedRate(), 3.0);
}

TEST_F(Conflicts, InsideARunningTransactionAConflictGoesToTheCaller)
{
    transaction.StartTransaction();
    int attempts = 0;
    try {
        TransactionScope::retrying(transaction, [&] {
            ++attempts;
            setRate(other, 2.0);
            setRate(db.connection(), 3.0);
        });
        FAIL() << "the conflict was not reported";
    } catch (const DbError &error) {
        EXPECT_EQ(error.kind(), DbError::Kind::Conflict);
    }
    EXPECT_EQ(attempts, 1);
    EXPECT_TRUE(transaction.InTransaction());
    transaction.Rollback();
    EXPECT_EQ(storedRate(), 2.0);
}

TEST_F(Conflicts, OtherFailuresAreNotRetriedAndUndoTheWork)
{
    int attempts = 0;
    EXPECT_THROW(TransactionScope::retrying(transaction,
                                            [&] {
                                                ++attempts;
                                                setRate(db.connection(), 5.0);
                                                Statement broken(db.connection());
                                                broken.add(QStringLiteral("SELECT * FROM NIEMA"));
                                                broken.exec();
                                            }),
                 DbError);
    EXPECT_EQ(attempts, 1);
    EXPECT_EQ(storedRate(), 1.0);
}

TEST(DbError, TellsTheKindsOfFailureApart)
{
    TestDatabase db;
    Statement unknown(db.connection());
    unknown.add(QStringLiteral("SELECT * FROM NIEMA"));
    try {
        unknown.exec();
        FAIL();
    } catch (const DbError &error) {
        EXPECT_EQ(error.nativeCode(), -204);
        EXPECT_EQ(error.kind(), DbError::Kind::Other);
        EXPECT_TRUE(error.message().contains(QStringLiteral("Table unknown"))) << error.what();
    }

    Connection nowhere;
    try {
        nowhere.open(QStringLiteral("127.0.0.1/1:/nie/ma/bazy.fdb"), QStringLiteral("SYSDBA"),
                     QStringLiteral("masterkey"));
        FAIL();
    } catch (const DbError &error) {
        EXPECT_EQ(error.nativeCode(), -902);
        EXPECT_EQ(error.kind(), DbError::Kind::Unreachable) << error.message().toStdString();
    }

    EXPECT_EQ(DbError::classify(-901, QStringLiteral("lock time-out on wait transaction")),
              DbError::Kind::Locked);
    EXPECT_EQ(DbError::classify(-902, QStringLiteral("Error reading data from the connection.")),
              DbError::Kind::Unreachable);
    EXPECT_EQ(DbError::classify(-902, QStringLiteral("Your user name and password are not "
                                                     "defined.")),
              DbError::Kind::Other);
}
