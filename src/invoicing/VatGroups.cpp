#include "VatGroups.h"

std::optional<int> VatGroups::groupOf(int rateKey)
{
    switch (rateKey) {
    case 1:
    case 5:
        return 0;
    case 2:
        return 1;
    case 3:
        return 2;
    case 4:
        return 3;
    default:
        return std::nullopt;
    }
}

const std::array<QString, VatGroups::Count> &VatGroups::labels()
{
    static const std::array<QString, Count> texts{QStringLiteral("23%"), QStringLiteral("0%"),
                                                  QStringLiteral("zw."), QStringLiteral("NP")};
    return texts;
}
