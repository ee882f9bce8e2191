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

/// Keeps what it is asked to show.
struct RecordingDisplay final : ComputeDisplay {
    std::string calls;
    void note(std::string_view what) { calls.append(what).append("; "); }
    void note(const std::string& what, int number) { note(what + std::to_string(number)); }
    void openWindow(WindowId window) override { note("open ", static_cast<int>(window)); }
    void withdrawWindow(WindowId window) override { note("withdraw ", static_cast<int>(window)); }
    void showEffect() override { note("effect"); }
    void showEffectProblem() override { note("effect problem"); }
    void askForData(std::string_view request) override { note(request); }
    void showPower() override { note("power"); }
    void showCost() override { note("cost"); }
    void restoreCovariateColours() override {}
    void clearOutlines() override { note("clear"); }
    void outlineCovariates(int level) override { note("covariates ", level); }
    void outlineLevel(int level) override { note("level ", level); }
    void tellProblem(std::string_view text, std::string_view title) override { note(title), note(text); }
    void openProblemWindow() override { note("problem window"); }
};

/// Ten clusters of ten in each arm, ICC 0.1, d 0.5, a cost of 20, and the results of an earlier computation.
Study goodStudy() {
    Study s = studyOf(2, 2);
    s.txtNT(2) = s.txtNC(2) = 10;
    s.txtICC(2) = 0.1, s.txtd = 0.5, s.txtCostT(2) = 2;
    s.result.txtPower = 0.4321, s.result.xLambda = 1.25, s.result.txtCritT = 2.5;
    s.result.xValid = 1, s.result.txtCost = 77;
    return s;
}

bool keepsEarlierPower(const Study& s) { return s.result.txtPower == 0.4321 && s.result.txtCritT == 2.5; }

std::string refresh(Study& s) {
    NumericDistributionLibrary library;
    RecordingDisplay display;
    ComputeES(s, display);
    docompute(s, library, display);
    return display.calls;
}

/// Critical value and powers from another library's noncentral t distribution in extended precision.
TEST(DocomputeTest, TwoLevelSliceFromInputToPower) {
    Study s = goodStudy();
    EXPECT_EQ(refresh(s), "clear; power; withdraw 15; ; Valid; cost; ");
    EXPECT_NEAR(s.result.xLambda, std::sqrt(50) * 0.5 / std::sqrt(1.9), 1e-14);
    EXPECT_NEAR(s.result.txtCritT, 2.1009220402410385, 1e-13);
    EXPECT_NEAR(s.result.txtPower, 0.67955751195954178, 1e-13);
    s.txtd = -0.5, s.txtTails = 1;
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
        EXPECT_EQ(refresh(s), expected + " cost; ");
        EXPECT_TRUE(s.result.xValid == 0 && s.result.txtCost == 20 && keepsEarlierPower(s)) << expected;
    };
    entered.effect.ValidTauSq(0) = 0, check("Please modify tau-squared; open 5; ; ;");
    entered.TauSqMetric = 2, check("Please modify span of effects; open 5; ; ;");
    entered.TauSqMetric = 3, check("Please modify omega; open 5; ; ;");
    entered.outcome.ValidICC(0) = 0, check("Please modify span of means; open 4; ; ;");
    entered.DataType = 2, check("withdraw 16; effect; Please modify span of risks; open 4; ; ;");
    entered.IccMetric = 1, check("withdraw 16; effect; Please modify ICC; open 4; ; ;");
    entered.txtPrev = 0;
    check("open 16; effect problem; Please modify effect size data; open 16; Problem with the effect size; "
          "Please modify the effect size;");
}

