#include "Format.h"

#include "DateTime.h"
#include "DecimalDigits.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace Format {

namespace {

constexpr int GeneralPrecision = 15;

struct NumberPattern
{
    QString prefix;
    QString suffix;
    bool grouping = false;
    int minIntegerDigits = 0;
    int minDecimals = 0;
    int maxDecimals = 0;
};

bool isPlaceholder(QChar c)
{
    return c == u'0' || c == u'#' || c == u'.' || c == u',';
}

NumberPattern parsePattern(QStringView pattern)
{
    NumberPattern parsed;
    bool inNumber = false;
    bool afterPoint = false;
    bool seenPlaceholder = false;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern[i];
        if (c == u'"' || c == u'\'') {
            const qsizetype end = pattern.indexOf(c, i + 1);
            const QStringView quoted = pattern.mid(i + 1, (end < 0 ? pattern.size() : end) - i - 1);
            (seenPlaceholder ? parsed.suffix : parsed.prefix) += quoted;
            i = end < 0 ? pattern.size() : end;
            inNumber = false;
            continue;
        }
        if (!isPlaceholder(c) || (seenPlaceholder && !inNumber)) {
            (seenPlaceholder ? parsed.suffix : parsed.prefix) += c;
            inNumber = false;
            continue;
        }
        seenPlaceholder = inNumber = true;
        if (c == u'.') {
            afterPoint = true;
        } else if (c == u',') {
            if (!afterPoint)
                parsed.grouping = true;
        } else if (afterPoint) {
            ++parsed.maxDecimals;
            if (c == u'0')
                parsed.minDecimals = parsed.maxDecimals;
        } else if (c == u'0') {
            ++parsed.minIntegerDigits;
        }
    }
    return parsed;
}

} // namespace

QString number(double value, QStringView pattern)
{
    // Written straight into the result: the lists format several numbers on
    // each of their rows.
    const NumberPattern parsed = parsePattern(pattern);
    const QByteArray scaled = DecimalDigits::of(value).scaledInteger(parsed.maxDecimals);
    const bool negative = value < 0 && !scaled.isEmpty();
    // The scaled digits, padded on the left to at least the decimals.
    const qsizetype count = std::max<qsizetype>(scaled.size(), parsed.maxDecimals);
    const qsizetype padding = count - scaled.size();
    const auto digit = [&](qsizetype i) { return QLatin1Char(i < padding ? '0' : scaled[i - padding]); };
    const qsizetype integers = count - parsed.maxDecimals;
    qsizetype decimals = parsed.maxDecimals;
    while (decimals > parsed.minDecimals && digit(integers + decimals - 1) == QLatin1Char('0'))
        --decimals;
    const qsizetype shown = std::max<qsizetype>(integers, parsed.minIntegerDigits);

    QString result;
    result.reserve(parsed.prefix.size() + parsed.suffix.size() + 2 * shown + decimals + 2);
    result += parsed.prefix;
    if (negative)
        result += u'-';
    for (qsizetype i = 0; i < shown; ++i) {
        if (parsed.grouping && i > 0 && (shown - i) % 3 == 0)
            result += ThousandSeparator;
        const qsizetype at = i - (shown - integers);
        result += at < 0 ? QLatin1Char('0') : digit(at);
    }
    if (decimals > 0) {
        result += DecimalSeparator;
        for (qsizetype i = 0; i < decimals; ++i)
            result += digit(integers + i);
    }
    result += parsed.suffix;
    return result;
}

