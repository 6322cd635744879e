#include "BankAccount.h"

namespace {

// Without blanks, upper case; a bare NRB gets the Polish prefix.
QString asIban(const QString &text)
{
    QString compact;
    for (const QChar c : text) {
        if (c != u' ' && c != u'-')
            compact += c.toUpper();
    }
    if (compact.size() == 26 && !compact.isEmpty() && compact[0].isDigit())
        compact.prepend(QStringLiteral("PL"));
    return compact;
}

bool ascii(QChar c)
{
    return c.unicode() < 128;
}

} // namespace

bool BankAccount::isValid(const QString &text)
{
    const QString iban = asIban(text);
    if (iban.size() < 15 || iban.size() > 34 || !iban[0].isLetter() || !iban[1].isLetter())
        return false;
    if (iban.startsWith(QLatin1String("PL")) && iban.size() != 28)
        return false;
    // The four leading characters go to the end; letters count 10..35.
    const QString rotated = iban.mid(4) + iban.left(4);
    int remainder = 0;
    for (const QChar c : rotated) {
        if (!ascii(c))
            return false;
        if (c.isDigit()) {
            remainder = (remainder * 10 + c.digitValue()) % 97;
        } else if (c >= u'A' && c <= u'Z') {
            const int value = c.unicode() - u'A' + 10;
            remainder = (remainder * 100 + value) % 97;
        } else {
            return false;
        }
    }
    return remainder == 1;
}

QString BankAccount::problem(const QString &text)
{
    if (isValid(text))
        return QString();
    return QStringLiteral("Nieprawidłowy numer rachunku bankowego: %1.\nNumer rachunku w Polsce "
                          "ma 26 cyfr (zagraniczny: IBAN z literami kraju); jego dwie pierwsze "
                          "cyfry są kontrolne, sprawdź, czy żadna cyfra nie została pomylona.")
        .arg(text.trimmed());
}
