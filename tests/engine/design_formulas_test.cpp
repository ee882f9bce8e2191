// The eighteen formulas against one for all designs, the variance of the estimated effect as the sum of
// variance components, each over the number of its units; and against the powers that other programs print.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <random>
#include <sstream>

#include "engine/effect_check.h"
#include "support/test_library.h"

namespace lorvane {
namespace {

struct RandomStudies {
    std::mt19937 engine{1};
    double real(double low, double high) { return std::uniform_real_distribution<double>(low, high)(engine); }
    int whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine); }
    /// The k-th study, of means, odds ratios and risk differences of the nine designs in turn.
    Study next(int k) {
        constexpr int designs[][2] = {{2, 1}, {2, 2}, {3, 1}, {3, 2}, {3, 3}, {4, 1}, {4, 2}, {4, 3}, {4, 4}};
        Study s = studyOf(designs[k % 9][0], designs[k % 9][1]);
        s.DataType = k % 27 < 9 ? DataTypes::means : DataTypes::binary;
        s.BinaryType = k % 27 < 18 ? BinaryTypes::oddsRatio : BinaryTypes::riskDifference;
        s.DType = DTypes(whole(1, 2)), s.PowerOption = PowerOptions(whole(1, 2)),
        s.txtTails = Tails(whole(1, 2));
        s.txtd = real(-1, 1), s.txtOR = std::exp(real(-1.5, 1.5)), s.txtPrev = real(0.05, 0.95);
        s.txtRD = real(0.05, 0.95) - s.txtPrev, s.txtAlpha = real(0.005, 0.2);
        s.txtPop.fill(0.5);  // models but 0 and 1 leave the number that formulas use
        for (int level = lowestLevel; level <= highestLevel; ++level) {
            for (PerLevel<double>* sizes : {&s.txtNT, &s.txtNC, &s.txtNB})
                (*sizes)(level) = whole(level >= s.NumLevels ? 4 : 2, 12);
            for (PerLevel<double>* costs : {&s.txtCostT, &s.txtCostC, &s.txtCostB})
                (*costs)(level) = whole(0, 50);
            s.txtICC(level) = real(0, 0.3), s.effect.txtTauSq(level) = real(0, 0.3);
            s.logit.LogitV(level) = real(0, 1), s.txtModel(level) = whole(0, 1);
            s.txtQ(level) = whole(0, 2), s.txtRsq(level) = s.txtQ(level) > 0 ? real(0, 0.9) : 0;
        }
        return s;
    }
};

void compute(Study& s) {
    static NumericDistributionLibrary library;
    ComputeES(s);
    docompute(s, library);
}

enum Arm { treated, control };

/// Units of a level in one arm of the whole study; a blocked unit holds both arms.
double units(const Study& s, int level, Arm arm) {
    if (level > s.NumLevels)
        return 1;
    const PerLevel<double>& ofArm = arm == treated ? s.txtNT : s.txtNC;
    return (s.isBlocked(level) ? s.txtNB : ofArm)(level)*units(s, level + 1, arm);
}

double u(double rate) { return rate * (1 - rate); }
double phi(double x) { return std::erfc(-x / std::sqrt(2)) / 2; }

double weight(const Study& s, int i) { return s.txtModel(i) == 0 ? 1 : s.txtModel(i) == 1 ? 0 : 0.5; }

/// What is left of a component. Fixed sampling takes it away where treatment is not assigned and above level
/// 1; hierarchical designs of means do so twice.
double left(const Study& s, int level) {
    const bool twice = s.isMeans() && s.isHierarchical();
    const bool whole = level == 1 || level == s.RandomizedLevel;
    return (1 - s.txtRsq(level)) * (whole ? 1 : weight(s, level) * (twice ? weight(s, level) : 1));
}

/// What the clusters of one arm add. The blocks, which hold both arms, are counted with the treated one.
double clusterVariance(const Study& s, const PerLevel<double>& component, Arm arm, double tauScale = 1) {
    double sum = 0;
    for (int i = 2; i <= (arm == treated ? s.NumLevels : s.RandomizedLevel); ++i)
        sum +=
            (s.isBlocked(i) ? tauScale * s.effect.txtTauSq(i) : component(i)) * left(s, i) / units(s, i, arm);
    return sum;
}

double lambdaOfMeans(const Study& s) {
    double within = 1, variance = 0;
    for (int level = 2; level <= s.NumLevels; ++level)
        within -= s.txtICC(level);
    const double scale = s.DType == DTypes::within ? within : 1;
    for (const Arm arm : {treated, control})
        variance += clusterVariance(s, s.txtICC, arm, scale) + within * left(s, 1) / units(s, 1, arm);
    return s.txtd * std::sqrt(scale / variance);
}

