#include "TypedDate.h"

#include <gtest/gtest.h>

namespace {

const QDate Today(2025, 6, 14);

std::optional<QDate> read(const char16_t *text)
{
    return TypedDate::read(QStringView(text), Today);
}

} // namespace

TEST(TypedDate, TheUsualPolishFormsAreRead)
{
    const QDate expected(2026, 11, 25);
    EXPECT_EQ(read(u"2026-11-25"), expected);
    EXPECT_EQ(read(u"25.11.2026"), expected);
    EXPECT_EQ(read(u"25.11.26"), expected);
    EXPECT_EQ(read(u"20261125"), expected);
    EXPECT_EQ(read(u"25112026"), expected);
    EXPECT_EQ(read(u"251126"), expected);
    EXPECT_EQ(read(u" 25/11/2026 "), expected);
    EXPECT_EQ(read(u"2026.11.25"), expected);
    EXPECT_EQ(read(u"5.1.2026"), QDate(2026, 1, 5));
    EXPECT_EQ(read(u"2026-1-5"), QDate(2026, 1, 5));
}

TEST(TypedDate, TwoDigitYearsLieWithinEightyYearsBackAndTwentyAhead)
{
    EXPECT_EQ(read(u"01.01.45"), QDate(2045, 1, 1));
    EXPECT_EQ(read(u"01.01.46"), QDate(1946, 1, 1));
    EXPECT_EQ(read(u"01.01.00"), QDate(2000, 1, 1));
    EXPECT_EQ(read(u"01.01.99"), QDate(1999, 1, 1));
    EXPECT_EQ(TypedDate::read(u"01.01.10", QDate(2095, 1, 1)), QDate(2110, 1, 1));
    EXPECT_EQ(TypedDate::read(u"01.01.16", QDate(2095, 1, 1)), QDate(2016, 1, 1));
}

TEST(TypedDate, ABlankTextIsNoDateAndOtherTextsAreNoDates)
{
    EXPECT_EQ(read(u""), QDate());
    EXPECT_EQ(read(u"   "), QDate());
    for (const char16_t *text : {u"32.11.2026", u"29.02.2026", u"2026-13-01", u"2026-11",
                                 u"2026", u"25.11", u"1.2.3", u"1899-12-31", u"0226-11-25",
                                 u"2026--11-25", u"2026-11-25x", u"jutro", u"123456789"})
        EXPECT_EQ(read(text), std::nullopt) << QString::fromUtf16(text).toStdString();
    EXPECT_EQ(read(u"29.02.2028"), QDate(2028, 2, 29));
}

TEST(TypedDate, OnlyDigitsAndSeparatorsCanBeTyped)
{
    EXPECT_TRUE(TypedDate::fits(u"25.11.2026"));
    EXPECT_TRUE(TypedDate::fits(u"2026-11-"));
    EXPECT_TRUE(TypedDate::fits(u"25/11 26"));
    EXPECT_FALSE(TypedDate::fits(u"25.11.2O26"));
    EXPECT_FALSE(TypedDate::fits(u"jutro"));
}

TEST(TypedDate, TheMessageSaysWhatIsWrongAndHowToWriteADate)
{
    EXPECT_EQ(TypedDate::problem(u"25.11.2026", Today, false), "");
    EXPECT_EQ(TypedDate::problem(u"", Today, true), "");
    EXPECT_EQ(TypedDate::problem(u" 32.11.2026", Today, true),
              "„32.11.2026” nie jest datą. Wpisz datę jako rrrr-mm-dd, dd.mm.rrrr, dd.mm.rr "
              "lub rrrrmmdd.");
    EXPECT_EQ(TypedDate::problem(u"", Today, false),
              "Wpisz datę jako rrrr-mm-dd, dd.mm.rrrr, dd.mm.rr lub rrrrmmdd.");
}
