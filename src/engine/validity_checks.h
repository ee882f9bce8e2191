// The three checks that belong to the power computation. A check clears its flag and never sets one.
#pragma once

#include "engine/study.h"

namespace lorvane {

/// Clears xValidDF(level) when the degrees of freedom of a level lie below 0. A tolerance of 1e-7 lets those
/// pass that lie below by rounding alone.
void CheckDF(Study& study, double df, int level);

/// Clears xValidTestdf when the degrees of freedom of the test lie below 1, with the same tolerance.
void CheckTestDF(Study& study, double df);

/// Clears xValidQ(level) when R-squared is above 0 although there are no covariates. Level 1 of a binary
/// study has no covariates and always passes.
void CheckQ(Study& study, double rSquared, double covariates, int level);

}  // namespace lorvane
