#include "ClockTime.h"

#include <gtest/gtest.h>

TEST(ClockTime, ReadsHoursWithOrWithoutALeadingZero)
{
    for (const char *text : {"07:05", " 7:05", "7:05"})
        EXPECT_EQ(ClockTime::parse(QString::fromLatin1(text)), QTime(7, 5)) << text;
    EXPECT_EQ(ClockTime::parse(QStringLiteral("23:59")), QTime(23, 59));
    EXPECT_EQ(ClockTime::parse(QStringLiteral("00:00")), QTime(0, 0));
}

TEST(ClockTime, RefusesWhatIsNoTimeOfDay)
{
    for (const char *text : {"24:00", "12:60", ":", "  :  ", "", "1230", "ab:cd", "12:5x"})
        EXPECT_FALSE(ClockTime::parse(QString::fromLatin1(text))) << text;
}

TEST(ClockTime, SplitsAndJoinsDayAndHour)
{
    const DateTime day = DateTime::fromDate(QDate(2024, 3, 31));
    const DateTime joined = ClockTime::combine(day, QTime(2, 30));
    EXPECT_EQ(joined.date(), QDate(2024, 3, 31));
    EXPECT_EQ(ClockTime::text(joined), QStringLiteral("02:30"));
    EXPECT_EQ(ClockTime::text(DateTime()), QStringLiteral("00:00"));
    EXPECT_TRUE(ClockTime::combine(DateTime(), QTime(8, 0)).isNull());

    // The first day of the day count at midnight would be the value 0.
    for (const DateTime firstDay : {DateTime(0.25), DateTime(-0.5)}) {
        const DateTime midnight = ClockTime::combine(firstDay, QTime(0, 0));
        EXPECT_FALSE(midnight.isNull());
        EXPECT_EQ(midnight.date(), QDate(1899, 12, 30));
        EXPECT_EQ(ClockTime::text(midnight), QStringLiteral("00:00"));
    }
}

TEST(ClockTime, TheMessageQuotesTheText)
{
    EXPECT_TRUE(ClockTime::invalidTimeMessage(QStringLiteral("25:61")).startsWith(u"'25:61'"));
}
