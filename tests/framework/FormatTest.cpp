#include "DateTime.h"
#include "Format.h"

#include <gtest/gtest.h>

namespace {

// The thousands separator is a non-breaking space; tests write it as '_'.
QString polish(const char *text)
{
    return QString::fromUtf8(text).replace(u'_', Format::ThousandSeparator);
}

} // namespace

TEST(FormatNumber, AmountPatternsGroupThousandsWithNonBreakingSpaces)
{
    EXPECT_EQ(Format::number(1234.5, u"#,##0.00"), polish("1_234,50"));
    EXPECT_EQ(Format::number(-1234567.891, u"#,##0.00"), polish("-1_234_567,89"));
    EXPECT_EQ(Format::number(0, u"#,##0.00"), "0,00");
    EXPECT_EQ(Format::number(1234567.5, u"###,##0.00"), polish("1_234_567,50"));
    EXPECT_EQ(Format::number(12, u"#######,##0.00"), "12,00");
    EXPECT_EQ(Format::number(1234, u",0.00"), polish("1_234,00"));
    EXPECT_EQ(Format::number(1234.5678, u"#,##0.000"), polish("1_234,568"));
    EXPECT_EQ(Format::number(999.95, u"#,##0.0"), polish("1_000,0"));
    EXPECT_EQ(Format::number(1234567, u"#,##0"), polish("1_234_567"));
}

TEST(FormatNumber, PatternsWithoutGroupingAndWholeNumbers)
{
    EXPECT_EQ(Format::number(1234.5, u"##0.00"), "1234,50");
    EXPECT_EQ(Format::number(0.5, u"##0.00"), "0,50");
    EXPECT_EQ(Format::number(7, u"#0"), "7");
    EXPECT_EQ(Format::number(0, u"#0"), "0");
    EXPECT_EQ(Format::number(0.4, u"#,##0"), "0");
}

TEST(FormatNumber, RoundsHalfAwayFromZeroOnTheDecimalValue)
{
    // 2.675 is 2.67499999... in binary; a clerk expects 2,68.
    EXPECT_EQ(Format::number(2.675, u"##0.00"), "2,68");
    EXPECT_EQ(Format::number(-2.675, u"##0.00"), "-2,68");
    EXPECT_EQ(Format::number(0.005, u"##0.00"), "0,01");
    EXPECT_EQ(Format::number(2.5, u"#,##0"), "3");
    EXPECT_EQ(Format::number(9.995, u"##0.00"), "10,00");
    // A value that rounds to zero has no sign.
    EXPECT_EQ(Format::number(-0.001, u"##0.00"), "0,00");
}

TEST(FormatNumber, PercentAndUnitsAreLiterals)
{
    EXPECT_EQ(Format::number(23, u",0.00 %"), "23,00 %");
    EXPECT_EQ(Format::number(12.5, u"#,##0.00%"), "12,50%");
    EXPECT_EQ(Format::number(1520, u",0 km"), polish("1_520 km"));
    EXPECT_EQ(Format::number(-3, u",0 km"), "-3 km");
}

TEST(FormatNumber, GeneralFormat)
{
    EXPECT_EQ(Format::general(1234.5), "1234,5");
    EXPECT_EQ(Format::general(100), "100");
    EXPECT_EQ(Format::general(0), "0");
    EXPECT_EQ(Format::general(0.1), "0,1");
    EXPECT_EQ(Format::general(-2.25), "-2,25");
    EXPECT_EQ(Format::general(1.0 / 3.0), "0,333333333333333");
    EXPECT_EQ(Format::general(0.00012), "0,00012");
    EXPECT_EQ(Format::general(1e20), "1E20");
    EXPECT_EQ(Format::general(1.5e-7), "1,5E-7");
}

TEST(FormatDate, DatesAreWrittenYearFirst)
{
    EXPECT_EQ(Format::date(QDate(2024, 3, 5)), "2024-03-05");
    EXPECT_EQ(Format::date(QDate()), "");
    EXPECT_EQ(Format::date(DateTime()), "");
    EXPECT_EQ(Format::date(DateTime::fromDate(QDate(2023, 12, 31))), "2023-12-31");
    EXPECT_EQ(Format::dateTime(
                  DateTime::fromDateTime(QDateTime(QDate(2024, 1, 2), QTime(8, 5), Qt::UTC))),
              "2024-01-02 08:05");
}

TEST(FormatParse, NumbersAsListsWriteThem)
{
    EXPECT_EQ(Format::parseNumber(polish("1_234,50")), 1234.5);
    EXPECT_EQ(Format::parseNumber(u"-12.5"), -12.5);
    EXPECT_EQ(Format::parseNumber(u"7"), 7.0);
    EXPECT_FALSE(Format::parseNumber(u"1.234,50"));
    EXPECT_FALSE(Format::parseNumber(u"abc"));
    EXPECT_FALSE(Format::parseNumber(u""));
    EXPECT_FALSE(Format::parseNumber(u"inf"));
}

TEST(FormatParse, DatesWithAndWithoutTime)
{
    EXPECT_EQ(Format::parseDateTime(u"2024-03-05")->date(), QDate(2024, 3, 5));
    // Inside the spring daylight-saving gap of Warsaw, still a valid value.
    const auto gap = Format::parseDateTime(u"2024-03-31 02:30");
    ASSERT_TRUE(gap);
    EXPECT_EQ(gap->time(), QTime(2, 30));
    EXPECT_EQ(Format::parseDateTime(u"2024-03-05 10:11:12")->time(), QTime(10, 11, 12));
    EXPECT_FALSE(Format::parseDateTime(u"05.03.2024"));
    EXPECT_FALSE(Format::parseDateTime(u"2024-02-30"));
    EXPECT_FALSE(Format::parseDateTime(u"xxxx-03-01"));
    EXPECT_FALSE(Format::parseDateTime(u"abcd-12-31 10:00"));
    EXPECT_FALSE(Format::parseDateTime(u"2024-0x-01"));
}
