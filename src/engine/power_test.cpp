// From noncentrality and degrees of freedom to a critical value and a power.
#include "engine/power_test.h"

#include <cmath>

#include "base/arithmetic_fault.h"

namespace lorvane {

namespace {

constexpr int normalCriticalValue = 2;

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

void GetPowerT(DistributionLibrary& library, double t, double df, double lambda, double& result) {
    double below = 0;
    library.VBDTNDF(t, df, lambda, below);
    result = 1 - below;
}

void GetPowerTDist(DistributionLibrary& library, double alpha, int tails, double df, double lambda,
                   double& crit, double& power) {
    const double p = alpha / tails;
    crit = TInv(library, p, df);
    requireFinite("GetPowerTDist", {p, crit, lambda});
    if (tails == 1) {
        GetPowerT(library, crit, df, lambda, power);
    } else if (tails == 2) {
        double above = 0;
        double below = 0;
        library.NoncentralTTails(crit, df, lambda, above, below);
        power = above + below;
    }
}

void GetPowerBinary(DistributionLibrary& library, int mode, double alpha, int tails, double df, double pooled,
                    double separate, double effect, double& crit, double& power) {
    const double p = alpha / tails;
    crit = mode == normalCriticalValue ? NormInv(library, p) : TInv(library, p, df);
    const double a = std::sqrt(pooled);
    const double b = std::sqrt(separate);
    const double upper = (a * crit - effect) / b;
    const double lower = (-crit * a - effect) / b;
    requireFinite("GetPowerBinary", {p, crit, upper, lower});
    if (tails == 1)
        power = 1 - NormalCDF(library, upper);
    else if (tails == 2)
        power = 1 - NormalCDF(library, upper) + NormalCDF(library, lower);
}

void ComputePower(Study& study, DistributionLibrary& library) {
    const PowerResult& in = study.result;
    const bool riskDifference = study.isBinary() && study.BinaryType == BinaryTypes::riskDifference;
    const bool oddsRatio = study.isBinary() && study.BinaryType == BinaryTypes::oddsRatio;
    double crit = in.txtCritT;
    double power = in.txtPower;
    if (study.isMeans() || oddsRatio || (riskDifference && study.PowerOption == PowerOptions::tDistribution))
        GetPowerTDist(library, study.txtAlpha, study.txtTails, in.xdf, in.xLambda, crit, power);
    else if (riskDifference)
        GetPowerBinary(library, normalCriticalValue, study.txtAlpha, study.txtTails, in.xdf, in.txtVarPooled,
                       in.txtVarSep, in.txtBinaryES, crit, power);
    else
        return;
    study.result.txtCritT = crit;
    study.result.txtPower = power;
}

}  // namespace lorvane
