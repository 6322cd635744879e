#pragma once

#include <QDate>
#include <QString>
#include <QStringView>

#include <optional>

// A date as a user types it, in the usual Polish ways: 2026-11-25,
// 25.11.2026, 25.11.26 and the digits alone, 20261125 (also 25112026 and
// 251126). A day or month may have one digit; '.', '-', '/' and a blank
// all separate. A two-digit year is the one within 80 years before and
// 20 years after today. Years run from 1900 to 9999.
namespace TypedDate {

// Whether every character typed so far can belong to such a date.
bool fits(QStringView typed);

// The date of a text: a null QDate for a blank text, nothing for a text
// that is not a date.
std::optional<QDate> read(QStringView typed, const QDate &today);

// Why a date field cannot take the text, as a Polish sentence; empty
// when it can. A blank text is "no date" where the field allows it.
QString problem(QStringView typed, const QDate &today, bool blankAllowed);

} // namespace TypedDate
