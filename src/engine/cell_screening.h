// How likely a cluster of a binary study is to have a small expected count of events or non-events.
#pragma once

#include "engine/study.h"
#include "platform/distribution_library.h"

namespace lorvane {

/// Expected count below which a cell is small.
inline constexpr double smallCellCount = 3.5;
/// Share of clusters with a small cell from which on the counts are called low; a share of just this much is
/// low.
inline constexpr double lowShare = 0.1;

/// Shares of clusters of one arm, 0 to 1.
struct SmallCounts {
    double A;  ///< with few events
    double B;  ///< with few non-events
};

/// The arm that is screened.
enum class ScreenedArm { control, treated };

/// Shares of clusters with fewer than k events and with fewer than k non-events. A cluster of the arm has n
/// individuals and the event rate r. The log odds of the rates seen in the clusters are taken as normal about
/// those of r. Their variance is 1 / (n r (1 - r)), the sampling of n individuals, plus V, the logit variance
/// of the clusters; the treated arm also adds T, the tau-squared of the blocked levels. So A is Phi of the
/// log odds of k / n in that distribution, and B is 1 - Phi of those of 1 - k / n. A cluster of k or fewer
/// individuals is always small. Throws ArithmeticFault when a value is not finite.
SmallCounts GetProbs(DistributionLibrary& library, ScreenedArm arm, double k, double n, double r, double V,
                     double T);

/// Screens the study's four cells and writes study.counts. In spite of its name, which is historical, it
/// serves all nine designs.
void AAAComputeTwoLevelHDEvents(Study& study, DistributionLibrary& library);

}  // namespace lorvane
