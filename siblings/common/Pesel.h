#pragma once

#include <QDate>
#include <QString>

// The Polish personal identity number (PESEL): eleven digits, the first six
// the date of birth (the month carries the century: +80 for the 1800s, +20
// for the 2000s, +40, +60), the last a check digit (weights 1 3 7 9 1 3 7 9
// 1 3, ten minus the last digit of the sum).
namespace Pesel {

bool isValid(const QString &text);

// The date of birth a valid number carries; invalid otherwise.
QDate birthDate(const QString &text);

// What to tell the user about a number that is not valid; empty when it is.
QString problem(const QString &text);

} // namespace Pesel
