#include "DateTime.h"

#include <gtest/gtest.h>

#include <limits>

TEST(DateTime, DayCountsFromTheEpochBothWays)
{
    EXPECT_EQ(DateTime::fromDate(QDate(1899, 12, 30)).days(), 0.0);
    EXPECT_EQ(DateTime::fromDate(QDate(1900, 1, 1)).days(), 2.0);
    EXPECT_EQ(DateTime::fromDate(QDate(2026, 11, 22)).days(), 46348.0);
    EXPECT_EQ(DateTime(46348.0).date(), QDate(2026, 11, 22));

    const DateTime noon = DateTime::fromDateTime(QDateTime(QDate(2026, 11, 22), QTime(12, 0)));
    EXPECT_DOUBLE_EQ(noon.days(), 46348.5);
    EXPECT_EQ(noon.time(), QTime(12, 0));

    // Before the epoch the fraction still counts from midnight of that day.
    const DateTime before = DateTime::fromDateTime(QDateTime(QDate(1899, 12, 29), QTime(6, 0)));
    EXPECT_DOUBLE_EQ(before.days(), -1.25);
    EXPECT_EQ(before.date(), QDate(1899, 12, 29));
    EXPECT_EQ(before.time(), QTime(6, 0));
}

TEST(DateTime, ZeroAndValuesNoCalendarHoldsAreNoDate)
{
    EXPECT_TRUE(DateTime::fromDate(QDate()).isNull());
    EXPECT_TRUE(DateTime::fromDateTime(QDateTime()).isNull());
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double days : {0.0, std::numeric_limits<double>::quiet_NaN(), infinity, -infinity}) {
        const DateTime value(days);
        EXPECT_TRUE(value.isNull()) << days;
        EXPECT_FALSE(value.date().isValid()) << days;
        EXPECT_FALSE(value.time().isValid()) << days;
        EXPECT_FALSE(value.toDateTime().isValid()) << days;
    }
    for (const double days : {9.3e18, -9.3e18, 1e300, -1e300}) {
        EXPECT_FALSE(DateTime(days).date().isValid()) << days;
        EXPECT_FALSE(DateTime(days).toDateTime().isValid()) << days;
    }
}

TEST(DateTime, LocalDaylightSavingGapStillConverts)
{
    // 02:30 on the last Sunday of March does not exist in Warsaw; the value
    // must still make a valid date-time to bind.
    const DateTime gap(DateTime::fromDate(QDate(2024, 3, 31)).days() + 2.5 / 24);
    EXPECT_TRUE(gap.toDateTime().isValid());
    EXPECT_EQ(gap.toDateTime().time(), QTime(2, 30));
}
