// Screening of the cell counts of a binary study.
#include "engine/cell_screening.h"

#include <cmath>

#include "base/arithmetic_fault.h"
#include "engine/effect_metrics.h"
#include "engine/power_test.h"

namespace lorvane {

namespace {

double sumOfLogitVariances(const Study& s) {
    double sum = 0;
    for (int level = 2; level <= s.NumLevels; ++level)
        sum += s.logit.LogitV(level);
    return sum;
}

double sumOfTauSquared(const Study& s) {
    double sum = 0;
    for (int level = s.RandomizedLevel + 1; level <= s.NumLevels; ++level)
        sum += GetTauSq(s, level);
    return sum;
}

}  // namespace

SmallCounts GetProbs(DistributionLibrary& library, ScreenedArm arm, double k, double n, double r, double V,
                     double T) {
    if (n <= k)
        return {1, 1};
    const double W = arm == ScreenedArm::treated ? V + T : V;
    const double Lr = Logit(r);
    const double La = Logit(k / n);
    const double Lb = Logit(1 - k / n);
    const double s = std::sqrt(1 / (n * r * (1 - r)) + W);
    const double a = (La - Lr) / s;
    const double b = (Lb - Lr) / s;
    requireFinite("GetProbs", {Lr, s, a, b});
    return {NormalCDF(library, a), 1 - NormalCDF(library, b)};
}

void AAAComputeTwoLevelHDEvents(Study& study, DistributionLibrary& library) {
    const double V = sumOfLogitVariances(study);
    const double T = sumOfTauSquared(study);
    const SmallCounts control =
        GetProbs(library, ScreenedArm::control, smallCellCount, study.txtNC(1), study.txtPrev, V, T);
    const SmallCounts treated =
        GetProbs(library, ScreenedArm::treated, smallCellCount, study.txtNT(1), study.txtEvent2, V, T);
    CellCounts& counts = study.counts;
    counts.isScreened = true;
    counts.n(1) = study.txtNC(1);
    counts.n(2) = study.txtNT(1);
    counts.rate(1) = study.txtPrev;
    counts.rate(2) = study.txtEvent2;
    counts.share(1) = control.A;
    counts.share(2) = control.B;
    counts.share(3) = treated.A;
    counts.share(4) = treated.B;
    counts.anyLow = false;
    for (int cell = 1; cell <= 4; ++cell) {
        counts.low(cell) = counts.share(cell) >= lowShare;
        counts.anyLow = counts.anyLow || counts.low(cell);
    }
}

}  // namespace lorvane
