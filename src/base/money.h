// Money: whole numbers of the currency, 32-bit sums that notice an overflow.
#pragma once

#include <cstdint>
#include <stdexcept>

namespace lorvane {

/// A product or sum of money left the 32-bit range.
class MoneyOverflow : public std::overflow_error {
public:
    MoneyOverflow() : std::overflow_error("the amount exceeds the 32-bit range") {}
};

/// A sum of money whose every term is rounded to a whole number, halves to even, before it is added.
/// Throws MoneyOverflow when a term or the sum leaves the 32-bit range or is no number.
class MoneySum {
public:
    void add(double amount);
    std::int32_t total() const noexcept { return total_; }

private:
    std::int32_t total_ = 0;
};

/// The nearest whole number, halves to even, whatever the rounding mode of the machine's arithmetic.
double roundHalfToEven(double value);

}  // namespace lorvane
