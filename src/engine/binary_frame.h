// What the nine routines for binary outcomes share: the event rates, the ICC on other scales, and how a
// risk difference and an odds ratio are posted.
#pragma once

#include "engine/degrees_of_freedom.h"
#include "engine/study.h"

namespace lorvane {

/// Event rates of a binary study and individuals in the arms.
struct EventRates {
    double p;     ///< control rate
    double q;     ///< treated rate that ComputedOR implies
    double OR;    ///< ComputedOR
    double pbar;  ///< rate over both arms
    double NT;    ///< individuals in the treated arm of the whole study
    double NC;
};

EventRates eventRates(const Study& study, double NT, double NC);

/// x (1 - x), the variance of one event.
inline double u(double x) { return x * (1 - x); }

/// ICCs of levels 2 to 4 on one scale. The entered ICC belongs to the control rate.
struct ScaledIcc {
    double i2;
    double i3;
    double i4;
};

ScaledIcc enteredIcc(const Study& study);
/// The ICCs at the treated rate and at the rate over both arms.
ScaledIcc iccOfTreatedRate(const Study& study, const EventRates& rates);
ScaledIcc iccOfPooledRate(const Study& study, const EventRates& rates);

/// Sizes of levels 1 to 3 in one arm.
struct ArmSizes {
    double n1;
    double n2;
    double n3;
};

ArmSizes treatedSizes(const Study& study);
ArmSizes controlSizes(const Study& study);

/// Design effect of one arm.
using DesignEffect = double (*)(const Study&, const ArmSizes&, const ScaledIcc&);

/// Design effect of a design in which individuals are randomized.
double noDesignEffect(const Study& study, const ArmSizes& sizes, const ScaledIcc& icc);

/// Writes difference, pooled and separate variance of a risk difference, and lambda as difference over the
/// root of the separate variance. W is the block term, the variance of the effect over blocks.
void postRiskDifference(Study& study, const EventRates& rates, DesignEffect E, double W, const char* routine);

/// Writes lambda of the log odds ratio: ln(OR) over the root of the variance, to which this function adds
/// the binomial part of both arms.
void postOddsRatio(Study& study, const EventRates& rates, double designTerms, const char* routine);

/// Writes the degrees of freedom, where the sampling models tell them.
void postDf(Study& study, const TestDf& df);

}  // namespace lorvane
