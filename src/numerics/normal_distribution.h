// The standard normal distribution: both tails and the inverse, to full double accuracy.
// Knows nothing of the other distributions.
#pragma once

namespace lorvane::numerics {

/// Phi(x) for any x. Relative error a few units of the last place. Method: std::erfc.
double normalLower(double x);

/// 1 - Phi(x) for any x, without cancellation. Method: std::erfc.
double normalUpper(double x);

/// The x with Phi(x) = p, 0 < p < 1; relative error below 1e-15. Minus and plus infinity at p <= 0 and
/// p >= 1, NaN for NaN. Method: rational minimax approximations, algorithm AS 241 (PPND16) of
/// M. J. Wichura, Applied Statistics 37 (1988), 477-484.
double normalQuantile(double p);

}  // namespace lorvane::numerics
