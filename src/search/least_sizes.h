// The least sizes that a design can have: for degrees of freedom, and for cell counts.
#pragma once

#include <optional>

#include "engine/study.h"
#include "platform/distribution_library.h"

namespace lorvane {

/// The least size of a level, counted from 1, that leaves enough degrees of freedom after its covariates: 0
/// at a lower level, 1 at the top, with a tolerance of 0.00001. The other levels have their present sizes,
/// the same in both arms.
double Getmin(const Study& study, int level);

/// The size that a search gives a level below the top at least before it starts, or where it is set by hand:
/// a blocked level needs three units for a covariate, an arm two.
double leastForCovariates(const Study& study, int level);

/// The least size of level 1, the same in both arms, at which no cell of a binary study is low; nothing when
/// 100,000 do not suffice. The study's sizes stay as they are.
std::optional<double> GetMinN(const Study& study, DistributionLibrary& library);

}  // namespace lorvane
