// Dispersion of the outcome and of the effect: conversions, verdicts, words, tables; the readiness checks.
#include <array>
#include <cmath>
#include <random>

#include "base/arithmetic_fault.h"
#include "base/number_text.h"
#include "engine/validity_checks.h"
#include "validation/effect_dispersion.h"
#include "validation/icc_span.h"
#include "validation/logit_variance.h"
#include "validation/readiness_checks.h"
#include "validation/study_bench.h"

namespace lorvane {
namespace {

TEST(IccSpan, Means) { playScenarios("icc_of_means.txt", "frmDisplayICC.", "pnlMsgInner"); }

TEST(IccSpan, Risks) { playScenarios("icc_of_risks.txt", "frmDisplayICC.", "pnlMsgInner", "DataType=2 "); }

TEST(IccSpan, Helpers) {
    Study s;
    s.DataType = DataTypes::binary;
    s.txtPrev = 0.2, s.txtOR = 3, s.txtRD = 0.3;
    const double treatedIcc[] = {0.016 / (12.0 / 49), 0, 0.064, 0};  // treated rates 3/7 and 1/2
    for (int type = 1; type <= 4; ++type) {
        s.BinaryType = BinaryTypes(type);
        EXPECT_NEAR(GetICCTx(s, 0.1), treatedIcc[type - 1], 1e-15);
    }
    s.txtPrev = 0.05;
    EXPECT_EQ(MaxICC(s), 1);
    s.logit.error(2) = LogitErrors::cumulativeTooWide;
    EXPECT_EQ(GetErrMsg(s, 2), "The cumulative span of risks cannot exceed 1.0");
    const ShiftedRange range = GetRange(0.5, 1.5);
    EXPECT_TRUE(range.lower == -0.5 && range.upper == 1 && range.truncated)
        << "the lower limit is not held a second time";
    s.IccMetric = IccMetrics::icc;
    s.txtICC(2) = -0.1;
    EXPECT_THROW(SynchICC(s), ArithmeticFault);
}

TEST(EffectDispersion, SixDesignsAndFaults) {
    playScenarios("effect_dispersion.txt", "frmDisplayTauSq.", "pnlMsgInner",
                  "ICC_Metric=1 ICC(2)=0.1 ICC(3)=0.2 ICC(4)=0.3 Tau-sq_Metric=3 ");
}

/// A cell whose flag is 0 is empty. A binary study with the span entered has formats of its own.
TEST(EffectDispersion, CellsOfThePanel) {
    StudyBench bench;
    const auto cells = [&](const std::string& assignments) {
        bench.play(assignments + " ;");
        const std::string panel = "frmDisplayTauSq.";
        return bench.caption(panel + "pnlTauSq(3)") + '|' + bench.caption(panel + "pnlWidth(3)") + '|' +
               bench.caption(panel + "pnlOmega(3)");
    };
    EXPECT_EQ(cells("L=3 R=2 ICC_Metric=1 ICC(3)=0.2 TauSq(3)=0.25"), "0.2500|2.00|1.0000");
    EXPECT_EQ(cells("ICC(3)=0"), "0.2500|2.00|");
    EXPECT_EQ(cells("Tau-sq_Metric=2 DataType=2 DRange(3)=1"), "0.06250|1.00|");
    EXPECT_EQ(cells("ICC(3)=0.991"), "||");
}

/// Every form comes back from the others; derived forms hold rubbish before they are derived.
TEST(Dispersion, RoundTripsOnRandomStudies) {
    std::mt19937_64 engine(20);
    std::uniform_real_distribution<double> uniform(0.0, 1.0);
    for (int k = 0; k < 3000; ++k) {
        Study s = studyOf(2 + k % 3, 1 + k / 3 % (1 + k % 3));
        s.DataType = DataTypes(1 + k / 2 % 2), s.txtPrev = 0.01 + 0.98 * uniform(engine);
        for (int level = 2; level <= 4; ++level) {
            s.txtICC(level) = 0.9 * (s.isMeans() ? 0.34 : std::min(0.34, MaxICC(s))) * uniform(engine);
            s.txtTauSq(level) = uniform(engine);
        }
        const PerLevel<double> icc = s.txtICC, tauSquared = s.txtTauSq;
        for (const IccMetrics metric : {IccMetrics::icc, IccMetrics::span}) {
            s.IccMetric = metric;
            (metric == IccMetrics::icc ? s.txtMRange : s.txtICC).fill(1);
            SynchICC(s);
        }
        PerLevel<double>* const forms[] = {&s.txtTauSq, &s.txtDRange, &s.txtOmega, &s.txtTauSq, &s.txtDRange};
        for (int metric = 1; metric <= 3; ++metric) {
            s.TauSqMetric = TauSqMetrics(metric);
            forms[metric]->fill(-1), forms[metric + 1]->fill(-1);
            SynchTauSq(s);
        }
        for (int level = 2; level <= s.NumLevels; ++level) {
            EXPECT_NEAR(s.txtICC(level), icc(level), 1e-14);
            const bool odd = s.NumLevels == 3 && s.RandomizedLevel == 1 && level == 3;
            const double change = odd ? (1 - icc(3)) / icc(3) * icc(2) / (1 - icc(2)) : 1;
            EXPECT_NEAR(s.txtTauSq(level), s.isBlocked(level) ? tauSquared(level) * change : -1,
                        1e-12 * change);
        }
    }
}

Grid tableAfter(const std::string& assignments, const std::string& name = "frmSpreadICC.VS") {
    StudyBench bench;
    bench.play(assignments + " ;");
    return *bench.registry.grid(name);
}

void expectCells(const Grid::Row& row, std::size_t from, std::initializer_list<double> values) {
    for (const double value : values)
        EXPECT_NEAR(readNumber(row.at(from++)).value_or(-99), value, 1e-12) << row[0] << ", column " << from;
}

/// Standard deviations of 2, 4, 2, 1 from the top down around a mean of 50; of 0.05, 0.1 around 0.1.
TEST(DispersionTables, Outcome) {
    const Grid means = tableAfter("L=4 Mean=50 MRange(1)=4 MRange(2)=8 MRange(3)=16 MRange(4)=8");
    double sum = 0;
    std::size_t row = 2;
    for (const double sd : {2, 4, 2, 1}) {
        const double v = sd * sd, all = std::sqrt(sum += v);
        expectCells(means.rows.at(row), 1, {v / 25, 4 * v, sd, v, 4 * sd, 50 - 2 * sd, 50 + 2 * sd});
        expectCells(means.rows.at(row++), 9,
                    {sum / 25, 4 * sum, all, sum, 4 * all, 50 - 2 * all, 50 + 2 * all});
    }
    EXPECT_EQ(means.rows.at(5)[16], "40.00 to 60.00");
    const Grid risks = tableAfter("L=3 DataType=2 Prev=0.1 MRange(2)=0.4 MRange(3)=0.2 MRange(4)=9");
    const double all = std::sqrt(0.0125);
    expectCells(risks.rows.at(2), 1, {1 / 36.0, 100 / 36.0, 0.05, 0.0025, 0.2, 0, 0.2});
    expectCells(risks.rows.at(3), 1, {4 / 36.0, 400 / 36.0, 0.1, 0.01, 0.4, 0, 0.4});
    expectCells(risks.rows.at(3), 9, {5 / 36.0, 500 / 36.0, all, 0.0125, 4 * all, 0, 4 * all});
    EXPECT_EQ(risks.rows.at(3)[8], "0.000 to 0.400");
    EXPECT_EQ(risks.rows.at(4)[0] + risks.rows.at(4)[1] + risks.rows.at(4)[10], "Subjects");
    const Grid limits = tableAfter("DataType=2 RangeMode=2 LL(2)=0.3 UL(2)=0.7");
    expectCells(limits.rows.at(2), 1, {0.04, 4, 0.1, 0.01, 0.4, 0.3, 0.7});
    for (const char* fault : {"ICC_Metric=1 ICC(2)=0.991", "DataType=2 OR=1000000 MRange(2)=0.4"})
        EXPECT_EQ(tableAfter(fault).rows.at(2)[3], "") << fault;
}

/// Tau-squared of 0.09 and 0.04 at levels 4 and 3.
TEST(DispersionTables, Effect) {
    const std::string study = "L=4 R=2 ICC_Metric=1 ICC(3)=0.1 ICC(4)=0.2 TauSq(3)=0.04 TauSq(4)=0.09 ";
    for (const auto& [effect, centre, example] :
         {std::tuple{"d=0.5", 0.5, "0.10 to 0.90"},
          {"DataType=2 OR=2", 2.0, "1.341 to 2.984"},
          {"DataType=2 BinaryType=3 RD=0.1", 0.1, "-0.300 to 0.500"}}) {
        const auto limit = [middle = centre](double shift) {
            return middle == 2 ? 2 * std::exp(shift) : middle + shift;
        };
        const Grid table = tableAfter(study + effect, "frmSpreadTauSq.VS");
        const double both = 4 * std::sqrt(0.13);
        expectCells(table.rows.at(2), 1, {0.09, 1.2, limit(-0.6), limit(0.6)});
        expectCells(table.rows.at(3), 1, {0.04, 0.8, limit(-0.4), limit(0.4)});
        expectCells(table.rows.at(3), 8, {0.13, both, limit(-both / 2), limit(both / 2)});
        expectCells(table.rows.at(3), 6, {0.28});
        EXPECT_EQ(table.rows.at(3)[5], example);
    }
    const Grid ratio = tableAfter(study + "DataType=2 BinaryType=2 RR=1.5", "frmSpreadTauSq.VS");
    EXPECT_EQ(ratio.rows.at(2)[3] + ratio.rows[2][5] + ratio.rows[2][10], "") << "a risk ratio has no limits";
}

TEST(ReadinessChecks, Boundaries) {
    Study s;
    s.txtICC(1) = s.txtICC(3) = 1;  // of no account in two levels
    using Row = std::array<double, 4>;
    for (const auto& [d, oddsRatio, icc, valid] :
         {Row{0.001, 1, 0.999, 0}, {0.0011, 1.0000001, 0.9989, 1}, {-0.001, 1, 1, 0}, {-0.5, 0.9, 0, 1}}) {
        s.txtd = d, s.ComputedOR = oddsRatio, s.txtICC(2) = icc;
        for (const DataTypes type : {DataTypes::means, DataTypes::binary}) {
            s.DataType = type;
            s.result = PowerResult();
            CheckES(s);
            CheckTotICC(s);
            EXPECT_EQ(s.result.xValidES, valid) << d << ' ' << oddsRatio;
            EXPECT_EQ(s.result.xValidTotICC, valid) << icc;
        }
    }
    s = Study();
    const PowerResult& r = s.result;
    for (const double value : {1e-9, 0.0, 5.0}) {  // a flag that is cleared stays so
        CheckCost(s, value, 3), CheckICC(s, value, 3), CheckOmega(s, value, 3), CheckTauSq(s, value, 3);
        const int flags = r.xValidCost(3) + r.xValidICC(3) + r.xValidOmega(3) + r.xValidTauSq(3);
        EXPECT_EQ(flags, value == 1e-9 ? 4 : 0) << value;
    }
    CheckDF(s, 0, 2), CheckDF(s, -1e-8, 2), CheckDF(s, -1e-6, 3), CheckTestDF(s, 0.99999995);
    EXPECT_TRUE(r.xValidDF(2) && !r.xValidDF(3) && r.xValidTestdf);
    CheckTestDF(s, 0.9999), CheckQ(s, 0.3, 0, 1), CheckModel(s, 2, 2), CheckModel(s, 1, 3);
    EXPECT_TRUE(!r.xValidTestdf && !r.xValidQ(1) && r.xValidModel(2) && !r.xValidModel(3));
    s = Study();
    s.DataType = DataTypes::binary;
    CheckQ(s, 0.3, 0, 1), CheckQ(s, 0.3, 0, 2), CheckQ(s, 0.3, 1, 3), CheckQ(s, 0, 0, 4);
    EXPECT_TRUE(r.xValidQ(1) && !r.xValidQ(2) && r.xValidQ(3) && r.xValidQ(4));
}

TEST(ReadinessChecks, NeedOk) {
    for (const std::string name : {"d", "RD", "OR", "Prev", "ICC(1)", "MRange(1)", "MRange(4)", "TauSq(3)",
                                   "DRange(1)", "Omega(4)", "Q(2)", "Rsq(1)"}) {
        SessionState state;
        StudyBench::write(state, "RR=2 P2=0.3 NT(1)=5 CostT(1)=7 Model(2)=1 Alpha=0.1");
        EXPECT_FALSE(NeedOk(state.study));
        StudyBench::write(state, name + "=0.3");
        EXPECT_TRUE(NeedOk(state.study)) << name;
    }
}

}  // namespace
}  // namespace lorvane
