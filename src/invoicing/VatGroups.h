#pragma once

#include <QString>

#include <array>
#include <optional>

// The VAT groups of an invoice's summary, chosen by the key of the
// position's rate in STAWKI_VAT: keys 1 and 5 are both the standard rate
// (goods and services were kept apart once), 2 zero, 3 exempt, 4 not subject.
// Any other rate counts only in the invoice's totals.
namespace VatGroups {

inline constexpr int Count = 4;

// The group's place in the summary, 0 to Count - 1.
std::optional<int> groupOf(int rateKey);

// "23%", "0%", "zw.", "NP".
const std::array<QString, Count> &labels();

} // namespace VatGroups
