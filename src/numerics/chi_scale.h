// The law of S = chi / sqrt(df), the random scale of a t statistic, in the variable in which it is nearly
// normal: z with z^2 = df (S^2 - 1 - 2 ln S) and the sign of S - 1, so that its density is exactly
// proportional to exp(-z^2 / 2) d(ln S). Knows nothing of t and of its tails.
#pragma once

namespace lorvane::numerics {

/// The x = 2 ln S that belongs to w = z / sqrt(df): the root of e^x - 1 - x = w^2 with the sign of w.
/// Any finite w; relative error below 1e-14. Method: the series of Lagrange's inversion where that
/// suffices, Halley's iteration from it or from the asymptotes otherwise.
double logSquareOfScale(double w);

/// The integral of exp(-(df/2)(S^2 - 1 - 2 ln S)) over ln S, that is Gamma(a) e^a a^-a / 2 with a = df/2.
/// df > 0; relative error below 1e-13. Method: Stirling's series (Abramowitz and Stegun 6.1.40), the
/// gamma function itself for a below 10.
double chiDensityIntegral(double df);

}  // namespace lorvane::numerics
