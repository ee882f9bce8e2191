// Choice of round steps.
#include "desktop/kit/round_scale.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace lorvane::desktop {

namespace {

constexpr double Rounds[] = {1, 2, 2.5, 5, 10};
constexpr int Steps = 5;
constexpr double MostSteps = 6;
constexpr int MostDecimals = 6;
constexpr double Hair = 1e-9;  ///< a step that misses by rounding alone does not miss

double lineBelow(double value, double step) { return std::floor(value / step + Hair) * step; }

double lineAbove(double value, double step) { return std::ceil(value / step - Hair) * step; }

bool isWhole(double value) { return std::abs(value - std::round(value)) < Hair * std::max(1.0, value); }

/// The smallest step that is round and whole, and not below a number of 1 or more.
double wholeRoundStep(double least) {
    const double step = roundStep(least);
    return step == std::floor(step) ? step : roundStep(2 * step);
}

}  // namespace

double roundStep(double least) {
    const double power = std::pow(10, std::floor(std::log10(least)));
    const auto* round = std::find_if(std::begin(Rounds), std::end(Rounds),
                                     [&](double r) { return r * power >= least * (1 - Hair); });
    return *round * power;
}

RoundScale fiveSteps(double low, double high) {
    const double length = high > low ? high - low : high;
    RoundScale scale{0, length > 0 ? roundStep(length / Steps) : 1, Steps};
    while (lineBelow(low, scale.step) + Steps * scale.step < high)
        scale.step = roundStep(scale.step * (1 + 2 * Hair));
    scale.low = lineBelow(low, scale.step);
    const double spare = std::floor((scale.high() - high) / scale.step + Hair);
    scale.low = std::max(0.0, scale.low - std::ceil(spare / 2) * scale.step);
    return scale;
}

RoundScale percentSteps(double low, double high) {
    const double step = wholeRoundStep(std::max(1.0, 100 * (high - low) / Steps));
    double first = lineBelow(100 * low, step);
    double last = lineAbove(100 * high, step);
    if (first == last) {
        first = std::max(0.0, first - step);
        last = std::min(100.0, last + step);
    }
    return {first / 100, step / 100, static_cast<int>(std::round((last - first) / step))};
}

double wholeStep(double length) { return length > MostSteps ? wholeRoundStep(length / MostSteps) : 1; }

RoundScale marksWithin(double low, double high) {
    if (!(high > low))
        return {low, 1, 0};
    const double step = roundStep((high - low) / Steps);
    const double middle = (low + high) / 2;
    const bool endsAreRound = isWhole(std::abs(low) / step);
    const double from = !endsAreRound && isWhole(std::abs(middle) / step * 2) ? middle : 0;
    RoundScale scale{from + lineAbove(low - from, step), step, 0};
    scale.steps = static_cast<int>(std::floor((high - scale.low) / step + Hair));
    return scale;
}

RoundScale roundedOut(double low, double high) {
    if (!(high > low))
        return {low, 1, 0};
    const double step = roundStep((high - low) / Steps);
    const double first = lineBelow(low, step);
    return {first, step, static_cast<int>(std::round((lineAbove(high, step) - first) / step))};
}

int decimalsOf(const RoundScale& scale) {
    int decimals = 0;
    double power = 1;
    while (decimals < MostDecimals &&
           !(isWhole(scale.step * power) && isWhole(std::abs(scale.low) * power))) {
        ++decimals;
        power *= 10;
    }
    return decimals;
}

}  // namespace lorvane::desktop
