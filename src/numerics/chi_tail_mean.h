// The mean of a normal tail over the chi scale by a quadrature laid out for the one integral asked for.
// Slower than the kept rules of chi_rule.h, but good for any steepness. Keeps nothing between calls.
#pragma once

namespace lorvane::numerics {

/// The mean of 1 - Phi(slope S + shift) over S = chi / sqrt(df). df >= 1 (any df > 0 gives a value);
/// slope finite and not 0; |shift| <= 1e6; slope + shift >= 0, so that the mean is the smaller of two
/// tails. Absolute error below 1e-13 for |shift| <= 100; relative error below 1e-10 where the mean
/// exceeds 1e-9. Method: trapezoidal sum in y with ln S = center + width sinh(y), fine where the
/// integrand is sharp and coarse far away from there.
double chiMeanOfUpperTail(double slope, double shift, double df);

}  // namespace lorvane::numerics
