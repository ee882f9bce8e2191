// Power of the hierarchical designs with a binary outcome. An odds ratio is tested as a log odds ratio with
// a variance on the logit scale, a risk difference on the natural scale with design effects.
//
// Names as on paper: nTi, nCi units of level i in an arm; Ri, fi the R-squared and model (1 fixed, 0 random);
// Vi the variance of level i on the logit scale; E the design effect of one arm.
#include <cmath>

#include "base/arithmetic_fault.h"
#include "engine/binary_frame.h"
#include "engine/cell_screening.h"
#include "engine/design_routines.h"

namespace lorvane {

namespace {

double designEffectTwoLevelHD(const Study& s, const ArmSizes& n, const ScaledIcc& icc) {
    return (n.n1 - 1) * (1 - s.txtRsq(2)) * icc.i2 + 1;
}

double designEffectThreeLevelHD(const Study& s, const ArmSizes& n, const ScaledIcc& icc) {
    return (1 - s.txtRsq(2)) * (n.n1 - 1) * (1 - s.txtPop(2)) * icc.i2 +
           (n.n1 * n.n2 - 1) * (1 - s.txtRsq(3)) * icc.i3 + 1;
}

// Each model factor multiplies the ICC of the level above its own: that of level 3 the ICC of level 4, that
// of level 2 the ICC of level 3, and none the ICC of level 2. This is deliberate. In the log odds ratio each
// factor stands with its own level.
double designEffectFourLevelHD(const Study& s, const ArmSizes& n, const ScaledIcc& icc) {
    const double f3 = s.txtPop(3), f2 = s.txtPop(2);
    return (n.n2 * n.n3 * n.n1 - 1) * (1 - s.txtRsq(4)) * (1 - f3) * icc.i4 + 1 +
           (n.n1 * n.n2 - 1) * (1 - s.txtRsq(3)) * (1 - f2) * icc.i3 +
           (1 - s.txtRsq(2)) * (n.n1 - 1) * icc.i2;
}

// The t test of a two-level risk difference takes its lambda from the pooled rate and the cross-weighted
// cluster size, unlike all other designs. Deliberate.
double lambdaOfTwoLevelRiskDifference(const Study& s, const EventRates& r) {
    const double nbar = (r.NT * s.txtNC(1) + r.NC * s.txtNT(1)) / (r.NC + r.NT);
    const double designEffect = (nbar - 1) * (1 - s.txtRsq(2)) * iccOfPooledRate(s, r).i2 + 1;
    return std::sqrt(r.NC * r.NT / (r.NC + r.NT)) * (r.q - r.p) / std::sqrt(designEffect * u(r.pbar));
}

// Terms of one arm in the variance of a three-level log odds ratio.
double logOddsTermsThreeLevelHD(const Study& s, double n2, double n3) {
    const double R3 = s.txtRsq(3), R2 = s.txtRsq(2), f2 = s.txtPop(2);
    const double V3 = s.logit.LogitV(3), V2 = s.logit.LogitV(2);
    return (1 - R2) * V2 * (1 - f2) / (n2 * n3) + (1 - R3) * V3 / n3;
}

// Terms of one arm in the variance of a four-level log odds ratio.
double logOddsTermsFourLevelHD(const Study& s, double n2, double n3, double n4) {
    const double R4 = s.txtRsq(4), R3 = s.txtRsq(3), R2 = s.txtRsq(2);
    const double f3 = s.txtPop(3), f2 = s.txtPop(2);
    const double V4 = s.logit.LogitV(4), V3 = s.logit.LogitV(3), V2 = s.logit.LogitV(2);
    return (1 - R3) * V3 * (1 - f3) / (n3 * n4) + (1 - R4) * V4 / n4 +
           (1 - R2) * V2 * (1 - f2) / (n3 * n4 * n2);
}

}  // namespace

void ComputeTwoLevelHDBinary(Study& s, DistributionLibrary& library) {
    constexpr const char* routine = "ComputeTwoLevelHDBinary";
    const double nT2 = s.txtNT(2), nC2 = s.txtNC(2);
    const EventRates r = eventRates(s, s.txtNT(1) * nT2, s.txtNC(1) * nC2);
    if (s.BinaryType == BinaryTypes::riskDifference) {
        postRiskDifference(s, r, designEffectTwoLevelHD, 0, routine);
        s.result.xLambda = lambdaOfTwoLevelRiskDifference(s, r);
        requireFinite(routine, {s.result.xLambda});
    } else if (s.BinaryType == BinaryTypes::oddsRatio) {
        const double R2 = s.txtRsq(2), V2 = s.logit.LogitV(2);
        // R-squared acts on the treated arm alone. This asymmetry is deliberate.
        postOddsRatio(s, r, (1 - R2) * V2 / nT2 + V2 / nC2, routine);
    }
    s.result.xdf = dfHierarchical(s);
    checkTwoLevelHD(s, 0);
    AAAComputeTwoLevelHDEvents(s, library);
}

void ComputeThreeLevelHDBinary(Study& s, DistributionLibrary& library) {
    constexpr const char* routine = "ComputeThreeLevelHDBinary";
    const double nT3 = s.txtNT(3), nT2 = s.txtNT(2), nT1 = s.txtNT(1);
    const double nC3 = s.txtNC(3), nC2 = s.txtNC(2), nC1 = s.txtNC(1);
    const EventRates r = eventRates(s, nT1 * nT2 * nT3, nC1 * nC2 * nC3);
    if (s.BinaryType == BinaryTypes::riskDifference)
        postRiskDifference(s, r, designEffectThreeLevelHD, 0, routine);
    else if (s.BinaryType == BinaryTypes::oddsRatio)
        postOddsRatio(s, r, logOddsTermsThreeLevelHD(s, nT2, nT3) + logOddsTermsThreeLevelHD(s, nC2, nC3),
                      routine);
    s.result.xdf = dfHierarchical(s);
    checkThreeLevelHD(s, 0);
    AAAComputeTwoLevelHDEvents(s, library);
}

void ComputeFourLevelHDBinary(Study& s, DistributionLibrary& library) {
    constexpr const char* routine = "ComputeFourLevelHDBinary";
    const double nT4 = s.txtNT(4), nT3 = s.txtNT(3), nT2 = s.txtNT(2), nT1 = s.txtNT(1);
    const double nC4 = s.txtNC(4), nC3 = s.txtNC(3), nC2 = s.txtNC(2), nC1 = s.txtNC(1);
    const EventRates r = eventRates(s, nT1 * nT2 * nT3 * nT4, nC1 * nC2 * nC3 * nC4);
    if (s.BinaryType == BinaryTypes::riskDifference)
        postRiskDifference(s, r, designEffectFourLevelHD, 0, routine);
    else if (s.BinaryType == BinaryTypes::oddsRatio)
        postOddsRatio(s, r,
                      logOddsTermsFourLevelHD(s, nT2, nT3, nT4) + logOddsTermsFourLevelHD(s, nC2, nC3, nC4),
                      routine);
    s.result.xdf = dfHierarchical(s);
    checkFourLevelHD(s, 0);
    AAAComputeTwoLevelHDEvents(s, library);
}

}  // namespace lorvane