/// With two hierarchical levels the covariates act on the treated arm alone.
double lambdaOfOddsRatio(const Study& s) {
    Study ofControl = s;
    ofControl.txtRsq(2) = s.NumLevels == 2 ? 0 : s.txtRsq(2);
    const double odds = s.txtPrev / (1 - s.txtPrev) * s.txtOR;
    const double variance =
        1 / (units(s, 1, treated) * u(odds / (1 + odds))) + 1 / (units(s, 1, control) * u(s.txtPrev)) +
        clusterVariance(s, s.logit.LogitV, treated) + clusterVariance(ofControl, s.logit.LogitV, control);
    return std::log(s.txtOR) / std::sqrt(variance);
}

/// Variance of one arm's event rate. The entered ICC is that of the control rate. With four hierarchical
/// levels the sampling model of the level below decides.
double rateVariance(const Study& s, Arm arm, double rate) {
    const bool shifted = s.isHierarchical() && s.NumLevels == 4;
    double designEffect = 1, members = 1;
    for (int i = 2; i <= s.RandomizedLevel; ++i) {
        members *= (arm == treated ? s.txtNT : s.txtNC)(i - 1);
        const double kept = i == (shifted ? 2 : s.RandomizedLevel) ? 1 : weight(s, i - shifted);
        designEffect += (members - 1) * (1 - s.txtRsq(i)) * kept * s.txtICC(i) * u(s.txtPrev) / u(rate);
    }
    return designEffect * u(rate) / units(s, 1, arm) + clusterVariance(s, {}, arm);
}

/// Two hierarchical levels take the pooled variance for lambda, the other designs the separate one.
double lambdaOfRiskDifference(const Study& s) {
    const double p = s.txtPrev, q = p + s.txtRD, NT = units(s, 1, treated), NC = units(s, 1, control);
    const double pbar = (NT * q + NC * p) / (NT + NC);
    const double pooled = rateVariance(s, treated, pbar) + rateVariance(s, control, pbar);
    const double separate = rateVariance(s, treated, q) + rateVariance(s, control, p);
    EXPECT_NEAR(s.result.txtBinaryES, s.txtRD, 1e-14);
    EXPECT_NEAR(s.result.txtVarPooled, pooled, 1e-11 * pooled);
    EXPECT_NEAR(s.result.txtVarSep, separate, 1e-11 * separate);
    return s.txtRD / std::sqrt(s.NumLevels == 2 && s.isHierarchical() ? pooled : separate);
}

/// Units less those of the level above, less the covariates; the randomized level loses a mean an arm.
double dfOfLevel(const Study& s, int level) {
    const double above = units(s, level + 1, treated), Q = s.isBinary() && level == 1 ? 0 : s.txtQ(level);
    if (s.isBlocked(level))
        return units(s, level, treated) - above - Q;
    const double aboveControl = level == s.RandomizedLevel ? above : units(s, level + 1, control);
    return units(s, level, treated) + units(s, level, control) - above - aboveControl - Q;
}

/// The error term is the highest blocked level that is random (0 or 2), else the randomized level.
double dfOfTest(const Study& s, double earlier) {
    int level = s.NumLevels;
    while (s.isBlocked(level) && s.txtModel(level) == 1)
        --level;
    return s.isBlocked(level) && s.txtModel(level) > 2 ? earlier : dfOfLevel(s, level);
}

void expectFlagsAndCost(const Study& s) {
    bool valid = s.result.xdf >= 1;
    double cost = 0;
    EXPECT_EQ(s.result.xValidTestdf, valid);
    for (int level = 1; level <= s.NumLevels; ++level) {
        const bool enoughDf = dfOfLevel(s, level) >= 0;
        const bool explained = s.txtRsq(level) == 0 || s.txtQ(level) > 0 || (s.isBinary() && level == 1);
        EXPECT_TRUE(s.result.xValidDF(level) == enoughDf && s.result.xValidQ(level) == explained) << level;
        valid = valid && enoughDf && explained;
        cost += (s.isBlocked(level) ? s.txtCostB : s.txtCostT)(level)*units(s, level, treated) +
                (s.isBlocked(level) ? 0 : s.txtCostC(level)) * units(s, level, control);
    }
    EXPECT_TRUE(s.result.xValid == valid && s.result.txtCost == cost);
}

