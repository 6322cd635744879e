// The register reads its list straight from the engine; what it reads must
// be what the driver reads, over a whole demo company.
#include "DemoSeeder.h"
#include "OrderListQuery.h"
#include "SameRows.h"
#include "TestDatabase.h"

#include <gtest/gtest.h>

TEST(RegisterRows, TheEngineReadsTheRegistersStatementAsTheDriverDoes)
{
    TestDatabase db;
    DemoSeeder::Options options;
    options.orders = 200;
    options.today = QDate(2026, 11, 22);
    DemoSeeder(db.connection(), options).seed();

    OrderListFilter filter;
    filter.from = QDate(2026, 10, 1);
    filter.to = QDate(2026, 12, 31);
    const SameRowsSeen seen = expectSameRows(
        db.connection(), [&](Statement &st) { OrderListQuery::prepare(st, filter); });
    // Every order and the templates, with NULLs (no invoice, no driver) and
    // Polish names among them.
    EXPECT_EQ(seen.rows, 203);
    EXPECT_GT(seen.nulls, 200);
    EXPECT_GT(seen.nonAsciiTexts, 200);
}
