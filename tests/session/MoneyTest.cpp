#include "AmountInWords.h"
#include "Money.h"

#include <gtest/gtest.h>

TEST(Money, RoundTo2DecidesOnTheThirdDigitAlsoBelowZeroRoundCentsToEvenOnTies)
{
    const std::pair<double, double> cases[] = {
        {2.345, 2.35}, {2.344, 2.34}, {2.3449, 2.34},
        // Held in binary as 1.11499999..., and still rounded up by its digit.
        {1.115, 1.12}, {123456.789, 123456.79}, {7.0, 7.0}, {0.0, 0.0},
        {-1.005, -0.99}, {-2.344, -2.34}, {-2.346, -2.33}, {-0.005, 0.01},
    };
    for (const auto &[amount, rounded] : cases)
        EXPECT_DOUBLE_EQ(Money::RoundTo2(amount), rounded) << amount;
    // Values whose decimal text runs to hundreds of digits.
    for (const double tiny : {1e-300, -1e-300, 4.9e-324, 0.000999})
        EXPECT_EQ(Money::RoundTo2(tiny), 0.0) << tiny;

    // Rounding to the even cent, for currency conversions.
    EXPECT_DOUBLE_EQ(Money::RoundCentsToEven(0.125), 0.12);
    EXPECT_DOUBLE_EQ(Money::RoundCentsToEven(0.375), 0.38);
    EXPECT_DOUBLE_EQ(Money::RoundCentsToEven(10.0049), 10.0);
}

TEST(AmountInWords, WordsTheZlotyAndGivesTheGroszeAsAFraction)
{
    const std::pair<double, const char *> cases[] = {
        {0, "00/100"},
        {1.00, "jeden 00/100"},
        {12.50, "dwanaście 50/100"},
        {10, "dziesięć 00/100"},
        {11, "jedenaście 00/100"},
        {19.99, "dziewiętnaście 99/100"},
        {20.01, "dwadzieścia 01/100"},
        {115, "sto piętnaście 00/100"},
        {999, "dziewięćset dziewięćdziesiąt dziewięć 00/100"},
        // Grosze rounded up do not carry into the zloty.
        {12.999, "dwanaście 00/100"},
        {12.996, "dwanaście 00/100"},
        {12.994, "dwanaście 99/100"},
        // Thousands take the form of their last digit.
        {1000, "jeden tysiąc  00/100"},
        {1500, "jeden tysiąc  pięćset 00/100"},
        {1999, "jeden tysiąc  dziewięćset dziewięćdziesiąt dziewięć 00/100"},
        {2000, "dwa tysiące  00/100"},
        {5000, "pięć tysięcy  00/100"},
        {12000, "dwanaście tysięcy  00/100"},
        {21000, "dwadzieścia jeden tysięcy  00/100"},
        {22000, "dwadzieścia dwa tysiące  00/100"},
        {25000, "dwadzieścia pięć tysięcy  00/100"},
        {212000, "dwieście dwanaście tysiące  00/100"},
        {999999.99, "dziewięćset dziewięćdziesiąt dziewięć tysięcy  "
                    "dziewięćset dziewięćdziesiąt dziewięć 99/100"},
        // Only the first digit of the millions is worded; ten million is the
        // accepted limit and reads as one million.
        {2345678.90, " dwa miliony  trzysta czterdzieści pięć tysięcy  "
                     "sześćset siedemdziesiąt osiem 90/100"},
        {1001000, " jeden milion  tysiąc  00/100"},
        {2000000, " dwa miliony  00/100"},
        {5000001, " pięć milionów  jeden 00/100"},
        {10000000, " jeden milion  00/100"},
        // A negative amount by its magnitude.
        {-12.5, "dwanaście 50/100"},
    };
    for (const auto &[amount, words] : cases)
        EXPECT_EQ(AmountInWords::words(amount), QString::fromUtf8(words)) << amount;
}