/// At least alpha, and alpha for no effect; the same with the arms exchanged; no less with more units.
void expectPower(Study s) {
    const double power = s.result.txtPower;
    const bool oddsRatio = s.isBinary() && s.BinaryType == BinaryTypes::oddsRatio;
    const bool tTest = s.isMeans() || oddsRatio || s.PowerOption == PowerOptions::tDistribution;
    if (!tTest) {
        const double b = std::sqrt(s.result.txtVarSep),
                     a = s.result.txtCritT * std::sqrt(s.result.txtVarPooled);
        const double otherTail = s.txtTails == Tails::two ? phi((-a - s.txtRD) / b) : 0;
        EXPECT_NEAR(phi(-s.result.txtCritT), s.txtAlpha / static_cast<int>(s.txtTails), 1e-14);
        EXPECT_NEAR(power, phi((s.txtRD - a) / b) + otherTail, 1e-13);
    }
    EXPECT_TRUE(s.result.xValid);
    EXPECT_TRUE(power >= (tTest ? s.txtAlpha - 1e-9 : 0) && power <= 1) << power;
    Study other = s;
    other.txtd = other.txtRD = 0, other.txtOR = 1;
    compute(other);
    EXPECT_NEAR(other.result.txtPower, s.txtAlpha, 1e-12);
    if (s.isMeans() || (oddsRatio && (s.NumLevels > 2 || !s.isHierarchical()))) {
        other = s;
        std::swap(other.txtNT, other.txtNC);
        other.txtd = -s.txtd, other.txtPrev = s.txtEvent2, other.txtOR = 1 / s.txtOR;
        compute(other);
        EXPECT_NEAR(other.result.txtPower, power, 1e-11);
    }
    if (s.isMeans()) {
        (s.isHierarchical() ? s.txtNT : s.txtNB)(s.NumLevels) += 1;
        compute(s);
        EXPECT_GE(s.result.txtPower, power - 1e-13);
    }
}

/// Half of the studies may have too many covariates, an R-squared with none, or a model that is none.
TEST(DesignFormulasTest, AgreeWithVarianceComponentsOverUnits) {
    RandomStudies random;
    for (int k = 0; k < 27000; ++k) {
        Study s = random.next(k);
        const int level = random.whole(1, s.NumLevels);
        s.result.xdf = 99;
        if (k % 2 == 0) {
            s.txtModel(level) = random.whole(0, 3);
            const double tooMany = std::max(0., dfOfLevel(s, level) + random.whole(-2, 3));
            s.txtQ(level) = random.whole(0, 3) == 0 ? 0 : tooMany;
            s.txtRsq(level) = random.real(0, 0.9);
        }
        SCOPED_TRACE(testing::Message() << k << ": " << s.NumLevels << s.RandomizedLevel);
        compute(s);
        const double ofBinary =
            s.BinaryType == BinaryTypes::oddsRatio ? lambdaOfOddsRatio(s) : lambdaOfRiskDifference(s);
        const double lambda = s.isMeans() ? lambdaOfMeans(s) : ofBinary;
        EXPECT_NEAR(std::fabs(s.result.xLambda), std::fabs(lambda), 1e-11 * (1 + std::fabs(lambda)));
        EXPECT_EQ(s.result.xdf, dfOfTest(s, 99));
        expectFlagsAndCost(s);
        if (k % 2 == 1)
            expectPower(s);
    }
}

/// The programs print twelve digits. The heading of the file tells what the columns mean.
TEST(DesignFormulasTest, AgreeWithOtherPrograms) {
    std::ifstream file(std::string(LORVANE_TEST_DATA) + "/peer_powers.csv");
    int rows = 0;
    for (std::string line; std::getline(file, line);) {
        std::replace(line.begin(), line.end(), ',', ' ');
        std::istringstream row(line);
        std::string package, version, function;
        int tails = 0;
        double treatedShare = 0, units = 0, power = 0;
        Study s;
        row >> package >> version >> function >> s.NumLevels >> s.RandomizedLevel >> tails >> s.txtAlpha;
        row >> s.txtd >> treatedShare;
        s.txtTails = Tails(tails);
        for (int level = 1; row && level <= s.NumLevels; ++level) {
            const bool shared = level == s.RandomizedLevel;
            row >> units >> s.txtICC(level) >> s.effect.txtTauSq(level) >> s.txtRsq(level) >> s.txtQ(level) >>
                s.txtModel(level);
            s.txtNB(level) = units;
            s.txtNT(level) = units * (shared ? treatedShare : 1);
            s.txtNC(level) = units * (shared ? 1 - treatedShare : 1);
        }
        if (!(row >> power))
            continue;
        compute(s);
        EXPECT_NEAR(s.result.txtPower, power, 2e-12) << line;
        ++rows;
    }
    EXPECT_EQ(rows, 39);
}

}  // namespace
}  // namespace lorvane
