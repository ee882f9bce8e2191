// Power of the randomized-block designs with means. Every unit above the randomized level holds both arms,
// so variance between blocks is removed and what remains of a blocked level is its tau-squared.
//
// Names as on paper: NBi blocks of level i per unit above; nTi, nCi units in an arm; icci, Ri, fi the ICC,
// R-squared and model (1 fixed, 0 random); taui the tau-squared on the d-total scale; S the
// treated-by-control harmonic size of one top-level block, so that 1 / S is the sampling variance of a mean
// difference in it; V the variance of the estimate times S. A fixed blocked level drops its tau term.
#include <cmath>

#include "base/arithmetic_fault.h"
#include "engine/degrees_of_freedom.h"
#include "engine/design_routines.h"
#include "engine/effect_metrics.h"

namespace lorvane {

namespace {

// h, the treated-by-control harmonic size of one block of individuals.
double harmonicSize(const Study& s) { return s.txtNC(1) * s.txtNT(1) / (s.txtNC(1) + s.txtNT(1)); }

// The harmonic size of one block of classes, where classes are randomized.
double harmonicSizeOfClasses(double nT1, double nT2, double nC1, double nC2) {
    return nT1 * nT2 * nC2 * nC1 / (nC1 * nC2 + nT1 * nT2);
}

double lambdaOf(const Study& s, double S, double V) {
    const double X = S / V;
    return std::sqrt(s.txtNB(s.NumLevels)) * (std::sqrt(X) * GetDT(s));
}

void store(Study& s, double lambda, const TestDf& df) {
    s.result.xLambda = lambda;
    if (df)
        s.result.xdf = *df;
}

}  // namespace

void ComputeTwoLevelRBStudentsMeans(Study& s) {
    const double icc2 = s.txtICC(2), R2 = s.txtRsq(2), R1 = s.txtRsq(1), f2 = s.txtPop(2);
    const double tau2 = GetTauSq(s, 2);

    const double S = harmonicSize(s);
    const double V = (1 - f2) * S * tau2 * (1 - R2) + (1 - icc2) * (1 - R1);
    const double lambda = lambdaOf(s, S, V);
    requireFinite("ComputeTwoLevelRBStudentsMeans", {S, V, lambda});

    store(s, lambda, dfTwoLevelRBStudents(s, s.txtQ(1)));
    checkTwoLevelRBStudents(s, s.txtQ(1));
}

void ComputeThreeLevelRBStudentsMeans(Study& s) {
    const double icc3 = s.txtICC(3), icc2 = s.txtICC(2);
    const double R3 = s.txtRsq(3), R2 = s.txtRsq(2), R1 = s.txtRsq(1);
    const double f3 = s.txtPop(3), f2 = s.txtPop(2);
    const double tau3 = GetTauSq(s, 3), tau2 = GetTauSq(s, 2);

    const double h = harmonicSize(s);
    const double S = h * s.txtNB(2);
    const double V =
        (1 - f3) * S * tau3 * (1 - R3) + (1 - icc3 - icc2) * (1 - R1) + (1 - f2) * h * tau2 * (1 - R2);
    const double lambda = lambdaOf(s, S, V);
    requireFinite("ComputeThreeLevelRBStudentsMeans", {S, V, lambda});

    store(s, lambda, dfThreeLevelRBStudents(s, s.txtQ(1)));
    checkThreeLevelRBStudents(s, s.txtQ(1));
}

void ComputeFourLevelRBStudentsMeans(Study& s) {
    const double icc4 = s.txtICC(4), icc3 = s.txtICC(3), icc2 = s.txtICC(2);
    const double R4 = s.txtRsq(4), R3 = s.txtRsq(3), R2 = s.txtRsq(2), R1 = s.txtRsq(1);
    const double f4 = s.txtPop(4), f3 = s.txtPop(3), f2 = s.txtPop(2);
    const double tau4 = GetTauSq(s, 4), tau3 = GetTauSq(s, 3), tau2 = GetTauSq(s, 2);

    const double h = harmonicSize(s);
    const double h2 = h * s.txtNB(2);
    const double S = s.txtNB(2) * s.txtNB(3) * h;
    const double V = (1 - f4) * S * tau4 * (1 - R4) + (1 - icc4 - icc3 - icc2) * (1 - R1) +
                     (1 - f3) * h2 * tau3 * (1 - R3) + (1 - f2) * h * tau2 * (1 - R2);
    const double lambda = lambdaOf(s, S, V);
    requireFinite("ComputeFourLevelRBStudentsMeans", {S, V, lambda});

    store(s, lambda, dfFourLevelRBStudents(s, s.txtQ(1)));
    checkFourLevelRBStudents(s, s.txtQ(1));
}

void ComputeThreeLevelRBClassesMeans(Study& s) {
    const double nT2 = s.txtNT(2), nT1 = s.txtNT(1), nC2 = s.txtNC(2), nC1 = s.txtNC(1);
    const double icc3 = s.txtICC(3), icc2 = s.txtICC(2);
    const double R3 = s.txtRsq(3), R2 = s.txtRsq(2), R1 = s.txtRsq(1);
    const double f3 = s.txtPop(3);
    const double tau3 = GetTauSq(s, 3);

    const double S = harmonicSizeOfClasses(nT1, nT2, nC1, nC2);
    const double c = nC1 * nT1 * (nC2 + nT2) / (nC1 * nC2 + nT1 * nT2);
    const double V = (1 - f3) * S * tau3 * (1 - R3) + (1 - icc3 - icc2) * (1 - R1) + c * icc2 * (1 - R2);
    const double lambda = lambdaOf(s, S, V);
    requireFinite("ComputeThreeLevelRBClassesMeans", {S, c, V, lambda});

    store(s, lambda, dfThreeLevelRBClasses(s));
    checkThreeLevelRBClasses(s, s.txtQ(1));
}

void ComputeFourLevelRBClassesMeans(Study& s) {
    const double nT2 = s.txtNT(2), nT1 = s.txtNT(1), nC2 = s.txtNC(2), nC1 = s.txtNC(1);
    const double icc4 = s.txtICC(4), icc3 = s.txtICC(3), icc2 = s.txtICC(2);
    const double R4 = s.txtRsq(4), R3 = s.txtRsq(3), R2 = s.txtRsq(2), R1 = s.txtRsq(1);
    const double f4 = s.txtPop(4), f3 = s.txtPop(3);
    const double tau4 = GetTauSq(s, 4), tau3 = GetTauSq(s, 3);

    const double S0 = harmonicSizeOfClasses(nT1, nT2, nC1, nC2);
    const double S = S0 * s.txtNB(3);
    const double c = nC1 * nT1 * (nC2 + nT2) / (nC1 * nC2 + nT1 * nT2);
    const double V = (1 - f4) * S * tau4 * (1 - R4) + (1 - icc4 - icc3 - icc2) * (1 - R1) +
                     (1 - f3) * S0 * tau3 * (1 - R3) + icc2 * c * (1 - R2);
    const double lambda = lambdaOf(s, S, V);
    requireFinite("ComputeFourLevelRBClassesMeans", {S, c, V, lambda});

    store(s, lambda, dfFourLevelRBClasses(s));
    checkFourLevelRBClasses(s, s.txtQ(1));
}

void ComputeFourLevelRBTeachersMeans(Study& s) {
    const double nT3 = s.txtNT(3), nT2 = s.txtNT(2), nT1 = s.txtNT(1);
    const double nC3 = s.txtNC(3), nC2 = s.txtNC(2), nC1 = s.txtNC(1);
    const double icc4 = s.txtICC(4), icc3 = s.txtICC(3), icc2 = s.txtICC(2);
    const double R4 = s.txtRsq(4), R3 = s.txtRsq(3), R2 = s.txtRsq(2), R1 = s.txtRsq(1);
    const double f4 = s.txtPop(4), f2 = s.txtPop(2);
    const double tau4 = GetTauSq(s, 4);

    const double P = nT2 * nT3 * nT1;
    const double W = nC2 * nC3 * nC1 + P;
    const double S = P * nC3 * nC2 * nC1 / W;
    const double c3 = nT1 * nT2 * nC2 * nC1 * (nC3 + nT3) / W;
    const double c2 = (nC2 * nC3 * (1 - f2) + nT2 * nT3 * (1 - f2)) * (nC1 * nT1) / W;
    const double V = (1 - f4) * S * tau4 * (1 - R4) + (1 - icc4 - icc3 - icc2) * (1 - R1) +
                     icc3 * c3 * (1 - R3) + icc2 * c2 * (1 - R2);
    const double lambda = lambdaOf(s, S, V);
    requireFinite("ComputeFourLevelRBTeachersMeans", {S, c3, c2, V, lambda});

    store(s, lambda, dfFourLevelRBTeachers(s));
    checkFourLevelRBTeachers(s, s.txtQ(1));
}

}  // namespace lorvane
