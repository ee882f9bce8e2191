// From noncentrality and degrees of freedom to a critical value and a power.
#pragma once

#include "engine/study.h"
#include "platform/distribution_library.h"

namespace lorvane {

/// Phi(x), the lower tail of the standard normal distribution.
double NormalCDF(DistributionLibrary& library, double x);

/// Critical value of the central t distribution that leaves p in one tail; positive. p is 1e-6 to 0.5, df 1
/// or more.
double TInv(DistributionLibrary& library, double p, double df);

/// Critical value of the standard normal distribution that leaves p in one tail; positive. p is above 0 and
/// below 1.
double NormInv(DistributionLibrary& library, double p);

/// The smaller of two numbers; on equality a.
double SmallerOf(double a, double b);

/// P(T > t) of the noncentral t distribution with noncentrality lambda, 0 or more; df 1 or more.
double GetPowerT(DistributionLibrary& library, double t, double df, double lambda);

/// Whether the study's test is the normal one, which has no degrees of freedom.
bool isNormalTest(const Study& study);

/// What a test comes to.
struct TestPower {
    double crit;   ///< critical value, positive
    double power;  ///< 0 to 1
};

/// Power of the t test with noncentrality lambda. One-tailed: 1 - F(crit); two-tailed:
/// 1 - F(crit) + F(-crit), F the noncentral t distribution function. Throws ArithmeticFault when crit or
/// lambda is not finite.
TestPower GetPowerTDist(DistributionLibrary& library, double alpha, Tails tails, double df, double lambda);

/// Power of the test of a difference of event rates in normal theory: the variance is pooled under the null
/// hypothesis and separate under the alternative. With a and b the roots of the two variances it is
/// 1 - Phi((a crit - effect) / b), and two-tailed also + Phi((-a crit - effect) / b). The mode tells which
/// distribution gives crit. The effect keeps its sign, so one tail sees a positive effect only. Throws
/// ArithmeticFault when a value is not finite, as with a separate variance of 0.
TestPower GetPowerBinary(DistributionLibrary& library, PowerOptions mode, double alpha, Tails tails,
                         double df, double pooled, double separate, double effect);

/// Writes txtCritT and txtPower from what the design's routine has left in study.result. A risk difference
/// takes the test in normal theory when the z distribution is chosen; all else takes the t test. A risk ratio
/// and two risks have no test: both results stay as they were.
void ComputePower(Study& study, DistributionLibrary& library);

}  // namespace lorvane
