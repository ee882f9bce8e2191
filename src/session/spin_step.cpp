// One step of a value by an arrow.
#include "session/spin_step.h"

#include <algorithm>
#include <cmath>

#include "base/money.h"

namespace lorvane {

namespace {

constexpr double nearLimit = 1e-6;
constexpr double roundingNoise = 1e-9;

// A value that differs from a number with the decimals shown by rounding alone is that number.
double withoutNoise(double value, double scale) {
    const double nearest = std::round(value * scale) / scale;
    return std::fabs(value - nearest) < roundingNoise ? nearest : value;
}

double heldAtLow(double value, const FieldLimits& limits, double step) {
    if (!limits.lowInclusive)
        return std::max(value, limits.low + step);
    const bool onLimit = value < limits.low || std::fabs(value - limits.low) < nearLimit;
    return onLimit ? limits.low : value;
}

double heldAtHigh(double value, const FieldLimits& limits, double step) {
    return std::min(value, limits.highInclusive ? limits.high : limits.high - step);
}

}  // namespace

double spun(double value, int direction, const FieldLimits& limits, int decimals, int step) {
    const double scale = std::pow(10, decimals);
    const double size = step / scale;
    if (direction == -1)
        return withoutNoise(heldAtLow(value - size, limits, size), scale);
    if (direction == 1)
        return withoutNoise(heldAtHigh(value + size, limits, size), scale);
    return value;
}

double snapped(double value, int direction, int step) {
    while (std::fmod(roundHalfToEven(value), step) != 0)
        value -= direction;
    return value;
}

}  // namespace lorvane
