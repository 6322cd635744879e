#include "KsefVatField.h"

#include "VatGroups.h"

#include <cmath>

namespace {

std::optional<KsefVatField> byPercent(double fraction)
{
    const long percent = std::lround(fraction * 100.0);
    // Rates that changed over the years stay valid on older sales.
    switch (percent) {
    case 23:
    case 22:
        return KsefVatField{KsefVatField::Standard, QString::number(percent)};
    case 8:
    case 7:
        return KsefVatField{KsefVatField::Reduced, QString::number(percent)};
    case 5:
        return KsefVatField{KsefVatField::SuperReduced, QStringLiteral("5")};
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<KsefVatField> KsefVatField::of(int rateKey, double fraction)
{
    switch (VatGroups::groupOf(rateKey).value_or(-1)) {
    case 0:
        return byPercent(fraction);
    case 1:
        return KsefVatField{ZeroDomestic, QStringLiteral("0 KR")};
    case 2:
        return KsefVatField{Exempt, QStringLiteral("zw")};
    case 3:
        return KsefVatField{NotSubject, QStringLiteral("np I")};
    default:
        if (fraction == 0.0)
            return std::nullopt;
        return byPercent(fraction);
    }
}

QString KsefVatField::netElement(Field field)
{
    static const std::array<QString, Count> names{
        QStringLiteral("P_13_1"), QStringLiteral("P_13_2"), QStringLiteral("P_13_3"),
        QStringLiteral("P_13_6_1"), QStringLiteral("P_13_7"), QStringLiteral("P_13_8")};
    return names.at(field);
}

QString KsefVatField::vatElement(Field field)
{
    static const std::array<QString, Count> names{
        QStringLiteral("P_14_1"), QStringLiteral("P_14_2"), QStringLiteral("P_14_3"),
        QString(), QString(), QString()};
    return names.at(field);
}
