#include "PostalCode.h"

bool PostalCode::matches(const QString &code, const QString &mask)
{
    if (mask.isEmpty())
        return true;
    if (code.size() != mask.size())
        return false;
    for (qsizetype i = 0; i < mask.size(); ++i) {
        const QChar wanted = mask[i];
        const QChar given = code[i];
        if (wanted == u'9') {
            if (!given.isDigit() || given.unicode() >= 128)
                return false;
        } else if (wanted == u'A') {
            if (!given.isLetter())
                return false;
        } else if (given != wanted) {
            return false;
        }
    }
    return true;
}

QString PostalCode::readable(const QString &mask)
{
    QString result = mask;
    result.replace(u'9', u'N');
    result.replace(u'A', u'L');
    return result;
}

QString PostalCode::problem(const QString &code, const QString &mask, const QString &country)
{
    if (matches(code, mask))
        return QString();
    QString text = QStringLiteral("Nieprawidłowy kod pocztowy: %1.\nKod pocztowy").arg(code);
    if (!country.isEmpty())
        text += QStringLiteral(" (%1)").arg(country);
    text += QStringLiteral(" ma postać %1, gdzie N to cyfra").arg(readable(mask));
    if (mask.contains(u'A'))
        text += QStringLiteral(", a L litera");
    return text + u'.';
}
