// The noncentral t distribution: lower tail, upper tail, and both rejection regions of a test at once.
// Knows nothing of designs and of power.
#pragma once

#include "numerics/chi_rule.h"

namespace lorvane::numerics {

/// The probabilities that a t statistic falls above +crit and not above -crit.
struct RejectionTails {
    double above;
    double below;
};

/// T = (Z + lambda) / S with Z standard normal and S = chi / sqrt(df) independent of it.
///
/// Domain of every function: df real, 1 to 1e9; lambda 0 to 100; t any number, infinities included.
/// Absolute error below 1e-12; a tail of 1e-9 or more, for df >= 4, lambda <= 6 and |t| <= 9, has a
/// relative error below 1e-8. Answers lie in [0, 1]. Outside of the domain: NaN for df <= 0 and for NaN,
/// lambda of either sign is understood, |lambda| above 1e6 counts as infinite.
///
/// Method: P(T > t) is the mean of 1 - Phi(t S - lambda) over S. Keeps quadrature rules between
/// calls, so an object is not to be shared among threads; the answers do not depend on earlier calls.
class NoncentralT {
public:
    /// P(T <= t).
    double lower(double t, double df, double lambda);

    /// P(T > t).
    double upper(double t, double df, double lambda);

    /// P(T > crit) and P(T <= -crit), crit >= 0.
    RejectionTails rejection(double crit, double df, double lambda);

private:
    ChiRuleCache rules_;
};

}  // namespace lorvane::numerics
