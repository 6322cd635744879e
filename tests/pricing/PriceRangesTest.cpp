#include "PriceRanges.h"
#include "TestData.h"
#include "TestDatabase.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace {

using namespace TestData;

// Both axes go through the same checks: what differs between them is only
// which table and columns each step names.
class PriceRangesTest : public testing::TestWithParam<RangeAxis>
{
protected:
    RangeAxis axis() const { return GetParam(); }

    int add(int upperBound) { return PriceRanges::add(db.connection(), axis(), upperBound); }

    // "from-to" of every range of the axis, by upper bound.
    QStringList ranges()
    {
        QStringList texts;
        for (const PriceRange &range : PriceRanges::list(db.connection(), axis(),
                                                         PriceRanges::editorListing(axis())))
            texts << QStringLiteral("%1-%2").arg(range.from).arg(range.to);
        return texts;
    }

    // A cell of the main price list on the range, crossing a range of the
    // other axis.
    void useInACell(int key)
    {
        Connection &c = db.connection();
        if (axis() == RangeAxis::Kilometres)
            addCell(c, {.row = key, .column = addKilogramRange(c, 0, 1000), .amount = 10});
        else
            addCell(c, {.row = addKilometreRange(c, 0, 50), .column = key, .amount = 10});
    }

    TestDatabase db;
};

} // namespace

TEST_P(PriceRangesTest, UpperBoundsInAnyOrderBecomeContiguousRangesRenumberedOnChange)
{
    const int middle = add(100);
    add(50);
    const int last = add(200);
    EXPECT_EQ(ranges(), (QStringList{"0-50", "51-100", "101-200"}));
    const PriceRange loaded = PriceRanges::load(db.connection(), axis(), middle);
    EXPECT_EQ(loaded.key, middle);
    EXPECT_EQ(loaded.from, 51);
    EXPECT_EQ(loaded.to, 100);

    // Changing or removing a range renumbers the axis.
    PriceRanges::change(db.connection(), axis(), middle, 150);
    EXPECT_EQ(ranges(), (QStringList{"0-50", "51-150", "151-200"}));
    PriceRanges::remove(db.connection(), axis(), middle);
    EXPECT_EQ(ranges(), (QStringList{"0-50", "51-200"}));
    EXPECT_EQ(PriceRanges::load(db.connection(), axis(), last).from, 51);
}

TEST_P(PriceRangesTest, TheDuplicateTestLeavesOutTheRangeBeingEditedAndUsageCountsCells)
{
    const int first = add(50);
    const int second = add(100);
    Connection &c = db.connection();
    EXPECT_TRUE(PriceRanges::exists(c, PriceRanges::duplicateTest(axis()), 100));
    EXPECT_FALSE(PriceRanges::exists(c, PriceRanges::duplicateTest(axis()), 75));
    EXPECT_FALSE(PriceRanges::exists(c, PriceRanges::duplicateTest(axis(), first), 50));
    EXPECT_TRUE(PriceRanges::exists(c, PriceRanges::duplicateTest(axis(), first), 100));

    // Usage counts the cells on the range; the total counts both axes.
    useInACell(first);
    EXPECT_EQ(PriceRanges::usage(c, axis(), first), 1);
    EXPECT_EQ(PriceRanges::usage(c, axis(), second), 0);
    EXPECT_EQ(PriceRanges::totalCount(db.connection()), 3);
}

INSTANTIATE_TEST_SUITE_P(BothAxes, PriceRangesTest,
                         testing::Values(RangeAxis::Kilometres, RangeAxis::Kilograms),
                         [](const testing::TestParamInfo<RangeAxis> &info) {
                             return info.param == RangeAxis::Kilometres ? "Kilometres"
                                                                         : "Kilograms";
                         });
