// The search for the smallest effect that reaches a required power. Knows no window and no words.
#pragma once

#include "session/study_trial.h"

namespace lorvane {

enum class MdesOutcome {
    found,
    outOfReach,  ///< no admissible effect reaches the power
    problem,     ///< the study gives no power
};

struct MdesResult {
    MdesOutcome outcome = MdesOutcome::problem;
    double effect = 0;       ///< where the search ended, also out of reach, in the study's own metric
    double power = 0;        ///< of this effect; out of reach: the highest possible
    double controlRate = 0;  ///< event rates of this effect, for a binary study
    double treatedRate = 0;
    bool countsAreLow = false;  ///< with this effect too few events are expected
    bool cutByIcc = false;      ///< high ICCs narrowed the range of admissible effects
    int runs = 0;               ///< refreshes that the search took
};

/// The field that holds the effect in the study's metric.
double Study::*effectField(const Study& study);

/// Finds the smallest effect of a power, on the side of zero on which the study's effect lies (a null effect
/// rises). Means: the smallest multiple of 0.001. Odds ratio and risk difference: the power may fall again
/// beyond a peak, so the peak within the admissible range is looked for first. Risk ratio and two risks have
/// no test and end in a problem. Throws ArithmeticFault.
MdesResult FindMDES(StudyTrial trial, double requiredPower);

}  // namespace lorvane
