#include "Connection.h"
#include "DbError.h"
#include "Statement.h"
#include "StatementCache.h"
#include "TestDatabase.h"
#include "Transaction.h"

#include <gtest/gtest.h>

namespace {

const QStringList InsertUnit{QStringLiteral("INSERT INTO MIARY (NAZWA, SKROT)"),
                             QStringLiteral("VALUES (:aNAZWA, :aSKROT)")};

void insertUnit(Connection &connection, const QString &name, const QString &shortName = "kg")
{
    Statement &st = connection.statements().statement(InsertUnit);
    st.bind(QStringLiteral("aNAZWA"), name);
    st.bind(QStringLiteral("aSKROT"), shortName);
    st.exec();
}

} // namespace

TEST(StatementReuse, AKeptStatementRunsInWhicheverTransactionIsCurrent)
{
    TestDatabase db;
    Connection &connection = db.connection();
    Transaction transaction(connection);
    {
        TransactionScope scope(transaction);
        insertUnit(connection, QStringLiteral("tona"));
        insertUnit(connection, QStringLiteral("paleta"));
        scope.commit();
    }
    {
        TransactionScope undone(transaction);
        insertUnit(connection, QStringLiteral("litr"));
    }
    // Outside a transaction it commits as it runs again.
    insertUnit(connection, QStringLiteral("metr"));
    {
        TransactionScope scope(transaction);
        insertUnit(connection, QStringLiteral("sztuka"));
        scope.commit();
    }
    EXPECT_EQ(db.countSeenElsewhere(QStringLiteral("MIARY")), 4);
    EXPECT_EQ(db.count(QStringLiteral("MIARY"), QStringLiteral("NAZWA='litr'")), 0);
    EXPECT_EQ(connection.statements().size(), 1);
}

TEST(StatementReuse, AFailedRunLeavesNothingOpenAndTheStatementRunsAgain)
{
    TestDatabase db;
    db.exec(QStringLiteral("ALTER TABLE MIARY ADD CONSTRAINT MIARY_SKROT CHECK (SKROT <> 'x')"));
    Connection &connection = db.connection();
    EXPECT_THROW(insertUnit(connection, QStringLiteral("zła"), QStringLiteral("x")), DbError);
    insertUnit(connection, QStringLiteral("kilogram"));
    EXPECT_EQ(db.countSeenElsewhere(QStringLiteral("MIARY")), 1);

    Transaction transaction(connection);
    TransactionScope scope(transaction);
    insertUnit(connection, QStringLiteral("tona"));
    EXPECT_THROW(insertUnit(connection, QStringLiteral("zła"), QStringLiteral("x")), DbError);
    insertUnit(connection, QStringLiteral("paleta"));
    scope.commit();
    EXPECT_EQ(db.countSeenElsewhere(QStringLiteral("MIARY")), 3);
}

TEST(StatementReuse, RowsHandedBackInsideATransactionComeFromEachRun)
{
    TestDatabase db;
    Connection &connection = db.connection();
    Transaction transaction(connection);
    TransactionScope scope(transaction);
    Statement insert(connection);
    insert.add(QStringLiteral("INSERT INTO MIARY (NAZWA) VALUES (:aNAZWA) RETURNING ID_MIARY"));
    Statement count(connection);
    count.add(QStringLiteral("SELECT COUNT(*) FROM MIARY WHERE NAZWA STARTING WITH :aNAZWA"));
    int previous = 0;
    for (int i = 1; i <= 3; ++i) {
        insert.bind(QStringLiteral("aNAZWA"), QStringLiteral("jednostka %1").arg(i));
        insert.exec();
        EXPECT_GT(insert.integer(0), previous);
        previous = insert.integer(0);
        // A select run again inside the transaction sees its own rows.
        count.bind(QStringLiteral("aNAZWA"), QStringLiteral("jednostka"));
        count.exec();
        EXPECT_EQ(count.integer(0), i);
    }
    scope.commit();
    EXPECT_EQ(db.countSeenElsewhere(QStringLiteral("MIARY")), 3);
}

TEST(StatementReuse, ReopeningTheConnectionDropsKeptStatements)
{
    TestDatabase db;
    Connection &connection = db.connection();
    insertUnit(connection, QStringLiteral("tona"));
    connection.open(db.path());
    EXPECT_EQ(connection.statements().size(), 0);
    insertUnit(connection, QStringLiteral("paleta"));
    EXPECT_EQ(db.countSeenElsewhere(QStringLiteral("MIARY")), 2);
}
