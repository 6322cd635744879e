#include "Connection.h"
#include "DbError.h"
#include "Statement.h"
#include "TestDatabase.h"
#include "Transaction.h"

#include <gtest/gtest.h>

namespace {

void insertUnit(Connection &connection, const QString &name)
{
    Statement st(connection);
    st.add(QStringLiteral("INSERT INTO MIARY (NAZWA, SKROT) VALUES (:aNAZWA, 'x')"));
    st.bind(QStringLiteral("aNAZWA"), name);
    st.exec();
}

} // namespace

TEST(Transaction, ScopeRollsBackUnlessCommitted)
{
    TestDatabase db;
    Transaction transaction(db.connection());
    {
        TransactionScope scope(transaction);
        insertUnit(db.connection(), QStringLiteral("tona"));
        EXPECT_TRUE(transaction.InTransaction());
        EXPECT_EQ(db.countSeenElsewhere(QStringLiteral("MIARY")), 0);
    }
    EXPECT_FALSE(transaction.InTransaction());
    EXPECT_EQ(db.count(QStringLiteral("MIARY")), 0);
}

TEST(Transaction, AnExceptionInsideTheScopeLeavesNothingBehind)
{
    TestDatabase db;
    Transaction transaction(db.connection());
    try {
        TransactionScope scope(transaction);
        insertUnit(db.connection(), QStringLiteral("tona"));
        Statement broken(db.connection());
        broken.add(QStringLiteral("INSERT INTO MIARY (NIEMA) VALUES (1)"));
        broken.exec();
        scope.commit();
    } catch (const DbError &) {
    }
    EXPECT_EQ(db.count(QStringLiteral("MIARY")), 0);
}

TEST(Transaction, StartingTwiceOrCommittingNothingIsRefused)
{
    TestDatabase db;
    Transaction transaction(db.connection());
    EXPECT_THROW(transaction.Commit(), DbError);
    transaction.StartTransaction();
    EXPECT_THROW(transaction.StartTransaction(), DbError);
    transaction.Rollback();
}

TEST(Connection, TellsServerTargetsFromFilePaths)
{
    EXPECT_FALSE(Connection::isServerTarget(QStringLiteral("/var/lib/haulix/demo.fdb")));
    EXPECT_FALSE(Connection::isServerTarget(QStringLiteral("C:\\Haulix\\demo.fdb")));
    EXPECT_TRUE(Connection::isServerTarget(QStringLiteral("localhost:/data/demo.fdb")));
    EXPECT_TRUE(Connection::isServerTarget(QStringLiteral("localhost/30533:/data/demo.fdb")));
}

TEST(Connection, MissingFileIsAClearError)
{
    Connection connection;
    try {
        connection.open(QStringLiteral("/nonexistent/haulix.fdb"));
        FAIL() << "opened a missing file";
    } catch (const DbError &error) {
        EXPECT_TRUE(error.message().contains(QStringLiteral("/nonexistent/haulix.fdb")));
    }
    EXPECT_FALSE(connection.isOpen());
}

TEST(Transaction, NestedScopeUndoesOnlyItsOwnWork)
{
    TestDatabase db;
    Transaction transaction(db.connection());
    TransactionScope outer(transaction);
    insertUnit(db.connection(), QStringLiteral("tona"));
    {
        TransactionScope inner(transaction);
        insertUnit(db.connection(), QStringLiteral("paleta"));
    }
    {
        TransactionScope inner(transaction);
        insertUnit(db.connection(), QStringLiteral("godzina"));
        inner.commit();
    }
    EXPECT_TRUE(transaction.InTransaction());
    outer.commit();
    EXPECT_EQ(db.count(QStringLiteral("MIARY")), 2);
    EXPECT_EQ(db.count(QStringLiteral("MIARY"), QStringLiteral("NAZWA='paleta'")), 0);
}
