// What the nine routines for binary outcomes share: the event rates, the ICC on other scales, and how a
// risk difference and an odds ratio are posted.
#pragma once

#include "engine/degrees_of_freedom.h"
#include "engine/study.h"

namespace lorvane {

/// Event rates of a binary study, 0 to 1, and individuals in the arms.
struct EventRates {
    double p;     ///< control rate
    double q;     ///< treated rate that ComputedOR implies
    double OR;    ///< ComputedOR
    double pbar;  ///< mean of both rates, weighted by NT and NC
    double NT;    ///< individuals in the treated arm of the whole study
    double NC;    ///< the same in the control arm
};

/// The rates that txtPrev and ComputedOR give, with NT and NC individuals in the arms of the whole study.
/// Both must be current, so the effect has been checked before.
EventRates eventRates(const Study& study, double NT, double NC);

/// x (1 - x), the variance of an event of rate x.
inline double u(double x) { return x * (1 - x); }

/// ICCs of levels 2 to 4 at one event rate.
struct ScaledIcc {
    double i2;
    double i3;
    double i4;
};

/// The ICCs as entered. They belong to the control rate.
ScaledIcc enteredIcc(const Study& study);

/// The ICCs at the treated rate q and at the rate over both arms, pbar. The variance between clusters,
/// ICC times u(p), is taken to be the same at every rate; so the ICC at a rate x is ICC times u(p) / u(x).
ScaledIcc iccOfTreatedRate(const Study& study, const EventRates& rates);
ScaledIcc iccOfPooledRate(const Study& study, const EventRates& rates);

/// Sizes of levels 1 to 3 in one arm, each in units per unit of the level above.
struct ArmSizes {
    double n1;
    double n2;
    double n3;
};

/// The sizes of the treated and of the control arm.
ArmSizes treatedSizes(const Study& study);
ArmSizes controlSizes(const Study& study);

/// Design effect of one arm: the factor by which clustering raises the variance of the arm's event rate. 1 is
/// the variance of as many independent individuals.
using DesignEffect = double (*)(const Study&, const ArmSizes&, const ScaledIcc&);

/// Always 1, for designs in which individuals are randomized.
double noDesignEffect(const Study& study, const ArmSizes& sizes, const ScaledIcc& icc);

/// Writes the risk difference q - p, its pooled and separate variance, and lambda as difference over the root
/// of the separate variance. The separate variance is E u(q) / NT + E u(p) / NC + W, each arm with the ICC at
/// its own rate. The pooled one takes rate and ICC over both arms for each. W is the block term, the variance
/// of the effect over blocks. Throws ArithmeticFault, which names the routine, where a value is not finite.
void postRiskDifference(Study& study, const EventRates& rates, DesignEffect E, double W, const char* routine);

/// Writes lambda of the log odds ratio, ln(OR) over the root of its variance. The variance is the sum of
/// designTerms, the part of clusters and blocks, and the binomial part of both arms, 1 / (NT u(q)) + 1 / (NC
/// u(p)). Throws ArithmeticFault, which names the routine, where a value is not finite.
void postOddsRatio(Study& study, const EventRates& rates, double designTerms, const char* routine);

/// Writes the degrees of freedom of the test. Where the sampling models tell none, the earlier ones stay.
void postDf(Study& study, const TestDf& df);

}  // namespace lorvane
