#include "TaxNumber.h"

#include <QRegularExpression>
#include <QStringList>

QString TaxNumber::compact(const QString &number)
{
    static const QRegularExpression separators(QStringLiteral("[\\s\\-.]"));
    return QString(number).remove(separators).toUpper();
}

QString TaxNumber::nip(const QString &number)
{
    const QString digits = compact(number);
    if (digits.startsWith(QStringLiteral("PL")))
        return digits.mid(2);
    return digits;
}

QString TaxNumber::euPrefix(const QString &compactNumber)
{
    // Greece writes EL in VAT numbers; Northern Ireland trades as XI.
    static const QStringList members{
        QStringLiteral("AT"), QStringLiteral("BE"), QStringLiteral("BG"), QStringLiteral("CY"),
        QStringLiteral("CZ"), QStringLiteral("DK"), QStringLiteral("EE"), QStringLiteral("FI"),
        QStringLiteral("FR"), QStringLiteral("DE"), QStringLiteral("EL"), QStringLiteral("HR"),
        QStringLiteral("HU"), QStringLiteral("IE"), QStringLiteral("IT"), QStringLiteral("LV"),
        QStringLiteral("LT"), QStringLiteral("LU"), QStringLiteral("MT"), QStringLiteral("NL"),
        QStringLiteral("PT"), QStringLiteral("RO"), QStringLiteral("SK"), QStringLiteral("SI"),
        QStringLiteral("ES"), QStringLiteral("SE"), QStringLiteral("XI")};
    const QString prefix = compactNumber.left(2);
    return compactNumber.size() > 2 && members.contains(prefix) ? prefix : QString();
}
