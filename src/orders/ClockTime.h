#pragma once

#include "DateTime.h"

#include <QString>
#include <QTime>

#include <optional>

// The hour fields of the order editor: "HH:mm" typed into a mask that
// allows a blank first digit.
namespace ClockTime {

// "7:05", " 7:05" and "07:05" are five past seven; a blank or a value
// beyond 23:59 is no time at all.
std::optional<QTime> parse(const QString &text);

// The time of a date and time as "HH:mm"; "00:00" for the null date.
QString text(DateTime value);

// A day with a time of day; the null date stays null whatever the time,
// since a time without its day says nothing.
DateTime combine(DateTime day, const QTime &time);

// The message that stops a save when a time does not convert.
QString invalidTimeMessage(const QString &text);

} // namespace ClockTime
