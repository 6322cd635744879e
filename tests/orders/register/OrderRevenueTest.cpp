#include "OrderRevenue.h"

#include <gtest/gtest.h>

namespace {

// Every quantity and rate differs, so pairing a quantity with another's
// rate changes the sum: 10 * 2 + 3 * 5 + 2 * 7 + 4 * 0.5 = 51.
OrderRevenueFigures pricedFigures(int wholeAmount)
{
    OrderRevenueFigures figures;
    figures.wholeAmount = wholeAmount;
    figures.loadedKm = 10;
    figures.loadedKmRate = 2.0;
    figures.emptyKm = 3.0;
    figures.emptyKmRate = 5.0;
    figures.hours = 2.0;
    figures.hourRate = 7.0;
    figures.pallets = 4;
    figures.palletRate = 0.5;
    return figures;
}

} // namespace

TEST(OrderRevenue, AnAgreedAmountOfOneOrMoreIsTheRevenueBelowOneTheRatesPrice)
{
    EXPECT_DOUBLE_EQ(orderRevenue(pricedFigures(1)), 1.0);
    EXPECT_DOUBLE_EQ(orderRevenue(pricedFigures(1235)), 1235.0);
    EXPECT_DOUBLE_EQ(orderRevenue(pricedFigures(0)), 51.0);
    EXPECT_DOUBLE_EQ(orderRevenue(pricedFigures(-5)), 51.0);
}
