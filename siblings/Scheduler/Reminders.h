#pragma once

#include "TTerminyObj.h"
#include "TableRecordEditing.h"
#include "TableRegister.h"

#include <QDate>

#include <memory>

// The scheduler's reminders: a day, a time of day or none, a text, the user
// they belong to and a done flag. Each user sees only their own.
namespace Reminders {

// The reminders of a month (the first day of it, which the caller may
// change between listings), by day and time.
TableRegister<TTerminyObj>::Definition month(int userID, std::shared_ptr<QDate> firstDay);
// What is due: the reminders not done of today and of the days before.
TableRegister<TTerminyObj>::Definition due(int userID, QDate today);

// day: the day a new reminder starts on.
TableRecordEditing<TTerminyObj>::Definition editing(int userID, QDate day);

// A time of day must read "HH:mm" (or "H:mm"); empty is the whole day.
Problem check(const TTerminyObj &reminder);

// Marks a reminder done or not done; false when it is not there. A
// database failure throws DbError.
bool setDone(Connection &connection, int key, bool done);

} // namespace Reminders
