#include "DateTime.h"


#include <cmath>

namespace {

constexpr qint64 MillisecondsPerDay = 24LL * 60 * 60 * 1000;

QDate epoch()
{
    return QDate(1899, 12, 30);
}

// Far beyond any date a document carries, yet well inside what QDate and a
// 64-bit day offset hold, so the conversion below cannot overflow.
constexpr double LargestDayCount = 1e11;

} // namespace

DateTime DateTime::fromDate(const QDate &date)
{
    if (!date.isValid())
        return DateTime();
    return DateTime(static_cast<double>(epoch().daysTo(date)));
}

DateTime DateTime::fromDateTime(const QDateTime &dateTime)
{
    if (!dateTime.isValid())
        return DateTime();
    const double wholeDays = static_cast<double>(epoch().daysTo(dateTime.date()));
    const double fraction = dateTime.time().msecsSinceStartOfDay()
                            / static_cast<double>(MillisecondsPerDay);
    // Before the epoch the fraction still counts forward from midnight, so it
    // is subtracted from the (negative) day number.
    return DateTime(wholeDays < 0 ? wholeDays - fraction : wholeDays + fraction);
}

DateTime DateTime::now()
{
    return fromDateTime(QDateTime::currentDateTime());
}

DateTime DateTime::today()
{
    return fromDate(QDate::currentDate());
}

QDate DateTime::date() const
{
    if (isNull() || std::fabs(m_days) > LargestDayCount)
        return QDate();
    return epoch().addDays(static_cast<qint64>(std::trunc(m_days)));
}

QTime DateTime::time() const
{
    if (isNull() || std::fabs(m_days) > LargestDayCount)
        return QTime();
    const double fraction = std::fabs(m_days - std::trunc(m_days));
    auto ms = static_cast<int>(std::llround(fraction * MillisecondsPerDay));
    if (ms >= MillisecondsPerDay)
        ms = static_cast<int>(MillisecondsPerDay - 1);
    return QTime::fromMSecsSinceStartOfDay(ms);
}

QDateTime DateTime::toDateTime() const
{
    if (!date().isValid())
        return QDateTime();
    return QDateTime(date(), time(), Qt::UTC);
}
