// The noncentral t distribution in extended precision by brute force, to check the fast methods by.
#pragma once

#include <cmath>

namespace lorvane::test {

struct ExtendedTails {
    double lower;
    double upper;
};

/// S^2 - 1 - 2 ln S at x = ln S, without cancellation.
inline long double scaleDeviance(long double x) {
    const long double y = 2 * x;
    if (std::abs(y) > 0.3L) {
        return std::expm1(y) - y;
    }
    long double sum = 0;
    long double term = y * y / 2;
    for (int n = 3; n < 30; ++n) {
        sum += term;
        term *= y / n;
    }
    return sum;
}

/// Where, on the given side of 0, the density of ln S has fallen by exp(-60).
inline long double edgeOfScale(long double df, int side) {
    long double inside = 0;
    long double outside = side > 0 ? 60 : -(70 / df + 5);
    for (int round = 0; round < 60; ++round) {
        const long double middle = (inside + outside) / 2;
        (df / 2 * scaleDeviance(middle) < 60 ? inside : outside) = middle;
    }
    return outside;
}

/// Both tails by an equidistant sum over ln S, fine enough for the sharper of its two factors.
inline ExtendedTails noncentralTByQuadrature(double t, double df, double lambda) {
    const long double step = 0.42L / std::sqrt(1.0L * lambda * lambda + 2.0L * df + 12);
    const auto first = static_cast<long>(std::floor(edgeOfScale(df, -1) / step));
    const auto last = static_cast<long>(std::ceil(edgeOfScale(df, 1) / step));
    long double whole = 0;
    long double lower = 0;
    long double upper = 0;
    for (long k = first; k <= last; ++k) {
        const long double x = static_cast<long double>(k) * step;
        const long double weight = std::exp(-0.5L * df * scaleDeviance(x));
        const long double argument = (t * std::exp(x) - lambda) * std::sqrt(0.5L);
        whole += weight;
        lower += weight * std::erfc(-argument) / 2;
        upper += weight * std::erfc(argument) / 2;
    }
    return {static_cast<double>(lower / whole), static_cast<double>(upper / whole)};
}

}  // namespace lorvane::test
