#include "AmountInWords.h"
#include "Money.h"

#include <gtest/gtest.h>

TEST(RoundTo2, DecidesOnTheThirdDecimalDigit)
{
    EXPECT_DOUBLE_EQ(Money::RoundTo2(2.345), 2.35);
    EXPECT_DOUBLE_EQ(Money::RoundTo2(2.344), 2.34);
    EXPECT_DOUBLE_EQ(Money::RoundTo2(2.3449), 2.34);
    // Held in binary as 1.11499999..., and still rounded up by its digit.
    EXPECT_DOUBLE_EQ(Money::RoundTo2(1.115), 1.12);
    EXPECT_DOUBLE_EQ(Money::RoundTo2(123456.789), 123456.79);
    EXPECT_DOUBLE_EQ(Money::RoundTo2(7.0), 7.0);
    EXPECT_DOUBLE_EQ(Money::RoundTo2(0.0), 0.0);
    // Values whose decimal text runs to hundreds of digits.
    for (const double tiny : {1e-300, -1e-300, 4.9e-324, 0.000999})
        EXPECT_EQ(Money::RoundTo2(tiny), 0.0) << tiny;
}

TEST(RoundTo2, AddsTheCentAlsoBelowZero)
{
    EXPECT_DOUBLE_EQ(Money::RoundTo2(-1.005), -0.99);
    EXPECT_DOUBLE_EQ(Money::RoundTo2(-2.344), -2.34);
    EXPECT_DOUBLE_EQ(Money::RoundTo2(-2.346), -2.33);
    EXPECT_DOUBLE_EQ(Money::RoundTo2(-0.005), 0.01);
}

TEST(RoundCentsToEven, TiesGoToTheEvenCent)
{
    EXPECT_DOUBLE_EQ(Money::RoundCentsToEven(0.125), 0.12);
    EXPECT_DOUBLE_EQ(Money::RoundCentsToEven(0.375), 0.38);
    EXPECT_DOUBLE_EQ(Money::RoundCentsToEven(10.0049), 10.0);
}

namespace {

QString words(double amount)
{
    return AmountInWords::words(amount);
}

} // namespace

TEST(AmountInWords, WordsSmallAmountsWithTheGroszeAsAFraction)
{
    EXPECT_EQ(words(0), QStringLiteral("00/100"));
    EXPECT_EQ(words(1.00), QStringLiteral("jeden 00/100"));
    EXPECT_EQ(words(12.50), QStringLiteral("dwanaście 50/100"));
    EXPECT_EQ(words(10), QStringLiteral("dziesięć 00/100"));
    EXPECT_EQ(words(11), QStringLiteral("jedenaście 00/100"));
    EXPECT_EQ(words(19.99), QStringLiteral("dziewiętnaście 99/100"));
    EXPECT_EQ(words(20.01), QStringLiteral("dwadzieścia 01/100"));
    EXPECT_EQ(words(115), QStringLiteral("sto piętnaście 00/100"));
    EXPECT_EQ(words(999), QStringLiteral("dziewięćset dziewięćdziesiąt dziewięć 00/100"));
}

TEST(AmountInWords, GroszeRoundedUpDoNotCarryIntoTheZloty)
{
    EXPECT_EQ(words(12.999), QStringLiteral("dwanaście 00/100"));
    EXPECT_EQ(words(12.996), QStringLiteral("dwanaście 00/100"));
    EXPECT_EQ(words(12.994), QStringLiteral("dwanaście 99/100"));
}

TEST(AmountInWords, ThousandsTakeTheFormOfTheirLastDigit)
{
    EXPECT_EQ(words(1000), QStringLiteral("jeden tysiąc  00/100"));
    EXPECT_EQ(words(1500), QStringLiteral("jeden tysiąc  pięćset 00/100"));
    EXPECT_EQ(words(1999),
              QStringLiteral("jeden tysiąc  dziewięćset dziewięćdziesiąt dziewięć 00/100"));
    EXPECT_EQ(words(2000), QStringLiteral("dwa tysiące  00/100"));
    EXPECT_EQ(words(5000), QStringLiteral("pięć tysięcy  00/100"));
    EXPECT_EQ(words(12000), QStringLiteral("dwanaście tysięcy  00/100"));
    EXPECT_EQ(words(21000), QStringLiteral("dwadzieścia jeden tysięcy  00/100"));
    EXPECT_EQ(words(22000), QStringLiteral("dwadzieścia dwa tysiące  00/100"));
    EXPECT_EQ(words(25000), QStringLiteral("dwadzieścia pięć tysięcy  00/100"));
    EXPECT_EQ(words(212000), QStringLiteral("dwieście dwanaście tysiące  00/100"));
    EXPECT_EQ(words(999999.99),
              QStringLiteral("dziewięćset dziewięćdziesiąt dziewięć tysięcy  "
                             "dziewięćset dziewięćdziesiąt dziewięć 99/100"));
}

TEST(AmountInWords, WordsOnlyTheFirstDigitOfTheMillions)
{
    EXPECT_EQ(words(2345678.90),
              QStringLiteral(" dwa miliony  trzysta czterdzieści pięć tysięcy  "
                             "sześćset siedemdziesiąt osiem 90/100"));
    EXPECT_EQ(words(1001000), QStringLiteral(" jeden milion  tysiąc  00/100"));
    EXPECT_EQ(words(2000000), QStringLiteral(" dwa miliony  00/100"));
    EXPECT_EQ(words(5000001), QStringLiteral(" pięć milionów  jeden 00/100"));
    // The accepted limit: ten million reads as one million.
    EXPECT_EQ(words(10000000), QStringLiteral(" jeden milion  00/100"));
}

TEST(AmountInWords, NegativeAmountsAreWordedByTheirMagnitude)
{
    EXPECT_EQ(words(-12.5), QStringLiteral("dwanaście 50/100"));
}
