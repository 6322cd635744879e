#include "TypedDate.h"

#include <QList>

namespace TypedDate {

namespace {

constexpr int FirstYear = 1900;
constexpr int LastYear = 9999;
constexpr int YearsBack = 80;
constexpr int YearsAhead = 20;

const QString Forms = QStringLiteral("rrrr-mm-dd, dd.mm.rrrr, dd.mm.rr lub rrrrmmdd");

bool isSeparator(QChar c)
{
    return c == u'.' || c == u'-' || c == u'/' || c == u' ';
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

int fullYear(int twoDigits, const QDate &today)
{
    int year = today.year() / 100 * 100 + twoDigits;
    if (year > today.year() + YearsAhead)
        year -= 100;
    else if (year <= today.year() - YearsBack)
        year += 100;
    return year;
}

std::optional<QDate> dateOf(int year, int month, int day)
{
    const QDate date(year, month, day);
    if (!date.isValid() || year < FirstYear || year > LastYear)
        return std::nullopt;
    return date;
}

int number(QStringView digits)
{
    return digits.toInt();
}

std::optional<QDate> readDigits(QStringView digits, const QDate &today)
{
    if (digits.size() == 8) {
        if (auto date = dateOf(number(digits.left(4)), number(digits.mid(4, 2)),
                               number(digits.mid(6, 2))))
            return date;
        return dateOf(number(digits.mid(4, 4)), number(digits.mid(2, 2)), number(digits.left(2)));
    }
    if (digits.size() == 6) {
        return dateOf(fullYear(number(digits.mid(4, 2)), today), number(digits.mid(2, 2)),
                      number(digits.left(2)));
    }
    return std::nullopt;
}

std::optional<QDate> readParts(const QList<QStringView> &parts, const QDate &today)
{
    if (parts.size() != 3)
        return std::nullopt;
    for (const QStringView part : parts) {
        if (part.isEmpty())
            return std::nullopt;
    }
    const auto shortPart = [](QStringView part) { return part.size() <= 2; };
    if (parts[0].size() == 4 && shortPart(parts[1]) && shortPart(parts[2]))
        return dateOf(number(parts[0]), number(parts[1]), number(parts[2]));
    if (!shortPart(parts[0]) || !shortPart(parts[1]))
        return std::nullopt;
    if (parts[2].size() == 4)
        return dateOf(number(parts[2]), number(parts[1]), number(parts[0]));
    if (parts[2].size() == 2)
        return dateOf(fullYear(number(parts[2]), today), number(parts[1]), number(parts[0]));
    return std::nullopt;
}

} // namespace

bool fits(QStringView typed)
{
    for (const QChar c : typed) {
        if (!isDigit(c) && !isSeparator(c))
            return false;
    }
    return true;
}

std::optional<QDate> read(QStringView typed, const QDate &today)
{
    const QStringView text = typed.trimmed();
    if (text.isEmpty())
        return QDate();
    if (!fits(text))
        return std::nullopt;
    QList<QStringView> parts;
    qsizetype start = 0;
    for (qsizetype i = 0; i <= text.size(); ++i) {
        if (i == text.size() || isSeparator(text[i])) {
            parts.append(text.mid(start, i - start));
            start = i + 1;
        }
    }
    return parts.size() == 1 ? readDigits(text, today) : readParts(parts, today);
}

QString problem(QStringView typed, const QDate &today, bool blankAllowed)
{
    const std::optional<QDate> date = read(typed, today);
    if (date && (date->isValid() || blankAllowed))
        return QString();
    if (date)
        return QStringLiteral("Wpisz datę jako %1.").arg(Forms);
    return QStringLiteral("„%1” nie jest datą. Wpisz datę jako %2.")
        .arg(typed.trimmed().toString(), Forms);
}

} // namespace TypedDate
