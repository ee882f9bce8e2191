// Power of the randomized-block designs with a binary outcome.
//
// Names as on paper: NBi blocks of level i per unit above; nTi, nCi units in an arm; Ri, fi the R-squared and
// model (1 fixed, 0 random); taui the tau-squared of a blocked level; Vi the logit variance of a nested
// level; E the design effect of one arm; W the variance of the effect over blocks. Level 1 has no covariates.
#include "engine/binary_frame.h"
#include "engine/cell_screening.h"
#include "engine/design_routines.h"
#include "engine/effect_metrics.h"

namespace lorvane {

namespace {

double designEffectRBClasses(const Study& s, const ArmSizes& n, const ScaledIcc& icc) {
    return (1 - s.txtRsq(2)) * (n.n1 - 1) * icc.i2 + 1;
}

double designEffectRBTeachers(const Study& s, const ArmSizes& n, const ScaledIcc& icc) {
    return (1 - s.txtPop(2)) * (n.n1 - 1) * (1 - s.txtRsq(2)) * icc.i2 + 1 +
           (n.n1 * n.n2 - 1) * (1 - s.txtRsq(3)) * icc.i3;
}

// What is left of a blocked level's tau-squared: its covariates explain a share, a fixed level drops it.
double unexplained(const Study& s, int level) {
    return (1 - s.txtRsq(level)) * GetTauSq(s, level) * (1 - s.txtPop(level));
}

void postEffect(Study& s, const EventRates& r, DesignEffect E, double W, double logOddsTerms,
                const char* routine) {
    if (s.BinaryType == BinaryTypes::riskDifference)
        postRiskDifference(s, r, E, W, routine);
    else if (s.BinaryType == BinaryTypes::oddsRatio)
        postOddsRatio(s, r, logOddsTerms, routine);
}

}  // namespace

void ComputeTwoLevelRBStudentsBinary(Study& s, DistributionLibrary& library) {
    const double NB2 = s.txtNB(2);
    const EventRates r = eventRates(s, s.txtNT(1) * NB2, s.txtNC(1) * NB2);
    const double W = unexplained(s, 2) / NB2;
    postEffect(s, r, noDesignEffect, W, W, "ComputeTwoLevelRBStudentsBinary");
    postDf(s, dfTwoLevelRBStudents(s, 0));
    checkTwoLevelRBStudents(s, 0);
    AAAComputeTwoLevelHDEvents(s, library);
}

void ComputeThreeLevelRBStudentsBinary(Study& s, DistributionLibrary& library) {
    const double NB2 = s.txtNB(2), NB3 = s.txtNB(3);
    const EventRates r = eventRates(s, s.txtNT(1) * NB2 * NB3, s.txtNC(1) * NB2 * NB3);
    const double W = unexplained(s, 2) / (NB2 * NB3) + unexplained(s, 3) / NB3;
    postEffect(s, r, noDesignEffect, W, W, "ComputeThreeLevelRBStudentsBinary");
    postDf(s, dfThreeLevelRBStudents(s, 0));
    checkThreeLevelRBStudents(s, 0);
    AAAComputeTwoLevelHDEvents(s, library);
}

void ComputeFourLevelRBStudentsBinary(Study& s, DistributionLibrary& library) {
    const double NB2 = s.txtNB(2), NB3 = s.txtNB(3), NB4 = s.txtNB(4);
    const EventRates r = eventRates(s, s.txtNT(1) * NB2 * NB3 * NB4, s.txtNC(1) * NB2 * NB3 * NB4);
    const double W =
        unexplained(s, 3) / (NB3 * NB4) + unexplained(s, 4) / NB4 + unexplained(s, 2) / (NB3 * NB4 * NB2);
    postEffect(s, r, noDesignEffect, W, W, "ComputeFourLevelRBStudentsBinary");
    postDf(s, dfFourLevelRBStudents(s, 0));
    checkFourLevelRBStudents(s, 0);
    AAAComputeTwoLevelHDEvents(s, library);
}

void ComputeThreeLevelRBClassesBinary(Study& s, DistributionLibrary& library) {
    const double NB3 = s.txtNB(3), nT2 = s.txtNT(2), nC2 = s.txtNC(2);
    const EventRates r = eventRates(s, s.txtNT(1) * nT2 * NB3, s.txtNC(1) * nC2 * NB3);
    const double R2 = s.txtRsq(2), V2 = s.logit.LogitV(2);
    const double W = unexplained(s, 3) / NB3;
    const double logOddsTerms = W + (1 - R2) * V2 / (nT2 * NB3) + (1 - R2) * V2 / (nC2 * NB3);
    postEffect(s, r, designEffectRBClasses, W, logOddsTerms, "ComputeThreeLevelRBClassesBinary");
    postDf(s, dfThreeLevelRBClasses(s));
    checkThreeLevelRBClasses(s, 0);
    AAAComputeTwoLevelHDEvents(s, library);
}

void ComputeFourLevelRBClassesBinary(Study& s, DistributionLibrary& library) {
    const double NB3 = s.txtNB(3), NB4 = s.txtNB(4), nT2 = s.txtNT(2), nC2 = s.txtNC(2);
    const EventRates r = eventRates(s, s.txtNT(1) * nT2 * NB3 * NB4, s.txtNC(1) * nC2 * NB3 * NB4);
    const double R2 = s.txtRsq(2), V2 = s.logit.LogitV(2);
    const double W = unexplained(s, 3) / (NB3 * NB4) + unexplained(s, 4) / NB4;
    const double logOddsTerms = W + (1 - R2) * V2 * (1 / (NB3 * NB4 * nC2) + 1 / (NB3 * NB4 * nT2));
    postEffect(s, r, designEffectRBClasses, W, logOddsTerms, "ComputeFourLevelRBClassesBinary");
    postDf(s, dfFourLevelRBClasses(s));
    checkFourLevelRBClasses(s, 0);
    AAAComputeTwoLevelHDEvents(s, library);
}

void ComputeFourLevelRBTeachersBinary(Study& s, DistributionLibrary& library) {
    const double NB4 = s.txtNB(4), nT3 = s.txtNT(3), nT2 = s.txtNT(2), nC3 = s.txtNC(3), nC2 = s.txtNC(2);
    const EventRates r = eventRates(s, s.txtNT(1) * nT2 * nT3 * NB4, s.txtNC(1) * nC2 * nC3 * NB4);
    const double R3 = s.txtRsq(3), R2 = s.txtRsq(2), f2 = s.txtPop(2);
    const double V3 = s.logit.LogitV(3), V2 = s.logit.LogitV(2);
    const double W = unexplained(s, 4) / NB4;
    const double logOddsTerms = W + (1 / (nC3 * NB4) + 1 / (nT3 * NB4)) * (1 - R3) * V3 +
                                (1 / (nC3 * NB4 * nC2) + 1 / (nT3 * NB4 * nT2)) * (1 - R2) * V2 * (1 - f2);
    postEffect(s, r, designEffectRBTeachers, W, logOddsTerms, "ComputeFourLevelRBTeachersBinary");
    postDf(s, dfFourLevelRBTeachers(s));
    checkFourLevelRBTeachers(s, 0);
    AAAComputeTwoLevelHDEvents(s, library);
}

}  // namespace lorvane
