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
constexpr double Hair = 1e-9;  ///< a step that misses by rounding alone does not miss

double lineBelow(double value, double step) { return std::floor(value / step + Hair) * step; }

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

double wholeStep(double length) {
    const double step = length > MostSteps ? roundStep(length / MostSteps) : 1;
    return step == std::floor(step) ? step : roundStep(2 * step);
}

}  // namespace lorvane::desktop