/// The last problem of df, covariates and sum of ICCs has the word; the sum alone does not stop the power.
TEST(DocomputeTest, ProblemsAreOutlinedAndTheLastOneTold) {
    const char* df = "Problem with degrees of freedom; There are insufficient degrees of freedom.\n\n"
                     "Try increasing the number of units and/or decreasing the number of covariates. ; ";
    const auto check = [](double Q2, double Q1, double Rsq1, int ValidTotICC, const std::string& shown,
                          const std::string& told) {
        Study s = goodStudy();
        s.txtQ(2) = Q2, s.txtQ(1) = Q1, s.txtRsq(1) = Rsq1, s.result.xValidTotICC = ValidTotICC;
        EXPECT_EQ(refresh(s), "clear; Please modify data; " + shown + "problem window; " + told + "cost; ");
        EXPECT_TRUE(s.result.xValid == 0 && keepsEarlierPower(s)) << told;
        s.txtQ.fill(0), s.txtRsq.fill(0);
        EXPECT_EQ(refresh(s), "clear; power; withdraw 15; ; Valid; cost; ") << "flags do not stay";
    };
    check(18, 0, 0, 1, "", df);
    check(19, 0, 0, 1, "level 2; ", df);
    check(17, 181, 0.5, 1, "level 1; ", df);
    check(19, 0, 0.1, 1, "covariates 1; level 2; ",
          "Problem with number of covariates; It is not possible for R-squared at any level to be greater "
          "than zero when there are no covariates at that level. ; ");
    check(0, 0, 0.1, 0, "covariates 1; ",
          "Problem with the ICC; The ICC for all levels cannot sum to more than 0.999; ");
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
                    s.result.xValid == 0)
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
            EXPECT_TRUE(s.counts.low(1) == (answer == 0.1) && s.counts.anyLow == 1) << n;
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
            double OR = 77;
            bool valid = p != 0.4;
            ratio ? GetORfromRR(q / p, p, valid, OR) : GetORfromRD(q - p, p, valid, OR);
            EXPECT_TRUE(valid == (p == 0.4) && std::fabs(OR - (valid ? 2.25 : 77)) < 1e-13) << p << ' ' << q;
        }
    }
    Study s;
    s.txtPrev = 0.4, s.limits.txtDelta = 0.05;
    const auto last = [&s](auto range, double start, double step) {
        double limit = 0;
        range(s, limit, start, std::fabs(step), step > 0 ? 1 : -1);
        return limit;
    };
    EXPECT_EQ(last(GetRangeOR, 1, 1), 28);  // 0.95 / 0.05 * 1.5 is 28.5
    EXPECT_NEAR(last(GetRangeOR, 1, -0.01), 0.08, 1e-12);
    EXPECT_NEAR(last(GetRangeRR, 1, 0.01), 2.49, 1e-12);
    EXPECT_NEAR(last(GetRangeRD, 0, -0.01), -0.39, 1e-12);
    EXPECT_EQ(last(GetRangeRD, 0.7, 0.01), 0.7) << "the next value is out already";
    s.limits.txtDelta = 0.0001, s.txtPrev = 0.00011;  // about ninety million steps of 1, in a moment
    EXPECT_NEAR(last(GetRangeOR, 1, 1) * 0.00011 / 0.99989, 9999, 1e-3);
    double lower = 77, upper = 77;
    GetRangeP2(lower, upper, 0.05, 1);
    EXPECT_TRUE(lower == 77 && upper == 0.95);
}

/// Where the effect tells none, the direction that was passed in stays.
TEST(EffectMetricsTest, Direction) {
    for (int k = 0; k < 30; ++k) {
        const int sign = k % 3 - 1, passedIn = k % 2 == 0 ? 1 : -1;
        Study s;
        s.DataType = k < 6 ? DataTypes::means : DataTypes::binary, s.BinaryType = k / 6;
        s.txtd = s.txtRD = 0.1 * sign, s.txtOR = s.txtRR = 1 + 0.1 * sign;
        int direction = passedIn;
        SetDefaultDirection(s, direction);
        const bool told = s.isMeans() || (s.BinaryType % 2 == 1 && sign != 0);
        EXPECT_EQ(direction, !told ? passedIn : sign < 0 ? -1 : 1) << k;
    }
}

/// A binary study whose effect is checked.
Study studyWithEffect(int BinaryType, double prev, double effect, double delta = 0.001) {
    Study s = goodStudy();
    s.DataType = DataTypes::binary, s.BinaryType = BinaryType, s.decimals.txtRR = 4;
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
        const Study s = studyWithEffect(static_cast<int>(type), p, effect, delta);
        const double OR = valid == 1 ? q / (1 - q) / (p / (1 - p)) : 77;
        EXPECT_EQ(s.result.ValidES, valid) << p << ' ' << effect;
        EXPECT_NEAR(s.txtEvent2, q, 1e-15);
        EXPECT_NEAR(s.ComputedOR, OR, 1e-12 * OR);
        EXPECT_EQ(keepsEarlierPower(s) && s.result.xLambda == 1.25, valid == 0 || type == 2 || type == 4);
    }
}

TEST(EffectCheckTest, Words) {
    EXPECT_EQ(effectProblemText(studyWithEffect(1, 0.5, 3999)),
              "An event rate of 0.5000 in the control group, coupled with an odds ratio of 3999.00, implies "
              "that the event rate for the treated group is 0.9998.\n\nPlease modify these values so that "
              "the event rate in the treated group is less than 0.9990.\nTo modify the limits click the "
              "<Options> menu.");
    const std::string text = effectProblemText(studyWithEffect(2, 0.0004, 1000));
    EXPECT_NE(text.find("coupled with risk ratio of 1000.000, "), std::string::npos) << text;
    EXPECT_NE(text.find("in the control group is greater than 0.0010."), std::string::npos) << text;
}

}  // namespace
}  // namespace lorvane
