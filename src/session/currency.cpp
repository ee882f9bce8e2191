// Money as text.
#include "session/currency.h"

#include <algorithm>

#include "base/money.h"
#include "base/number_text.h"
#include "base/utf8.h"

namespace lorvane {

Currency detectCurrency(const SystemLocale& locale) {
    const std::string zero = locale.currencyOfZero();
    const std::size_t firstOther = zero.find_first_not_of("0., ");
    std::string rest;
    for (const char c : zero) {
        if (c != '0' && c != '.' && c != ',')
            rest += c;
    }
    Currency currency{isCleanText(rest) ? std::string(trimmed(rest)) : std::string()};
    const bool standsBehind = firstOther != std::string::npos && firstOther > zero.find('0');
    currency.Position = standsBehind ? CurrencyPositions::after : CurrencyPositions::before;
    return currency;
}

std::string ReFormatCurrency(std::int32_t amount, const Currency& currency) {
    const std::string text = groupedText(amount);
    switch (currency.Position) {
    case CurrencyPositions::before:
        return currency.Symbol + text;
    case CurrencyPositions::after:
        return text + currency.Symbol;
    default:
        return "";
    }
}

std::string amountText(double amount, const Currency& currency) {
    constexpr double largestAmount = 2147483647;
    return ReFormatCurrency(
        static_cast<std::int32_t>(std::clamp(roundHalfToEven(amount), -largestAmount, largestAmount)),
        currency);
}

}  // namespace lorvane
