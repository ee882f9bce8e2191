// The checks that tell whether the search for the cheapest design may run, and whether a study holds values
// that a reset would lose. A check clears its flag and never sets one.
#pragma once

#include "engine/study.h"

namespace lorvane {

/// Clears xValidES for a null effect: abs(txtd) of 0.001 or less; an odds ratio of exactly 1, without
/// tolerance.
void CheckES(Study& study);

/// Clears xValidTotICC when the ICCs of levels 2 to NumLevels sum to 0.999 or more.
void CheckTotICC(Study& study);

/// Each clears the flag of the level when its value is zero or less.
void CheckCost(Study& study, double cost, int level);
void CheckICC(Study& study, double icc, int level);
void CheckOmega(Study& study, double omega, int level);
void CheckTauSq(Study& study, double tauSquared, int level);

/// Clears xValidModel(level) when the level's sampling model is fixed.
void CheckModel(Study& study, double model, int level);

/// True when the study holds an effect, a dispersion, covariates or a span of individuals that differ from
/// what a reset leaves.
bool NeedOk(const Study& study);

}  // namespace lorvane
