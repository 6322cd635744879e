#include "OrderRates.h"

#include <gtest/gtest.h>

TEST(OrderRates, EachProductIsRoundedBeforeTheSum)
{
    // 1 x 0.005 is 0.01 four times over: 0.04, where the plain sum would
    // round 0.02 once.
    const OrderQuantities quantities{1, 1.0, 1.0, 1};
    const UnitRates rates{0.005, 0.005, 0.005, 0.005};
    EXPECT_DOUBLE_EQ(OrderRates::priced(quantities, rates), 0.04);
}

TEST(OrderRates, EveryQuantityMeetsItsOwnRate)
{
    const OrderQuantities quantities{10, 2.5, 3.0, 4};
    const UnitRates rates{1.0, 100.0, 10000.0, 1000000.0};
    EXPECT_DOUBLE_EQ(OrderRates::priced(quantities, rates), 10.0 + 250.0 + 30000.0 + 4000000.0);
}

TEST(OrderRates, AnAgreedRateIgnoresTheQuantities)
{
    const OrderQuantities quantities{100, 1.0, 1.0, 1};
    const UnitRates rates{2.0, 2.0, 2.0, 2.0};
    EXPECT_DOUBLE_EQ(OrderRates::total(true, 850.0, quantities, rates), 850.0);
    EXPECT_DOUBLE_EQ(OrderRates::total(false, 850.0, quantities, rates), 206.0);
}
