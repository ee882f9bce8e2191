// The sizes of the lower levels at which a given precision costs least, and whether a search may run at all.
//
// With W(k) the variance that level k contributes and U(k) the cost of one of its units, the cheapest number
// of units of level k in a unit of level k + 1 is sqrt((W(k) / W(k + 1)) (U(k + 1) / U(k))). A level whose
// size n is fixed is one with a neighbour: seen from below, level k + 1 joins with level k at variance W(k) +
// n W(k + 1) and cost U(k) + U(k + 1) / n; seen from above, at W(k) / n + W(k + 1) and n U(k) + U(k + 1).
#pragma once

#include <optional>

#include "engine/study.h"
#include "search/optimal_types.h"

namespace lorvane {

/// Size of each level below the top per unit of the level above.
using SizeRatios = IndexedArray<double, 1, highestFreeLevel>;

/// The nine routines. Each runs the checks of readiness; where the search may run it gives the ratios: sizes
/// set by hand as they are, the others by formula. Nothing where it may not. Two-level designs round theirs,
/// halves to even. The study's dispersions must be in step (a refresh has run).
std::optional<SizeRatios> ComputeTwoLevelHDOptimal(Study& study, const OptimalOptions& options);
std::optional<SizeRatios> ComputeThreeLevelHDOptimal(Study& study, const OptimalOptions& options);
std::optional<SizeRatios> ComputeFourLevelHDOptimal(Study& study, const OptimalOptions& options);
std::optional<SizeRatios> ComputeTwoLevelRBStudentsOptimal(Study& study, const OptimalOptions& options);
std::optional<SizeRatios> ComputeThreeLevelRBStudentsOptimal(Study& study, const OptimalOptions& options);
std::optional<SizeRatios> ComputeFourLevelRBStudentsOptimal(Study& study, const OptimalOptions& options);
std::optional<SizeRatios> ComputeThreeLevelRBClassesOptimal(Study& study, const OptimalOptions& options);
std::optional<SizeRatios> ComputeFourLevelRBClassesOptimal(Study& study, const OptimalOptions& options);
std::optional<SizeRatios> ComputeFourLevelRBTeachersOptimal(Study& study, const OptimalOptions& options);

/// The routine of the study's design.
std::optional<SizeRatios> computeOptimalRatios(Study& study, const OptimalOptions& options);

/// Whether all levels below the top are set by hand; model, cost and dispersion do not count then.
bool isFullyByHand(const Study& study, const OptimalOptions& options);

/// Sums the flags of the levels up and clears xValidOptimal when the search may not run.
void ResolveValidOptimal(Study& study, bool fullyByHand);

/// Sets all flags of readiness.
void resetReadiness(PowerResult& result);

}  // namespace lorvane
