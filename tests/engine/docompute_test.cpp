// From the entered effect to power and cost: metrics, limits, gates, messages, faults and cell counts.
#include <gtest/gtest.h>

#include <cmath>

#include "base/arithmetic_fault.h"
#include "engine/cell_screening.h"
#include "engine/effect_check.h"
#include "engine/effect_metrics.h"
#include "support/test_library.h"

namespace lorvane {
namespace {

/// An outcome as a text: what is in the way, what is asked for, the cells at fault, title and message.
std::string textOf(const ComputeOutcome& outcome) {
    static constexpr const char* obstacles[] = {"none", "effect", "icc", "tauSq", "data"};
    std::string text = obstacles[static_cast<int>(outcome.obstacle)];
    const auto note = [&](std::string_view what) { text.append("; ").append(what); };
    note(outcome.request);
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        if (outcome.covariatesAtFault(level))
            note("covariates " + std::to_string(level));
        if (outcome.levelAtFault(level))
            note("level " + std::to_string(level));
    }
    note(outcome.problem.title);
    note(outcome.problem.message);
    return text;
}

constexpr const char* powerStands = "none; ; ; Valid";
const std::string dfProblem =
    "Problem with degrees of freedom; There are insufficient degrees of freedom.\n\n"
    "Try increasing the number of units and/or decreasing the number of covariates. ";
const std::string covariateProblem = "Problem with number of covariates; It is not possible for R-squared at "
                                     "any level to be greater than zero "
                                     "when there are no covariates at that level. ";

/// Ten clusters of ten in each arm, ICC 0.1, d 0.5, a cost of 20, and the results of an earlier computation.
Study goodStudy() {
    Study s = studyOf(2, 2);
    s.txtNT(2) = s.txtNC(2) = 10;
    s.txtICC(2) = 0.1, s.txtd = 0.5, s.txtCostT(2) = 2;
    s.result.txtPower = 0.4321, s.result.xLambda = 1.25, s.result.txtCritT = 2.5;
    s.result.xValid = true, s.result.txtCost = 77;
    return s;
}

bool keepsEarlierPower(const Study& s) { return s.result.txtPower == 0.4321 && s.result.txtCritT == 2.5; }

std::string refresh(Study& s) {
    NumericDistributionLibrary library;
    ComputeES(s);
    return textOf(docompute(s, library));
}

/// Critical value and powers from another library's noncentral t distribution in extended precision.
TEST(DocomputeTest, TwoLevelSliceFromInputToPower) {
    Study s = goodStudy();
    EXPECT_EQ(refresh(s), powerStands);
    EXPECT_NEAR(s.result.xLambda, std::sqrt(50) * 0.5 / std::sqrt(1.9), 1e-14);
    EXPECT_NEAR(s.result.txtCritT, 2.1009220402410385, 1e-13);
    EXPECT_NEAR(s.result.txtPower, 0.67955751195954178, 1e-13);
    s.txtd = -0.5, s.txtTails = Tails::one;
    refresh(s);
    EXPECT_NEAR(s.result.txtPower, 0.79441246877582465, 1e-13) << "the direction does not matter";
}

/// The tolerance is 1e-7; below it the earlier power stays. The power is from another library again.
TEST(DocomputeTest, DegreesOfFreedomOfTheTest) {
    for (const double df : {1.0, 0.99999995, 0.9999998, 0.5, 0.0, -1.0}) {
        Study s = goodStudy();
        s.txtNT(2) = 1, s.txtNC(2) = 1 + df;
        refresh(s);
        EXPECT_TRUE(s.result.xValid == (df > 0.9999999) && s.result.xValidDF(2) == (df >= 0)) << df;
        EXPECT_NEAR(s.result.txtPower, df > 0.9999999 ? 0.070354490625372 : 0.4321, 2e-9) << df;
    }
}

TEST(DocomputeTest, GatesStopInTheirOrderAndTellTheCost) {
    Study entered = goodStudy();
    const auto check = [&entered](const std::string& expected) {
        Study s = entered;
        EXPECT_EQ(refresh(s), expected);
        EXPECT_TRUE(!s.result.xValid && s.result.txtCost == 20 && keepsEarlierPower(s)) << expected;
        EXPECT_EQ(s.result.ValidES, entered.txtPrev > 0) << expected;
    };
    entered.effect.ValidTauSq(0) = false, check("tauSq; Please modify tau-squared; ; ");
    entered.TauSqMetric = TauSqMetrics::spanOfEffects, check("tauSq; Please modify span of effects; ; ");
    entered.TauSqMetric = TauSqMetrics::omega, check("tauSq; Please modify omega; ; ");
    entered.outcome.ValidICC(0) = false, check("icc; Please modify span of means; ; ");
    entered.DataType = DataTypes::binary, check("icc; Please modify span of risks; ; ");
    entered.IccMetric = IccMetrics::icc, check("icc; Please modify ICC; ; ");
    entered.txtPrev = 0;
    check("effect; Please modify effect size data; Problem with the effect size; Please modify the effect "
          "size");
}

/// The last problem of df, covariates and sum of ICCs has the word; the sum alone does not stop the power.
TEST(DocomputeTest, CellsAtFaultAreTheirOwnAndTheLastProblemIsTold) {
    const auto check = [](double Q2, double Q1, double Rsq1, bool sumIsGood, const std::string& told) {
        Study s = goodStudy();
        s.txtQ(2) = Q2, s.txtQ(1) = Q1, s.txtRsq(1) = Rsq1, s.result.xValidTotICC = sumIsGood;
        EXPECT_EQ(refresh(s), "data; Please modify data; " + told);
        EXPECT_TRUE(!s.result.xValid && keepsEarlierPower(s)) << told;
        s.txtQ.fill(0), s.txtRsq.fill(0);
        EXPECT_EQ(refresh(s), powerStands) << "flags do not stay";
    };
    check(18, 0, 0, true, dfProblem);
    check(19, 0, 0, true, "level 2; " + dfProblem);
    check(17, 181, 0.5, true, "level 1; " + dfProblem);
    check(19, 0, 0.1, true, "covariates 1; level 2; " + covariateProblem);
    check(0, 0, 0.1, false,
          "covariates 1; Problem with the ICC; The ICC for all levels cannot sum to more than 0.999");
}

/// Fixed blocks leave the test to the individuals, so that nothing but the level itself is at fault.
TEST(DocomputeTest, OneLevelAtFaultStopsThePower) {
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        Study s = studyOf(4, 1);
        s.txtNB.fill(2), s.txtNT(1) = s.txtNC(1) = 10, s.txtd = 0.5;
        for (int blocked = 2; blocked <= 4; ++blocked)
            s.txtModel(blocked) = SamplingModels::fixed;
        const std::string number = std::to_string(level) + "; ";
        s.txtRsq(level) = 0.1;
        EXPECT_EQ(refresh(s), "data; Please modify data; covariates " + number + covariateProblem);
        EXPECT_FALSE(s.result.xValid);
        s.txtQ(level) = 1;
        EXPECT_EQ(refresh(s), powerStands);
        s.txtQ(level) = 999;
        EXPECT_EQ(refresh(s), "data; Please modify data; level " + number + dfProblem);
        EXPECT_FALSE(s.result.xValid);
        EXPECT_EQ(s.result.xValidTestdf, level > 1);
    }
}

