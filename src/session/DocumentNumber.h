#pragma once

#include "DateTime.h"

#include <QString>

// Document numbers (invoices and the like) built from a mask kept in the
// configuration, e.g. "%####;/;%MM;/;%R" for 0042/03/2024. The mask is a
// list of tokens separated by ";" (blanks are ignored). A token that does not
// begin with "%" is copied as it is; otherwise the letter after "%" is a
// code and the token's length sets the width of its value:
//   d, D  the date as a date text      m  the month, width = length - 1
//   M     the month in two digits      r  the last two digits of the year
//   R     the full year                s, S  one blank
//   #     the number, zero-padded to length - 1 (a longer number stays whole)
//   T, t  the text, blank-padded on the left to length - 1
// Any other code adds nothing.
namespace DocumentNumber {

// At most 255 characters.
QString format(const QString &mask, int number, const QString &text, DateTime date);

// The date as the module writes dates in texts and on screen.
QString dateText(DateTime date);

} // namespace DocumentNumber
