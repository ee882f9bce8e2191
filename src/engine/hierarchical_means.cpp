// Power of the hierarchical designs with means. Treatment is assigned to whole units of the top level, so
// no dispersion of the effect enters; the test runs on the units of the top level.
//
// Names as on paper: nTi, nCi units of level i in an arm per unit above; icci, Ri, Qi, fi the ICC, R-squared,
// covariates and model (1 fixed, 0 random) of level i; NT, NC individuals in an arm; H the harmonic mean of
// the arm totals; n2, n3, n4 individuals per unit of a level, each arm weighted by the other arm's total;
// D the design effect.
#include <cmath>

#include "base/arithmetic_fault.h"
#include "engine/degrees_of_freedom.h"
#include "engine/design_routines.h"
#include "engine/effect_metrics.h"

namespace lorvane {

void ComputeTwoLevelHDMeans(Study& s) {
    const double nT2 = s.txtNT(2), nC2 = s.txtNC(2), nT1 = s.txtNT(1), nC1 = s.txtNC(1);
    const double rho = s.txtICC(2), R2 = s.txtRsq(2), R1 = s.txtRsq(1);

    const double NT = nT1 * nT2;
    const double NC = nC1 * nC2;
    const double H = (NT + NT) * NC / (NC + NT);
    const double nbar = (NT * nC1 + NC * nT1) / (NC + NT);
    // With equal arms this is (1 - rho)(1 - R1) + nbar rho (1 - R2).
    const double D = ((nbar - 1) * rho + 1) - ((nbar * R2 - R1) * rho + R1);
    const double lambda = std::sqrt(H / 2) * (std::sqrt(1 / D) * GetDT(s));
    requireFinite("ComputeTwoLevelHDMeans", {H, nbar, D, lambda});

    s.result.xLambda = lambda;
    s.result.xdf = dfHierarchical(s);
    checkTwoLevelHD(s, s.txtQ(1));
}

void ComputeThreeLevelHDMeans(Study& s) {
    const double nT3 = s.txtNT(3), nT2 = s.txtNT(2), nT1 = s.txtNT(1);
    const double nC3 = s.txtNC(3), nC2 = s.txtNC(2), nC1 = s.txtNC(1);
    const double icc3 = s.txtICC(3), icc2 = s.txtICC(2);
    const double R3 = s.txtRsq(3), R2 = s.txtRsq(2), R1 = s.txtRsq(1);
    const double f2 = s.txtPop(2);

    const double NT = nT2 * nT3 * nT1;
    const double NC = nC2 * nC3 * nC1;
    const double H = (NT + NT) * NC / (NC + NT);
    const double n3 = (NT * nC2 * nC1 + NC * nT2 * nT1) / (NC + NT);
    // The factor (1 - f2) stands in n2 and again in D. Both are deliberate.
    const double n2 = (NT * nC1 * (1 - f2) + NC * nT1 * (1 - f2)) / (NC + NT);
    const double D = ((((1 - f2) * n2 - 1) * icc2) + ((n3 - 1) * icc3 + 1)) -
                     (((1 - f2) * n2 * R2 - R1) * icc2 + ((R3 * n3 - R1) * icc3 + R1));
    const double lambda = std::sqrt(H / 2) * (std::sqrt(1 / D) * GetDT(s));
    requireFinite("ComputeThreeLevelHDMeans", {H, n3, n2, D, lambda});

    s.result.xLambda = lambda;
    s.result.xdf = dfHierarchical(s);
    checkThreeLevelHD(s, s.txtQ(1));
}

void ComputeFourLevelHDMeans(Study& s) {
    const double nT4 = s.txtNT(4), nT3 = s.txtNT(3), nT2 = s.txtNT(2), nT1 = s.txtNT(1);
    const double nC4 = s.txtNC(4), nC3 = s.txtNC(3), nC2 = s.txtNC(2), nC1 = s.txtNC(1);
    const double icc4 = s.txtICC(4), icc3 = s.txtICC(3), icc2 = s.txtICC(2);
    const double R4 = s.txtRsq(4), R3 = s.txtRsq(3), R2 = s.txtRsq(2), R1 = s.txtRsq(1);
    const double f3 = s.txtPop(3), f2 = s.txtPop(2);

    const double NT = nT3 * nT4 * nT2 * nT1;
    const double NC = nC3 * nC4 * nC2 * nC1;
    const double H = (NT + NT) * NC / (NC + NT);
    const double n4 = (nC3 * NT * nC2 * nC1 + nT3 * NC * nT2 * nT1) / (NC + NT);
    // The model factors stand in n3 and n2 and again in A and B. Both are deliberate.
    const double n3 = (nC2 * NT * nC1 * (1 - f3) + nT2 * NC * nT1 * (1 - f3)) / (NC + NT);
    const double n2 = (nT1 * NC * (1 - f2) + nC1 * NT * (1 - f2)) / (NC + NT);
    const double A = (((1 - f3) * n3 - 1) * icc3) + ((n4 - 1) * icc4 + 1) + (((1 - f2) * n2 - 1) * icc2);
    const double B = (((1 - f3) * n3 * R3 - R1) * icc3) + ((R4 * n4 - R1) * icc4 + R1) +
                     (((1 - f2) * n2 * R2 - R1) * icc2);
    const double D = A - B;
    const double lambda = std::sqrt(H / 2) * (std::sqrt(1 / D) * GetDT(s));
    requireFinite("ComputeFourLevelHDMeans", {H, n4, n3, n2, D, lambda});

    s.result.xLambda = lambda;
    s.result.xdf = dfHierarchical(s);
    checkFourLevelHD(s, s.txtQ(1));
}

}  // namespace lorvane
