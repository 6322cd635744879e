#include "IndexStatistics.h"
#include "Statement.h"
#include "TestDatabase.h"

#include <gtest/gtest.h>

namespace {

double selectivity(Connection &connection, const QString &index)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT RDB$STATISTICS FROM RDB$INDICES WHERE RDB$INDEX_NAME = :aIndex"));
    st.bind(QStringLiteral("aIndex"), index);
    st.exec();
    return st.number(0);
}

} // namespace

TEST(IndexStatistics, AnIndexBuiltEmptyIsMeasuredAgainOnceItHoldsRows)
{
    TestDatabase db;
    db.exec(QStringLiteral("CREATE TABLE POMIARY (WARTOSC INTEGER)"));
    db.exec(QStringLiteral("CREATE INDEX POMIARY_WARTOSC ON POMIARY (WARTOSC)"));
    for (int value = 0; value < 50; ++value)
        db.exec(QStringLiteral("INSERT INTO POMIARY VALUES (%1)").arg(value % 25));
    // What the engine believes until told otherwise: every value unique.
    EXPECT_EQ(selectivity(db.connection(), QStringLiteral("POMIARY_WARTOSC")), 0.0);

    EXPECT_GT(IndexStatistics::refresh(db.connection()), 1);
    // Stored as a float.
    EXPECT_NEAR(selectivity(db.connection(), QStringLiteral("POMIARY_WARTOSC")), 1.0 / 25, 1e-6);
}
