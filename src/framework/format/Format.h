#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QStringView>

#include <optional>

class DateTime;

// Numbers and dates as the system's screens, reports and exports write
// them: the Delphi-style number patterns of the suite with the Polish
// separators, whatever the machine's own locale says.
namespace Format {

inline constexpr QChar ThousandSeparator{0x00A0};
inline constexpr QChar DecimalSeparator{u','};

// A number pattern such as "#,##0.00", ",0 km" or "#0": '0' is a digit that
// is always written, '#' a digit written only when significant, ',' before
// the decimal point groups thousands by three, '.' is the decimal point.
// Any other character, and text in quotes, is a literal written before or
// after the number ('%' is a literal too: the value is not scaled).
// Rounding is half away from zero on the fifteen-digit decimal value.
QString number(double value, QStringView pattern);

// The general number format: up to fifteen significant digits, no
// grouping, no trailing zeros, exponent form ("1,5E-7") for values beyond
// fifteen integer digits or below 0.00001.
QString general(double value);

// yyyy-MM-dd; an empty text for an invalid or null date.
QString date(const QDate &date);
QString date(DateTime value);
// yyyy-MM-dd hh:mm; empty for the null date.
QString dateTime(DateTime value);

// A number as a user or a list writes it: blanks and non-breaking spaces
// are ignored, ',' or '.' is the decimal point (only one of them), a
// leading sign and an exponent are accepted. Nothing for other texts.
std::optional<double> parseNumber(QStringView text);

// yyyy-MM-dd with an optional time hh:mm or hh:mm:ss; nothing otherwise.
std::optional<QDateTime> parseDateTime(QStringView text);

} // namespace Format
