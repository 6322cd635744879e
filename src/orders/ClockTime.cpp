#include "ClockTime.h"

#include <QDateTime>
#include <QRegularExpression>

#include <limits>

namespace ClockTime {

std::optional<QTime> parse(const QString &text)
{
    static const QRegularExpression pattern(
        QStringLiteral("^\\s*(\\d{1,2})\\s*:\\s*(\\d{1,2})\\s*$"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const int hour = match.captured(1).toInt();
    const int minute = match.captured(2).toInt();
    if (hour > 23 || minute > 59)
        return std::nullopt;
    return QTime(hour, minute);
}

QString text(DateTime value)
{
    if (value.isNull())
        return QStringLiteral("00:00");
    return value.time().toString(QStringLiteral("HH:mm"));
}

DateTime combine(DateTime day, const QTime &time)
{
    if (day.isNull())
        return day;
    const DateTime joined = DateTime::fromDateTime(QDateTime(day.date(), time, Qt::UTC));
    // Midnight of the day count's first day is the value 0, which means no
    // date; the smallest count after it is the same day and hour and stays a date.
    if (joined.isNull())
        return DateTime(std::numeric_limits<double>::denorm_min());
    return joined;
}

QString invalidTimeMessage(const QString &text)
{
    return QStringLiteral("'%1' nie jest poprawną godziną. Wpisz godzinę w postaci GG:MM, "
                          "od 00:00 do 23:59.")
        .arg(text);
}

} // namespace ClockTime
