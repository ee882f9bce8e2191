// The four distribution functions that the power formulas need, and nothing else of statistics.
// Knows no formula of a design and no method of computation.
#pragma once

namespace lorvane {

/// Service of the distribution functions. Every function leaves its answer in its last argument,
/// reports no failure and throws nothing; callers guard the arguments beforehand.
class DistributionLibrary {
public:
    virtual ~DistributionLibrary() = default;

    /// Phi(x), the lower tail of the standard normal distribution.
    virtual void VBDNORDF(double x, double& result) = 0;

    /// The x with Phi(x) = p, for 0 < p < 1. Callers use its magnitude only.
    virtual void VBDNORIN(double p, double& result) = 0;

    /// The t that leaves the probability p in one tail of the central t distribution with df degrees
    /// of freedom (real, 1 or more; 1e-6 <= p <= 0.5). Callers use its magnitude only.
    virtual void VBDTIN(double p, double df, double& result) = 0;

    /// P(T <= t) of the noncentral t distribution; df real, 1 or more; lambda not negative.
    virtual void VBDTNDF(double t, double df, double lambda, double& result) = 0;

    /// Both rejection regions of a two-tailed test at once: P(T > crit) and P(T <= -crit), crit >= 0.
    /// The same values as two calls of VBDTNDF, at little more than the price of one.
    virtual void NoncentralTTails(double crit, double df, double lambda, double& above, double& below) = 0;
};

}  // namespace lorvane
