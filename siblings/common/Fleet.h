#pragma once

#include "Choices.h"
#include "EditorFields.h"

#include <QString>

class Connection;

// What the registers of drivers, vehicles, trailers and road cards share:
// each other's records offered by name, and the checks of a vehicle's or
// trailer's registration and year.
namespace Fleet {

// Drivers as "first name surname", by surname; vehicles and trailers by
// registration.
ChoiceSource drivers();
ChoiceSource vehicles();
ChoiceSource trailers();

// A registration already given to another record of the table (letter
// case and blanks around ignored), then a year of production that is not
// plausible (0 means not given). A database failure throws DbError.
Problem registrationOrYearProblem(Connection &connection, const QString &table,
                                  const QString &key, int ownKey, const QString &registration,
                                  int year);

} // namespace Fleet
