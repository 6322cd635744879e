#pragma once

#include <QDate>
#include <QDateTime>
#include <QMetaType>

// A date and time as a day count since 1899-12-30, the fraction being the
// time of day; 0 means "no date". This is how the rest of the suite stores
// dates, so records keep them in this form and convert at the edges.
class DateTime
{
public:
    constexpr DateTime() = default;
    constexpr explicit DateTime(double days) : m_days(days) {}

    static DateTime fromDate(const QDate &date);
    static DateTime fromDateTime(const QDateTime &dateTime);
    static DateTime now();
    static DateTime today();

    constexpr double days() const { return m_days; }
    // A value that is not a finite number (a corrupt or uninitialised field)
    // counts as no date rather than as a day no calendar has.
    constexpr bool isNull() const { return m_days == 0.0 || m_days != m_days || m_days - m_days != 0.0; }

    // Invalid for the null value and beyond any calendar's range.
    QDate date() const;
    QTime time() const;
    // Wall time in UTC, so that no local daylight-saving gap can make it invalid.
    QDateTime toDateTime() const;

    friend constexpr bool operator==(DateTime a, DateTime b) { return a.m_days == b.m_days; }
    friend constexpr auto operator<=>(DateTime a, DateTime b) { return a.m_days <=> b.m_days; }

private:
    double m_days = 0.0;
};

Q_DECLARE_METATYPE(DateTime)
