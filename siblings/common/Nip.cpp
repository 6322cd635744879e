#include "Nip.h"

#include <array>

namespace {

constexpr std::array<int, 9> Weights{6, 5, 7, 2, 3, 4, 5, 6, 7};

} // namespace

QString Nip::digits(const QString &text)
{
    QString number = text.trimmed();
    if (number.startsWith(QLatin1String("PL"), Qt::CaseInsensitive))
        number = number.mid(2);
    QString result;
    for (const QChar c : std::as_const(number)) {
        if (c.isDigit() && c.unicode() < 128)
            result += c;
        else if (c != u'-' && c != u' ')
            return QString();
    }
    return result.size() == 10 ? result : QString();
}

bool Nip::isValid(const QString &text)
{
    const QString number = digits(text);
    if (number.isEmpty())
        return false;
    int sum = 0;
    for (std::size_t i = 0; i < Weights.size(); ++i)
        sum += Weights[i] * number[qsizetype(i)].digitValue();
    // A remainder of 10 has no check digit: such numbers are never issued.
    return sum % 11 == number[9].digitValue();
}

QString Nip::problem(const QString &text)
{
    if (isValid(text))
        return QString();
    return QStringLiteral("Nieprawidłowy numer NIP: %1.\nNIP ma 10 cyfr, a ostatnia z nich jest "
                          "cyfrą kontrolną pozostałych; sprawdź, czy żadna cyfra nie została "
                          "pomylona.")
        .arg(text.trimmed());
}
