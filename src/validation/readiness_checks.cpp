// The checks of the search for the cheapest design.
#include "validation/readiness_checks.h"

#include <cmath>

namespace lorvane {

namespace {

constexpr double largestNullEffect = 0.001;
constexpr double largestTotalIcc = 0.999;
constexpr double resetSpanOfIndividuals = 10;

void clearUnlessPositive(LevelFlags& flags, double value, int level) {
    if (value <= 0)
        flags(level) = false;
}

bool levelHoldsValues(const Study& s, int level) {
    const double spanOfMeans = level == 1 ? 0 : s.txtMRange(level);
    for (const double value : {s.txtICC(level), spanOfMeans, s.txtTauSq(level), s.txtDRange(level),
                               s.txtOmega(level), s.txtQ(level), s.txtRsq(level)}) {
        if (value != 0)
            return true;
    }
    return false;
}

}  // namespace

void CheckES(Study& study) {
    const bool null = study.isMeans() ? std::fabs(study.txtd) <= largestNullEffect : study.ComputedOR == 1.0;
    if (null)
        study.result.xValidES = false;
}

void CheckTotICC(Study& study) {
    double sum = 0;
    for (int level = 2; level <= study.NumLevels; ++level)
        sum += study.txtICC(level);
    if (sum >= largestTotalIcc)
        study.result.xValidTotICC = false;
}

void CheckCost(Study& study, double cost, int level) {
    clearUnlessPositive(study.result.xValidCost, cost, level);
}

void CheckICC(Study& study, double icc, int level) {
    clearUnlessPositive(study.result.xValidICC, icc, level);
}

void CheckOmega(Study& study, double omega, int level) {
    clearUnlessPositive(study.result.xValidOmega, omega, level);
}

void CheckTauSq(Study& study, double tauSquared, int level) {
    clearUnlessPositive(study.result.xValidTauSq, tauSquared, level);
}

void CheckModel(Study& study, double model, int level) {
    if (model == SamplingModels::fixed)
        study.result.xValidModel(level) = false;
}

bool NeedOk(const Study& study) {
    if (study.txtd != 0 || study.txtRD != 0 || study.txtOR != 1 || study.txtPrev != 0.5)
        return true;
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        if (levelHoldsValues(study, level))
            return true;
    }
    return study.txtMRange(1) != resetSpanOfIndividuals;
}

}  // namespace lorvane