/// Formulas that cannot go on: no individuals, a negative variance of means, a negative logit variance.
TEST(DocomputeTest, ArithmeticFaultLeavesTheCostAndTheEarlierPower) {
    for (int kind = 0; kind < 3; ++kind) {
        Study s = goodStudy();
        s.txtNT(1) = s.txtNC(1) = kind == 0 ? 0 : 10;
        s.txtICC(2) = kind == 1 ? -1 : 0.1, s.logit.LogitV(2) = kind == 2 ? -9 : 0;
        s.DataType = kind == 2 ? DataTypes::binary : DataTypes::means;
        EXPECT_THROW(refresh(s), ArithmeticFault) << kind;
        EXPECT_TRUE(s.result.txtCost == 20 && keepsEarlierPower(s) && s.result.xLambda == 1.25 &&
                    !s.result.xValid)
            << kind;
    }
}

/// Costs of a cluster, ten in an arm, then the cost of all and the flag of a problem.
TEST(DocomputeTest, CostRoundsEveryTermHalvesToEvenAndStaysWithin32Bits) {
    const double rows[][4] = {
        {.05, .05, 0, 0},     {.15, .25, 4, 0},       {214748364.65, .14, 2147483647, 0},
        {214748364, 1, 0, 1}, {214748364.8, 0, 0, 1}, {1e300, 0, 0, 1}};
    for (const auto& [costT, costC, cost, problem] : rows) {
        Study s = goodStudy();
        s.txtCostT(2) = costT, s.txtCostC(2) = costC;
        refresh(s);
        EXPECT_TRUE(s.result.txtCost == cost && s.result.txtCostProblem == problem) << costT;
    }
}

