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

void GetProbs(DistributionLibrary& library, int arm, double k, double n, double r, double V, double T,
              double& A, double& B) {
    A = 1;
    B = 1;
    if (n <= k)
        return;
    const double W = arm == treatedArm ? V + T : V;
    const double Lr = Logit(r);
    const double La = Logit(k / n);
    const double Lb = Logit(1 - k / n);
    const double s = std::sqrt(1 / (n * r * (1 - r)) + W);
    const double a = (La - Lr) / s;
    const double b = (Lb - Lr) / s;
    requireFinite("GetProbs", {Lr, s, a, b});
    A = NormalCDF(library, a);
    B = 1 - NormalCDF(library, b);
}

void AAAComputeTwoLevelHDEvents(Study& study, DistributionLibrary& library) {
    CellCounts& counts = study.counts;
    const double V = sumOfLogitVariances(study);
    const double T = sumOfTauSquared(study);
    GetProbs(library, controlArm, smallCellCount, study.txtNC(1), study.txtPrev, V, T, counts.share(1),
             counts.share(2));
    GetProbs(library, treatedArm, smallCellCount, study.txtNT(1), study.txtEvent2, V, T, counts.share(3),
             counts.share(4));
    counts.anyLow = 0;
    for (int cell = 1; cell <= 4; ++cell) {
        counts.low(cell) = counts.share(cell) >= lowShare ? 1 : 0;
        if (counts.low(cell) == 1)
            counts.anyLow = 1;
    }
}

}  // namespace lorvane
