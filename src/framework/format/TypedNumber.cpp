#include "TypedNumber.h"

#include "Format.h"

namespace TypedNumber {

namespace {

bool isBlank(QChar c)
{
    return c == u' ' || c == Format::ThousandSeparator;
}

bool isPoint(QChar c)
{
    return c == u',' || c == u'.';
}

// "0.###" with as many '#' as decimals: the decimals a value has, no more.
QString plainPattern(int decimals)
{
    return decimals > 0 ? QStringLiteral("0.") + QString(decimals, u'#') : QStringLiteral("0");
}

// The bounds of a range as a message writes them: "od 0 do 99 999".
QString range(const Limits &limits)
{
    const QString pattern = QStringLiteral("#,##") + plainPattern(limits.decimals);
    return QStringLiteral("od %1 do %2")
        .arg(Format::number(limits.minimum, pattern), Format::number(limits.maximum, pattern));
}

} // namespace

bool fits(QStringView typed, const Limits &limits)
{
    const QStringView text = typed.trimmed();
    bool seenPoint = false;
    int decimals = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c.isDigit() && c.unicode() < 128) {
            if (seenPoint && ++decimals > limits.decimals)
                return false;
        } else if (isPoint(c)) {
            if (seenPoint || limits.decimals == 0)
                return false;
            seenPoint = true;
        } else if (c == u'-') {
            if (i != 0 || limits.minimum >= 0.0)
                return false;
        } else if (!isBlank(c) || seenPoint) {
            return false;
        }
    }
    return true;
}

std::optional<double> read(QStringView typed)
{
    const QStringView text = typed.trimmed();
    if (text.isEmpty())
        return 0.0;
    return Format::parseNumber(text);
}

QString problem(QStringView typed, const Limits &limits)
{
    const QString shown = typed.trimmed().toString();
    const std::optional<double> value = fits(typed, limits) ? read(typed) : std::nullopt;
    if (!value) {
        return QStringLiteral("„%1” nie jest liczbą. Wpisz liczbę %2.")
            .arg(shown, range(limits));
    }
    if (*value < limits.minimum || *value > limits.maximum) {
        return QStringLiteral("„%1” jest poza zakresem. Wpisz liczbę %2.")
            .arg(shown, range(limits));
    }
    return QString();
}

double rounded(double value, int decimals)
{
    return Format::parseNumber(Format::number(value, plainPattern(decimals))).value_or(0.0);
}

QString editable(double value, int decimals)
{
    return Format::number(value, plainPattern(decimals));
}

} // namespace TypedNumber
