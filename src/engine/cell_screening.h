// How likely a cluster of a binary study is to have a small expected count of events or non-events.
#pragma once

#include "engine/study.h"
#include "platform/distribution_library.h"

namespace lorvane {

/// Expected count below which a cell is small.
inline constexpr double smallCellCount = 3.5;
/// Share of small cells from which the counts are low; the share itself is low.
inline constexpr double lowShare = 0.1;

/// Shares of clusters with fewer than k events (A) and fewer than k non-events (B) in one arm of n
/// individuals and event rate r, when the clusters' true rates are logit-normal. V is the logit variance of
/// the clusters, T the tau-squared of the blocked levels, which the treated arm alone carries. A cluster of
/// k or fewer individuals is always small.
void GetProbs(DistributionLibrary& library, int arm, double k, double n, double r, double V, double T,
              double& A, double& B);

inline constexpr int controlArm = 1;
inline constexpr int treatedArm = 2;

/// Screens the study's four cells; the name is historical, it serves all nine designs. Writes study.counts.
void AAAComputeTwoLevelHDEvents(Study& study, DistributionLibrary& library);

}  // namespace lorvane
