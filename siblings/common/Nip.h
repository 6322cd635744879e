#pragma once

#include <QString>

// Polish tax identification numbers (NIP): ten digits, the last of them a
// check digit (weights 6 5 7 2 3 4 5 6 7, sum modulo 11). People write them
// with dashes or blanks and sometimes with the EU prefix "PL".
namespace Nip {

// The ten digits, or an empty text when the number has other characters
// or another length.
QString digits(const QString &text);

bool isValid(const QString &text);

// What to tell the user about a number that is not valid; empty when it is.
QString problem(const QString &text);

} // namespace Nip
