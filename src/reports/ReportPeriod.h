#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>

// The days a statement covers, both ends included.
struct ReportPeriod
{
    QDate from;
    QDate to;

    // The month that day falls in: what every statement's dialog offers first.
    static ReportPeriod monthOf(const QDate &day);

    // The first moment of the first day and the last of the last one, for
    // binding: a date stored with a time of day is still within the period.
    QDateTime start() const;
    QDateTime end() const;
    // " od 2026-03-01 do 2026-03-31"
    QString text() const;
};
