// Money: 32-bit sums that notice an overflow.
#include "base/money.h"

#include <cmath>
#include <limits>

namespace lorvane {

namespace {

using Limits = std::numeric_limits<std::int32_t>;

std::int64_t wholeAmount(double amount) {
    const double rounded = roundHalfToEven(amount);
    const bool fits = rounded >= Limits::min() && rounded <= Limits::max();
    if (!fits)
        throw MoneyOverflow();
    return static_cast<std::int64_t>(rounded);
}

}  // namespace

double roundHalfToEven(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest < 0.5)
        return below;
    if (rest > 0.5)
        return below + 1;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

void MoneySum::add(double amount) {
    const std::int64_t sum = total_ + wholeAmount(amount);
    if (sum < Limits::min() || sum > Limits::max())
        throw MoneyOverflow();
    total_ = static_cast<std::int32_t>(sum);
}

}  // namespace lorvane
