// Lays out and sums the quadrature for the mean of a normal tail over the chi scale.
#include "numerics/chi_tail_mean.h"

#include <algorithm>
#include <cmath>

#include "numerics/chi_scale.h"
#include "numerics/normal_tail_table.h"

namespace lorvane::numerics {
namespace {

struct Interval {
    double low;
    double high;
};

/// The values of ln S outside of which the density of S is negligible.
Interval supportOfLogScale(double df) {
    constexpr double farthest = 9.2;
    constexpr double lowestLogarithm = -700.0;
    const double w = farthest / std::sqrt(df);
    return {std::max(0.5 * logSquareOfScale(-w), lowestLogarithm), 0.5 * logSquareOfScale(w)};
}

/// A smooth bound of density / upper tail of the normal law, close enough to place a center by.
double millsBound(double x) { return 0.5 * (x + std::sqrt(x * x + 4.0)); }

/// ln S where density of S times normal tail is about largest, by bisection of its derivative.
double logScaleOfPeak(double slope, double shift, double df, Interval support) {
    double low = std::exp(support.low);
    double high = std::exp(support.high);
    for (int round = 0; round < 24; ++round) {
        const double middle = std::sqrt(low * high);
        const double pull = slope * middle * millsBound(slope * middle + shift);
        (df * (1.0 - middle * middle) > pull ? low : high) = middle;
    }
    return std::log(low);
}

/// Where the nodes must be densest: at the step of the normal tail if that is much sharper than the
/// density of S, at the peak of the product otherwise.
double centerOfNodes(double slope, double shift, double df, Interval support) {
    const bool tailIsSharper = shift * shift > 8.0 * df + 4.0;
    if (tailIsSharper) {
        return std::clamp(std::log(std::abs(shift / slope)), support.low, support.high);
    }
    return logScaleOfPeak(slope, shift, df, support);
}

}  // namespace

double chiMeanOfUpperTail(double slope, double shift, double df) {
    constexpr double step = 0.06;
    const Interval support = supportOfLogScale(df);
    const double center = centerOfNodes(slope, shift, df, support);
    const double width = 3.0 / std::sqrt(shift * shift + 2.0 * df + 10.0);
    const int first = static_cast<int>(std::floor(std::asinh((support.low - center) / width) / step));
    const int last = static_cast<int>(std::ceil(std::asinh((support.high - center) / width) / step));
    double sum = 0.0;
    for (int k = first; k <= last; ++k) {
        const double growth = std::exp(k * step);
        const double logScale = center + width * 0.5 * (growth - 1.0 / growth);
        const double tail = tabledUpperTail(slope * std::exp(logScale) + shift);
        if (tail > 0.0) {
            const double exponent = -0.5 * df * (std::expm1(2.0 * logScale) - 2.0 * logScale);
            sum += tail * (growth + 1.0 / growth) * std::exp(exponent);
        }
    }
    return sum * 0.5 * width * step / chiDensityIntegral(df);
}

}  // namespace lorvane::numerics