/// Answers every normal probability with one value.
struct ConstantNormal final : DistributionLibrary {
    double answer = 0;
    void VBDNORDF(double, double& result) override { result = answer; }
    void VBDNORIN(double, double&) override {}
    void VBDTIN(double, double, double&) override {}
    void VBDTNDF(double, double, double, double&) override {}
    void NoncentralTTails(double, double, double, double&, double&) override {}
};

/// A share of 0.1 is low already, and a cluster of 3.5 small. 3.5 of 14 has the odds 1 / 3.
TEST(CellScreeningTest, LimitsAndShares) {
    Study s = studyOf(3, 2);
    ConstantNormal normal;
    for (const double answer : {0.1, std::nextafter(0.1, 0)}) {
        for (const double n : {3.0, 3.499, 3.5, 3.501}) {
            s.txtNT(1) = n, normal.answer = answer;
            AAAComputeTwoLevelHDEvents(s, normal);
            EXPECT_TRUE(s.counts.low(1) == (answer == 0.1) && s.counts.anyLow) << n;
            EXPECT_EQ(s.counts.share(3), n > 3.5 ? answer : 1) << n;
        }
    }
    s.DataType = DataTypes::binary, s.txtNT(1) = s.txtNC(1) = 14, s.txtPrev = 0.3, s.txtOR = 3.5;
    s.logit.LogitV(2) = 0.1, s.logit.LogitV(3) = 0.2, s.logit.LogitV(4) = 9;
    s.effect.txtTauSq(2) = 9, s.effect.txtTauSq(3) = 0.15, s.effect.txtTauSq(4) = 9;
    refresh(s);
    const auto phi = [](double x) { return std::erfc(-x / std::sqrt(2)) / 2; };
    EXPECT_NEAR(s.counts.share(2), phi(std::log(1 / 7.) / std::sqrt(1 / 2.94 + 0.3)), 1e-13);
    EXPECT_NEAR(s.counts.share(3), phi(std::log(2 / 9.) / std::sqrt(1 / 3.36 + 0.45)), 1e-13);
}

/// The ICCs leave 0.8, 0.55 and 0.36 within; those above NumLevels do not count.
TEST(EffectMetricsTest, WithinAndTotal) {
    for (int levels = 2; levels <= 4; ++levels) {
        const double within = levels == 2 ? 0.8 : levels == 3 ? 0.55 : 0.36;
        Study s = studyOf(levels, 1);
        s.txtICC(2) = 0.2, s.txtICC(3) = 0.25, s.txtICC(4) = 0.19, s.txtd = -0.6;
        EXPECT_NEAR(GetDW(s), -0.6 / std::sqrt(within), 1e-15);
        EXPECT_NEAR(GetTauSqDW(s, 0.3), 0.3 / within, 1e-15);
        s.DType = DTypes::within;
        EXPECT_TRUE(GetDW(s) == -0.6 && GetTauSqDW(s, 0.3) == 0.3);
        EXPECT_NEAR(GetDT(s), -0.6 * std::sqrt(within), 1e-15);
    }
}

/// Risk ratio and difference hold to 0.001 and 0.999, whatever the study's limit is.
TEST(EffectMetricsTest, ConversionsAndRanges) {
    const double rates[][2] = {{0.4, 0.6}, {0.0009, 0.5}, {0.9991, 0.5}, {0.5, 0.9995}, {0.5, 0.0005}};
    for (const auto& [p, q] : rates) {
        for (const bool ratio : {true, false}) {
            const auto OR = ratio ? GetORfromRR(q / p, p) : GetORfromRD(q - p, p);
            EXPECT_EQ(OR.has_value(), p == 0.4) << p << ' ' << q;
            EXPECT_NEAR(OR.value_or(2.25), 2.25, 1e-13);
        }
    }
    Study s;
    s.txtPrev = 0.4, s.limits.txtDelta = 0.05;
    const auto last = [&s](auto range, double start, double step) {
        return range(s, start, std::fabs(step), step > 0 ? 1 : -1);
    };
    EXPECT_EQ(last(GetRangeOR, 1, 1), 28);  // 0.95 / 0.05 * 1.5 is 28.5
    EXPECT_NEAR(last(GetRangeOR, 1, -0.01), 0.08, 1e-12);
    EXPECT_NEAR(last(GetRangeRR, 1, 0.01), 2.49, 1e-12);
    EXPECT_NEAR(last(GetRangeRD, 0, -0.01), -0.39, 1e-12);
    EXPECT_EQ(last(GetRangeRD, 0.7, 0.01), 0.7) << "the next value is out already";
    s.limits.txtDelta = 0.0001, s.txtPrev = 0.00011;  // about ninety million steps of 1, in a moment
    EXPECT_NEAR(last(GetRangeOR, 1, 1) * 0.00011 / 0.99989, 9999, 1e-3);
    EXPECT_TRUE(GetRangeP2(0.05, 1) == 0.95 && GetRangeP2(0.05, -1) == 0.05);
}

