#pragma once

#include <QByteArray>

// A double as the fifteen significant decimal digits the screens show, so
// that 2.675 rounds to 2.68 as a clerk expects and not to 2.67 as its
// binary value would. value = 0.digits × 10^exponent.
struct DecimalDigits
{
    bool negative = false;
    QByteArray digits;   // no leading zeros; empty for zero
    int exponent = 0;

    static DecimalDigits of(double value);

    // The value times 10^decimals rounded half away from zero, as a digit
    // string without leading zeros ("" for zero).
    QByteArray scaledInteger(int decimals) const;
};
