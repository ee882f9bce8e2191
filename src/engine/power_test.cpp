// From noncentrality and degrees of freedom to a critical value and a power.
#include "engine/power_test.h"

#include <cmath>

#include "base/arithmetic_fault.h"

namespace lorvane {

namespace {

double alphaOfOneTail(double alpha, Tails tails) { return tails == Tails::one ? alpha : alpha / 2; }

}  // namespace

double NormalCDF(DistributionLibrary& library, double x) {
    double result = 0;
    library.VBDNORDF(x, result);
    return result;
}

double TInv(DistributionLibrary& library, double p, double df) {
    double result = 0;
    library.VBDTIN(p, df, result);
    return std::fabs(result);
}

double NormInv(DistributionLibrary& library, double p) {
    double result = 0;
    library.VBDNORIN(p, result);
    return std::fabs(result);
}

double SmallerOf(double a, double b) { return a <= b ? a : b; }

double GetPowerT(DistributionLibrary& library, double t, double df, double lambda) {
    double below = 0;
    library.VBDTNDF(t, df, lambda, below);
    return 1 - below;
}

TestPower GetPowerTDist(DistributionLibrary& library, double alpha, Tails tails, double df, double lambda) {
    const double p = alphaOfOneTail(alpha, tails);
    const double crit = TInv(library, p, df);
    requireFinite("GetPowerTDist", {p, crit, lambda});
    if (tails == Tails::one)
        return {crit, GetPowerT(library, crit, df, lambda)};
    double above = 0;
    double below = 0;
    library.NoncentralTTails(crit, df, lambda, above, below);
    return {crit, above + below};
}

TestPower GetPowerBinary(DistributionLibrary& library, PowerOptions mode, double alpha, Tails tails,
                         double df, double pooled, double separate, double effect) {
    const double p = alphaOfOneTail(alpha, tails);
    const double crit = mode == PowerOptions::zDistribution ? NormInv(library, p) : TInv(library, p, df);
    const double a = std::sqrt(pooled);
    const double b = std::sqrt(separate);
    const double upper = (a * crit - effect) / b;
    const double lower = (-crit * a - effect) / b;
    requireFinite("GetPowerBinary", {p, crit, upper, lower});
    const double above = 1 - NormalCDF(library, upper);
    return {crit, tails == Tails::one ? above : above + NormalCDF(library, lower)};
}

bool isNormalTest(const Study& study) {
    return study.isBinary() && study.BinaryType == BinaryTypes::riskDifference &&
           study.PowerOption == PowerOptions::zDistribution;
}

void ComputePower(Study& study, DistributionLibrary& library) {
    if (!study.isTested())
        return;
    const PowerResult& in = study.result;
    const TestPower test = isNormalTest(study)
                               ? GetPowerBinary(library, study.PowerOption, study.txtAlpha, study.txtTails,
                                                in.xdf, in.txtVarPooled, in.txtVarSep, in.txtBinaryES)
                               : GetPowerTDist(library, study.txtAlpha, study.txtTails, in.xdf, in.xLambda);
    study.result.txtCritT = test.crit;
    study.result.txtPower = test.power;
}

}  // namespace lorvane
