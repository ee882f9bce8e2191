// From noncentrality and degrees of freedom to a critical value and a power.
#pragma once

#include "engine/study.h"
#include "platform/distribution_library.h"

namespace lorvane {

/// Phi(x), the lower tail of the standard normal distribution.
double NormalCDF(DistributionLibrary& library, double x);

/// Critical value of the central t distribution that leaves p in one tail; positive.
double TInv(DistributionLibrary& library, double p, double df);

/// Critical value of the standard normal distribution that leaves p in one tail; positive.
double NormInv(DistributionLibrary& library, double p);

/// The smaller of two numbers; on equality a.
double SmallerOf(double a, double b);

/// P(T > t) of the noncentral t distribution.
void GetPowerT(DistributionLibrary& library, double t, double df, double lambda, double& result);

/// Power of the t test with noncentrality lambda. One-tailed: 1 - F(crit); two-tailed:
/// 1 - F(crit) + F(-crit), F the noncentral t distribution function. Other tails leave the power as it was.
void GetPowerTDist(DistributionLibrary& library, double alpha, int tails, double df, double lambda,
                   double& crit, double& power);

/// Power of the test of a difference of event rates in normal theory: the variance is pooled under the null
/// hypothesis and separate under the alternative. mode 1 takes the critical value from the t distribution,
/// mode 2 from the normal. The effect keeps its sign.
void GetPowerBinary(DistributionLibrary& library, int mode, double alpha, int tails, double df, double pooled,
                    double separate, double effect, double& crit, double& power);

/// Writes txtCritT and txtPower for the study's test. A risk ratio and two risks have no test: both stay.
void ComputePower(Study& study, DistributionLibrary& library);

}  // namespace lorvane
