#pragma once

#include <QStringList>

// The two kinds of tariff, by their index (TARYFAWLASNA): 0 a carrier's
// tariff, 1 an own tariff.
namespace TariffKinds {

constexpr int Carriers = 0;
constexpr int Own = 1;

inline QStringList names()
{
    return {QStringLiteral("przewoźnika"), QStringLiteral("własne")};
}

// The kind a register shows first for what its opener asked: an index
// outside -1..kindCount becomes 0, or -1 when there are no kinds. An index
// equal to kindCount is kept and so chooses no kind at all.
inline int openingIndex(int requested, int kindCount)
{
    if (requested < -1 || requested > kindCount)
        return kindCount == 0 ? -1 : 0;
    return requested;
}

} // namespace TariffKinds
