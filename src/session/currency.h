// Money as text, with the currency symbol where the system or the study puts it.
#pragma once

#include <cstdint>
#include <string>

#include "platform/system_locale.h"

namespace lorvane {

namespace CurrencyPositions {
inline constexpr int before = 1;
inline constexpr int after = 2;
}  // namespace CurrencyPositions

struct Currency {
    std::string Symbol;
    int Position = CurrencyPositions::before;
};

/// The currency of the system: what is left of its format of 0 without digits, points, commas and blanks.
Currency detectCurrency(const SystemLocale& locale);

/// An amount with grouped thousands and the symbol before or after it; empty for any other position.
std::string ReFormatCurrency(std::int32_t amount, const Currency& currency);

/// The same of an amount that may have decimals: it is rounded, and held to 32 bits.
std::string amountText(double amount, const Currency& currency);

}  // namespace lorvane
