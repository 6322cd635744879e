#include "DecimalDigits.h"

#include <charconv>
#include <cmath>
#include <iterator>
#include <cstdlib>

namespace {

constexpr int SignificantDigits = 15;

// Adds one to the last digit; a carry out of the first digit grows the text.
void incrementDigits(QByteArray &digits)
{
    for (qsizetype i = digits.size() - 1; i >= 0; --i) {
        if (digits[i] != '9') {
            ++digits[i];
            return;
        }
        digits[i] = '0';
    }
    digits.prepend('1');
}

} // namespace

DecimalDigits DecimalDigits::of(double value)
{
    DecimalDigits result;
    if (value == 0.0 || !std::isfinite(value))
        return result;
    result.negative = value < 0;
    // As printf's "%.14e" writes it, several times faster: the lists
    // format a few numbers on each of their rows.
    char buffer[40] = {};
    std::to_chars(std::begin(buffer), std::end(buffer) - 1, std::fabs(value),
                  std::chars_format::scientific, SignificantDigits - 1);
    // d.ddddddddddddddde±XX
    result.digits.append(buffer[0]);
    result.digits.append(buffer + 2, SignificantDigits - 1);
    result.exponent = std::atoi(buffer + 2 + SignificantDigits) + 1;
    while (result.digits.endsWith('0'))
        result.digits.chop(1);
    return result;
}

QByteArray DecimalDigits::scaledInteger(int decimals) const
{
    const int integerDigits = exponent + decimals;
    if (digits.isEmpty() || integerDigits < 0)
        return {};
    QByteArray result = digits.left(integerDigits);
    while (result.size() < integerDigits)
        result.append('0');
    if (integerDigits < digits.size() && digits[integerDigits] >= '5')
        incrementDigits(result);
    qsizetype firstNonZero = 0;
    while (firstNonZero < result.size() && result[firstNonZero] == '0')
        ++firstNonZero;
    return result.mid(firstNonZero);
}
