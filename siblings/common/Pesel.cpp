#include "Pesel.h"

#include <array>

namespace {

constexpr std::array<int, 10> Weights{1, 3, 7, 9, 1, 3, 7, 9, 1, 3};

bool elevenDigits(const QString &text)
{
    if (text.size() != 11)
        return false;
    for (const QChar c : text) {
        if (!c.isDigit() || c.unicode() >= 128)
            return false;
    }
    return true;
}

int digit(const QString &text, int index)
{
    return text[index].digitValue();
}

QDate encodedDate(const QString &text)
{
    const int year = digit(text, 0) * 10 + digit(text, 1);
    const int month = digit(text, 2) * 10 + digit(text, 3);
    const int day = digit(text, 4) * 10 + digit(text, 5);
    // The month's tens say the century.
    static constexpr std::array<int, 5> centuries{1900, 2000, 2100, 2200, 1800};
    const int century = month / 20;
    if (century >= int(centuries.size()))
        return QDate();
    return QDate(centuries[std::size_t(century)] + year, month % 20, day);
}

} // namespace

bool Pesel::isValid(const QString &text)
{
    const QString number = text.trimmed();
    if (!elevenDigits(number) || !encodedDate(number).isValid())
        return false;
    int sum = 0;
    for (std::size_t i = 0; i < Weights.size(); ++i)
        sum += Weights[i] * digit(number, int(i));
    return (10 - sum % 10) % 10 == digit(number, 10);
}

QDate Pesel::birthDate(const QString &text)
{
    return isValid(text) ? encodedDate(text.trimmed()) : QDate();
}

QString Pesel::problem(const QString &text)
{
    if (isValid(text))
        return QString();
    return QStringLiteral("Nieprawidłowy numer PESEL: %1.\nPESEL ma 11 cyfr: datę urodzenia, "
                          "numer i cyfrę kontrolną; sprawdź, czy żadna cyfra nie została "
                          "pomylona.")
        .arg(text.trimmed());
}
