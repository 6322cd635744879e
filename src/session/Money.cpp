#include "Money.h"

#include <charconv>
#include <cmath>
#include <string_view>

namespace {

// Beyond this the value has no cents left to decide on, and 100 times it
// would no longer fit the integer the digits are collected in.
constexpr double LargestRoundable = 1e15;

} // namespace

double Money::RoundTo2(double amount)
{
    if (!std::isfinite(amount) || std::fabs(amount) >= LargestRoundable)
        return amount;
    // Below a tenth of a grosz the three decisive digits are all zero; the
    // text of such a value would not even fit the buffer below.
    if (std::fabs(amount) < 0.001)
        return 0.0;
    // The shortest decimal text that reads back as the same double is the
    // number the user typed or saw; its digits decide, not the binary
    // approximation (which holds -1.005 as -1.00499999...).
    char buffer[64];
    const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, std::fabs(amount),
                                            std::chars_format::fixed);
    if (error != std::errc())
        return amount;
    const std::string_view text(buffer, static_cast<std::size_t>(end - buffer));
    const std::size_t point = text.find('.');
    const std::string_view whole = text.substr(0, point);
    const std::string_view fraction =
        point == std::string_view::npos ? std::string_view() : text.substr(point + 1);
    const auto decimal = [&](std::size_t index) {
        return index < fraction.size() ? fraction[index] - '0' : 0;
    };

    long long cents = 0;
    for (const char digit : whole)
        cents = cents * 10 + (digit - '0');
    cents = cents * 100 + decimal(0) * 10 + decimal(1);
    if (amount < 0)
        cents = -cents;
    if (decimal(2) > 4)
        cents += 1;
    return static_cast<double>(cents) / 100.0;
}

double Money::RoundCentsToEven(double amount)
{
    // nearbyint follows the current rounding mode, which is to-nearest-even.
    return std::nearbyint(amount * 100.0) / 100.0;
}