QString general(double value)
{
    if (!std::isfinite(value))
        return QString::number(value);
    const DecimalDigits decimal = DecimalDigits::of(value);
    if (decimal.digits.isEmpty())
        return QStringLiteral("0");
    const QLatin1StringView digits(decimal.digits);
    const qsizetype size = digits.size();
    const int exponent = decimal.exponent;
    QString result;
    result.reserve(size + std::abs(exponent) + 8);
    if (decimal.negative)
        result += u'-';
    if (exponent > GeneralPrecision || exponent < -4) {
        result += digits.left(1);
        if (size > 1) {
            result += DecimalSeparator;
            result += digits.mid(1);
        }
        return result + u'E' + QString::number(exponent - 1);
    }
    if (exponent <= 0) {
        result += u'0';
        result += DecimalSeparator;
        for (int i = 0; i < -exponent; ++i)
            result += u'0';
        return result += digits;
    }
    if (size <= exponent) {
        result += digits;
        for (qsizetype i = size; i < exponent; ++i)
            result += u'0';
        return result;
    }
    result += digits.left(exponent);
    result += DecimalSeparator;
    return result += digits.mid(exponent);
}

QString date(const QDate &date)
{
    return date.isValid() ? date.toString(QStringLiteral("yyyy-MM-dd")) : QString();
}

QString date(DateTime value)
{
    return value.isNull() ? QString() : date(value.date());
}

QString dateTime(DateTime value)
{
    if (value.isNull())
        return QString();
    return date(value.date()) + u' ' + value.time().toString(QStringLiteral("hh:mm"));
}

std::optional<double> parseNumber(QStringView text)
{
    // Lists hold many numbers; this runs per cell when a column is summed
    // or sorted, so it avoids building strings.
    char plain[64];
    int length = 0;
    int separators = 0;
    for (const QChar c : text) {
        if (c == u' ' || c == ThousandSeparator)
            continue;
        if (c.unicode() > 0x7f || length == sizeof plain - 1)
            return std::nullopt;
        char ascii = static_cast<char>(c.unicode());
        if (ascii == ',' || ascii == '.') {
            ++separators;
            ascii = '.';
        }
        plain[length++] = ascii;
    }
    const char *begin = plain;
    if (length > 0 && plain[0] == '+')
        ++begin;
    const char *end = plain + length;
    if (begin == end || separators > 1)
        return std::nullopt;
    double value = 0.0;
    const auto [stop, error] = std::from_chars(begin, end, value);
    if (error != std::errc() || stop != end || !std::isfinite(value))
        return std::nullopt;
    return value;
}

namespace {

// Reads `count` digits at `at`; -1 when one of them is no digit.
int digitsAt(QStringView text, qsizetype at, int count)
{
    if (at + count > text.size())
        return -1;
    int value = 0;
    for (int i = 0; i < count; ++i) {
        const char16_t c = text[at + i].unicode();
        if (c < u'0' || c > u'9')
            return -1;
        value = value * 10 + (c - u'0');
    }
    return value;
}

} // namespace

std::optional<QDateTime> parseDateTime(QStringView text)
{
    // Date and time are read apart and joined in UTC, so that a wall time
    // inside a daylight-saving gap is still a valid value.
    const QStringView trimmed = text.trimmed();
    if (trimmed.size() < 10 || trimmed[4] != u'-' || trimmed[7] != u'-')
        return std::nullopt;
    const int year = digitsAt(trimmed, 0, 4);
    const int month = digitsAt(trimmed, 5, 2);
    const int dayOfMonth = digitsAt(trimmed, 8, 2);
    // digitsAt gives -1 for a non-digit, and -1 is a year QDate accepts.
    if (year < 0 || month < 0 || dayOfMonth < 0)
        return std::nullopt;
    const QDate day(year, month, dayOfMonth);
    if (!day.isValid())
        return std::nullopt;
    if (trimmed.size() == 10)
        return QDateTime(day, QTime(0, 0), Qt::UTC);
    const QStringView time = trimmed.mid(10).trimmed();
    if (trimmed[10] != u' ' || (time.size() != 5 && time.size() != 8) || time[2] != u':'
        || (time.size() == 8 && time[5] != u':'))
        return std::nullopt;
    const QTime clock(digitsAt(time, 0, 2), digitsAt(time, 3, 2),
                      time.size() == 8 ? digitsAt(time, 6, 2) : 0);
    if (!clock.isValid())
        return std::nullopt;
    return QDateTime(day, clock, Qt::UTC);
}

} // namespace Format
