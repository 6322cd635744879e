#include "PriceLookup.h"
#include "ScriptedMessages.h"
#include "TestData.h"
#include "TestDatabase.h"

#include <gtest/gtest.h>

namespace {

using namespace TestData;

// Three kilometre ranges and two kilogram ranges; the main price list
// (group 0) and one named group fill every cell with different amounts.
class PriceLookupTest : public testing::Test
{
protected:
    void SetUp() override
    {
        Connection &c = db.connection();
        upTo50 = addKilometreRange(c, 0, 50);
        upTo100 = addKilometreRange(c, 51, 100);
        upTo200 = addKilometreRange(c, 101, 200);
        light = addKilogramRange(c, 0, 12344);
        heavy = addKilogramRange(c, 12345, 24000);
        group = addGroup(c, QStringLiteral("Chłodnie"));
        for (int row : {upTo50, upTo100, upTo200}) {
            addCell(c, {.group = 0, .row = row, .column = light, .amount = 100.0 * row + 1});
            addCell(c, {.group = 0, .row = row, .column = heavy, .amount = 100.0 * row + 2});
            addCell(c, {.group = group, .row = row, .column = light, .amount = 1000.0 * row + 1});
        }
    }

    double amount(int groupKey, int km, double tonnes)
    {
        return PriceLookup::amount(db.connection(), groupKey, km, tonnes);
    }

    TestDatabase db;
    int upTo50 = 0, upTo100 = 0, upTo200 = 0, light = 0, heavy = 0, group = 0;
};

} // namespace

TEST_F(PriceLookupTest, BothBoundsOfARangeBelongToItTonnesAreRoundedKilogramsAndTheGroupChooses)
{
    EXPECT_DOUBLE_EQ(amount(0, 100, 1.0), 100.0 * upTo100 + 1.0);
    EXPECT_DOUBLE_EQ(amount(0, 51, 1.0), 100.0 * upTo100 + 1.0);
    EXPECT_DOUBLE_EQ(amount(0, 50, 1.0), 100.0 * upTo50 + 1.0);
    EXPECT_DOUBLE_EQ(amount(0, 101, 1.0), 100.0 * upTo200 + 1.0);
    EXPECT_DOUBLE_EQ(amount(0, 0, 0.0), 100.0 * upTo50 + 1.0);
    // Tonnes are looked up as rounded kilograms.
    EXPECT_EQ(PriceLookup::kilograms(12.345), 12345);
    EXPECT_EQ(PriceLookup::kilograms(12.3444), 12344);
    EXPECT_EQ(PriceLookup::kilograms(12.3446), 12345);
    EXPECT_DOUBLE_EQ(amount(0, 80, 12.345), 100.0 * upTo100 + 2.0);
    EXPECT_DOUBLE_EQ(amount(0, 80, 12.344), 100.0 * upTo100 + 1.0);
    // The group chooses the price list.
    EXPECT_DOUBLE_EQ(amount(group, 150, 2.0), 1000.0 * upTo200 + 1.0);
    EXPECT_DOUBLE_EQ(amount(0, 150, 2.0), 100.0 * upTo200 + 1.0);

    // Nothing matching gives zero without a message.
    EXPECT_DOUBLE_EQ(amount(0, 201, 1.0), 0.0);      // beyond the last distance
    EXPECT_DOUBLE_EQ(amount(0, 80, 24.001), 0.0);    // beyond the last weight
    EXPECT_DOUBLE_EQ(amount(group, 80, 20.0), 0.0);  // the group has no such cell
    EXPECT_DOUBLE_EQ(amount(777, 80, 1.0), 0.0);     // no such group
    EXPECT_TRUE(scriptedMessages().shown().empty());
}
