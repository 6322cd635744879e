#include "DocumentNumber.h"

#include <QStringList>

#include <cmath>

namespace {

constexpr int MaxLength = 255;

// Day 0 of the stored day count; a zero date is that day, not "no date",
// when a number is formatted from it.
QDate calendarDate(DateTime date)
{
    const double days = std::floor(date.days());
    // A value no calendar holds formats as an empty date rather than as
    // whatever an overflowing conversion would make of it.
    if (!std::isfinite(days) || std::fabs(days) > 1e11)
        return QDate();
    return QDate(1899, 12, 30).addDays(static_cast<qint64>(days));
}

QString shortDateText(const QDate &date)
{
    return date.toString(QStringLiteral("yyyy-MM-dd"));
}

QString codeValue(const QString &token, int number, const QString &text, const QDate &date)
{
    const int width = static_cast<int>(token.size()) - 1;
    switch (token.at(1).unicode()) {
    case 'd':
    case 'D':
        return shortDateText(date);
    case 'm':
        return QString::number(date.month()).rightJustified(width, QLatin1Char('0'));
    case 'M':
        return QString::number(date.month()).rightJustified(2, QLatin1Char('0'));
    case 'r':
        return QString::number(date.year()).right(2);
    case 'R':
        return QString::number(date.year());
    case 's':
    case 'S':
        return QStringLiteral(" ");
    case '#':
        return QString::number(number).rightJustified(width, QLatin1Char('0'));
    case 'T':
    case 't':
        return text.rightJustified(width, QLatin1Char(' '));
    default:
        return QString();
    }
}

} // namespace

QString DocumentNumber::dateText(DateTime date)
{
    return shortDateText(calendarDate(date));
}

QString DocumentNumber::format(const QString &mask, int number, const QString &text, DateTime date)
{
    QString compact = mask;
    compact.remove(QLatin1Char(' '));
    QStringList tokens = compact.split(QLatin1Char(';'));
    if (!tokens.isEmpty() && tokens.last().isEmpty())
        tokens.removeLast();

    const QDate day = calendarDate(date);
    QString result;
    for (const QString &token : tokens) {
        if (!token.startsWith(QLatin1Char('%')))
            result += token;
        else if (token.size() > 1)
            result += codeValue(token, number, text, day);
    }
    return result.left(MaxLength);
}