/// Up for a null effect, and for a risk ratio and two risks, which no search takes.
TEST(EffectMetricsTest, Direction) {
    for (int type = 0; type <= 4; ++type) {
        for (const int sign : {-1, 0, 1}) {
            Study s;
            s.DataType = type == 0 ? DataTypes::means : DataTypes::binary;
            s.BinaryType = type == 0 ? BinaryTypes::oddsRatio : BinaryTypes(type);
            s.txtd = s.txtRD = 0.1 * sign, s.txtOR = s.txtRR = s.txtP2 = 1 + 0.1 * sign;
            EXPECT_EQ(SetDefaultDirection(s), s.isTested() && sign < 0 ? -1 : 1) << type << ' ' << sign;
        }
    }
}

/// A binary study whose effect is checked.
Study studyWithEffect(BinaryTypes type, double prev, double effect, double delta = 0.001) {
    Study s = goodStudy();
    s.DataType = DataTypes::binary, s.BinaryType = type, s.decimals.txtRR = 4;
    s.txtPrev = prev, s.limits.txtDelta = delta, s.ComputedOR = 77;
    s.txtOR = s.txtRR = s.txtRD = s.txtP2 = effect;
    refresh(s);
    return s;
}

/// BinaryType, control rate, effect, limit, treated rate, validity. Risk ratio and two risks have no test.
TEST(EffectCheckTest, RatesAndLimits) {
    const double rows[][6] = {{1, 0.2, 2.25, 0.001, 0.36, 1},   {2, 0.2, 1.5, 0.001, 0.3, 1},
                              {3, 0.2, 0.799, 0.001, 0.999, 1}, {3, 0.5, 0.4995, 0.001, 0.9995, 0},
                              {3, 0.2, -0.25, 0.001, -0.05, 0}, {4, 0.001, 0.3, 0.001, 0.3, 1},
                              {4, 0.0009, 0.5, 0.001, 0.5, 0},  {4, 0.9991, 0.5, 0.001, 0.5, 0},
                              {2, 0.1, 9.01, 0.1, 0.901, 0},    {4, 0.1, 0.9, 0.1, 0.9, 1}};
    for (const auto& [type, p, effect, delta, q, valid] : rows) {
        const Study s = studyWithEffect(BinaryTypes(static_cast<int>(type)), p, effect, delta);
        const double OR = valid == 1 ? q / (1 - q) / (p / (1 - p)) : 77;
        EXPECT_EQ(s.result.ValidES, valid) << p << ' ' << effect;
        EXPECT_NEAR(s.txtEvent2, q, 1e-15);
        EXPECT_NEAR(s.ComputedOR, OR, 1e-12 * OR);
        EXPECT_EQ(keepsEarlierPower(s) && s.result.xLambda == 1.25, valid == 0 || type == 2 || type == 4);
    }
}

TEST(EffectCheckTest, Words) {
    EXPECT_EQ(effectProblemText(studyWithEffect(BinaryTypes::oddsRatio, 0.5, 3999)),
              "An event rate of 0.5000 in the control group, coupled with an odds ratio of 3999.00, implies "
              "that the event rate for the treated group is 0.9998.\n\nPlease modify these values so that "
              "the event rate in the treated group is less than 0.9990.\nTo modify the limits click the "
              "<Options> menu.");
    const std::string text = effectProblemText(studyWithEffect(BinaryTypes::riskRatio, 0.0004, 1000));
    EXPECT_NE(text.find("coupled with risk ratio of 1000.000, "), std::string::npos) << text;
    EXPECT_NE(text.find("in the control group is greater than 0.0010."), std::string::npos) << text;
}

}  // namespace
}  // namespace lorvane
