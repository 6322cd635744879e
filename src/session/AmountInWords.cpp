#include "AmountInWords.h"

#include <array>
#include <cmath>

namespace {

using WordTable = std::array<const char *, 10>;

const WordTable Units = {"", " jeden", " dwa", " trzy", " cztery",
                         " pięć", " sześć", " siedem", " osiem", " dziewięć"};
const WordTable Teens = {" dziesięć", " jedenaście", " dwanaście", " trzynaście",
                         " czternaście", " piętnaście", " szesnaście", " siedemnaście",
                         " osiemnaście", " dziewiętnaście"};
const WordTable Tens = {"", "", " dwadzieścia", " trzydzieści", " czterdzieści",
                        " pięćdziesiąt", " sześćdziesiąt", " siedemdziesiąt",
                        " osiemdziesiąt", " dziewięćdziesiąt"};
const WordTable Hundreds = {"", " sto", " dwieście", " trzysta", " czterysta",
                            " pięćset", " sześćset", " siedemset", " osiemset", " dziewięćset"};

constexpr int MaxLength = 255;
// Trunc of anything larger would not fit the 64-bit whole part.
constexpr double LargestWorded = 9e18;

QString word(const WordTable &table, int digit)
{
    return QString::fromUtf8(table.at(static_cast<std::size_t>(digit)));
}

// Three decimal digits: hundreds, tens, units.
QString groupWords(int group)
{
    const int hundreds = group / 100;
    const int tens = group / 10 % 10;
    const int units = group % 10;
    return word(Hundreds, hundreds) + word(Tens, tens)
        + (tens == 1 ? word(Teens, units) : word(Units, units));
}

QString thousandsPart(int thousands)
{
    if (thousands == 0)
        return QString();
    if (thousands == 1)
        return QStringLiteral(" tysiąc ");
    const QString words = groupWords(thousands);
    if (thousands <= 4)
        return words + QStringLiteral(" tysiące ");
    if (thousands <= 21)
        return words + QStringLiteral(" tysięcy ");
    const int last = thousands % 10;
    const bool fewForm = last >= 2 && last <= 4;
    return words + (fewForm ? QStringLiteral(" tysiące ") : QStringLiteral(" tysięcy "));
}

QString millionsPart(int firstDigit)
{
    QString name;
    if (firstDigit == 1)
        name = QStringLiteral(" milion ");
    else if (firstDigit >= 2 && firstDigit <= 4)
        name = QStringLiteral(" miliony ");
    else
        name = QStringLiteral(" milionów ");
    return word(Units, firstDigit) + name;
}

} // namespace

QString AmountInWords::words(double amount)
{
    double magnitude = std::fabs(amount);
    if (!std::isfinite(magnitude) || magnitude >= LargestWorded)
        magnitude = 0.0;
    const long long whole = static_cast<long long>(std::trunc(magnitude));
    // The grosze come from the amount formatted with two decimals, which
    // rounds: 12.999 gives 12 and "00", the złoty are not carried.
    const QString formatted = QString::asprintf("%9.2f", magnitude);
    const QString grosze = formatted.right(2);

    const QString digits = QString::number(whole);
    const QString lastSix = QString(QStringLiteral("000000") + digits).right(6);
    const int thousands = lastSix.left(3).toInt();
    const int lower = lastSix.right(3).toInt();

    QString text = thousandsPart(thousands) + groupWords(lower) + QLatin1Char(' ') + grosze
        + QStringLiteral("/100");
    text.remove(0, 1);

    if (whole >= 1000000)
        text = millionsPart(digits.at(0).digitValue()) + QLatin1Char(' ') + text;
    if (whole >= 1000 && whole < 2000)
        text = QStringLiteral("jeden ") + text;
    return text.left(MaxLength);
}
