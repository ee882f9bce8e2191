// Choice of round numbers.
#include "qt/chart_ticks.h"

#include <QLocale>
#include <algorithm>
#include <cmath>

namespace lorvane {

namespace {

constexpr double hair = 1e-6;  ///< of a step: what misses by less does not miss

bool isWhole(double value) { return std::abs(value - std::round(value)) < hair; }

int decimalsOf(double step) {
    int decimals = 0;
    while (decimals < 6 && !isWhole(step * std::pow(10, decimals)))
        ++decimals;
    return decimals;
}

int ticksBetween(double low, double high, double step) {
    return static_cast<int>(std::floor(high / step + hair) - std::ceil(low / step - hair)) + 1;
}

/// Where ticks may stand: in multiples of these and of their powers of ten, or from one end to the other.
const std::vector<double> multiples = {1, 2, 2.5, 5};
const std::vector<double> betweenEnds = {1, 2, 2.5, 4, 5};

/// The steps for a length, the small ones first.
std::vector<double> stepsFor(double length, int most, bool whole, const std::vector<double>& rounds) {
    std::vector<double> steps;
    const double least = std::pow(10, std::floor(std::log10(length / most)));
    for (const double power : {least, 10 * least, 100 * least})
        for (const double round : rounds)
            if (!whole || isWhole(round * power))
                steps.push_back(round * power);
    return steps;
}

ChartTicks ticksFrom(double first, double step, int count) {
    ChartTicks ticks{{}, std::max(decimalsOf(step), decimalsOf(first))};
    for (int i = 0; i < count; ++i)
        ticks.values.push_back(first + i * step);
    return ticks;
}

}  // namespace

QString ChartTicks::text(double value) const {
    QLocale english(QLocale::English);
    return english.toString(std::abs(value) < hair ? 0.0 : value, 'f', decimals);
}

ChartTicks evenTicks(double low, double high, int steps) {
    return ticksFrom(low, (high - low) / steps, steps + 1);
}

ChartTicks roundTicks(double low, double high, int most, bool whole) {
    if (!(high > low))
        return ticksFrom(low, 1, 1);
    constexpr int fewest = 4;
    for (const double step : stepsFor(high - low, most, whole, betweenEnds)) {
        const double count = (high - low) / step;
        if (isWhole(count) && isWhole(2 * low / step) && count < most && count + 1 >= fewest)
            return ticksFrom(low, step, static_cast<int>(std::round(count)) + 1);
    }
    const std::vector<double> steps = stepsFor(high - low, most, whole, multiples);
    const double step = *std::find_if(steps.begin(), steps.end(), [&](double candidate) {
        return ticksBetween(low, high, candidate) <= most;
    });
    return ticksFrom(std::ceil(low / step - hair) * step, step, ticksBetween(low, high, step));
}

}  // namespace lorvane
