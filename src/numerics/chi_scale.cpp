// The law of the random scale of a t statistic: its near-normal variable and its normalising integral.
#include "numerics/chi_scale.h"

#include <cmath>
#include <numbers>

namespace lorvane::numerics {
namespace {

/// x as a power series in p = sqrt(2) w. Converges for |p| < 2 sqrt(pi); error below (p / 3.5)^9.
double inversionSeries(double p) {
    return p * (1.0 +
                p * (-1.0 / 6 +
                     p * (1.0 / 36 + p * (-1.0 / 270 +
                                          p * (1.0 / 4320 + p * (1.0 / 17010 + p * (-139.0 / 5443200 +
                                                                                    p * (1.0 / 204120))))))));
}

double startingValue(double w) {
    const double p = std::numbers::sqrt2 * w;
    if (p < -2.0) {
        return -1.0 - w * w;
    }
    if (p > 3.0) {
        return std::log(1.0 + w * w + std::log(3.0 + w * w));
    }
    return inversionSeries(p);
}

/// Halley's correction of x for the equation e^x - 1 - x = w^2.
double halleyCorrection(double x, double w) {
    const double slope = std::expm1(x);
    const double newton = (slope - x - w * w) / slope;
    return newton / (1.0 - 0.5 * newton * (slope + 1.0) / slope);
}

}  // namespace

double logSquareOfScale(double w) {
    constexpr double seriesSuffices = 0.03;
    constexpr double cubeIsNegligible = 3e-6;
    if (std::abs(w) < seriesSuffices) {
        return inversionSeries(std::numbers::sqrt2 * w);
    }
    double x = startingValue(w);
    for (int round = 0; round < 8; ++round) {
        const double correction = halleyCorrection(x, w);
        x -= correction;
        if (std::abs(correction) < cubeIsNegligible * std::abs(x)) {
            break;
        }
    }
    return x;
}

double chiDensityIntegral(double df) {
    const double a = 0.5 * df;
    if (a < 10.0) {
        return 0.5 * std::tgamma(a) * std::exp(a - a * std::log(a));
    }
    const double r = 1.0 / a;
    const double r2 = r * r;
    const double remainder =
        r * (1.0 / 12 - r2 * (1.0 / 360 - r2 * (1.0 / 1260 - r2 * (1.0 / 1680 - r2 * (1.0 / 1188)))));
    return std::sqrt(0.5 * std::numbers::pi * r) * std::exp(remainder);
}

}  // namespace lorvane::numerics
