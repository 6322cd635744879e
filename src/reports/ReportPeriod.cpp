#include "ReportPeriod.h"

#include "Format.h"

#include <QTime>

ReportPeriod ReportPeriod::monthOf(const QDate &day)
{
    const QDate first(day.year(), day.month(), 1);
    return {first, first.addMonths(1).addDays(-1)};
}

QDateTime ReportPeriod::start() const
{
    return QDateTime(from, QTime(0, 0), Qt::UTC);
}

QDateTime ReportPeriod::end() const
{
    return QDateTime(to, QTime(23, 59, 59, 999), Qt::UTC);
}

QString ReportPeriod::text() const
{
    return QStringLiteral(" od ") + Format::date(from) + QStringLiteral(" do ")
        + Format::date(to);
}
