#pragma once

#include <QString>
#include <QStringView>

#include <optional>

// A number as a user types it into a field that keeps a given number of
// decimals within a range. The field refuses, key by key, what cannot
// belong to such a number, and never corrects what it can read: a value
// outside the range is named in a message, not clipped.
namespace TypedNumber {

struct Limits
{
    int decimals = 0;
    double minimum = 0.0;
    double maximum = 0.0;
};

// Whether every character typed so far can belong to a number of the
// field: digits with blanks between groups of them, one decimal point
// (',' or '.') when the field keeps decimals and no more decimals than
// it keeps, a leading minus when the field takes negative numbers.
bool fits(QStringView typed, const Limits &limits);

// The value of a text that fits: a blank text is 0 and a decimal point
// with nothing after it is ignored ("12," is 12); nothing when the text
// holds no digit ("-", ",").
std::optional<double> read(QStringView typed);

// Why the field cannot take the text, as a Polish sentence; empty when
// it can.
QString problem(QStringView typed, const Limits &limits);

// The value with no more decimals than the field keeps, rounded half
// away from zero on its decimal digits.
double rounded(double value, int decimals);

// The value as it is typed: no grouping, no literals, no trailing zeros.
QString editable(double value, int decimals);

} // namespace TypedNumber
