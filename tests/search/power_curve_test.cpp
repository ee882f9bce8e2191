// The curve of power: it tells what a computation tells, over a range that stands still, and leaves no trace.
#include "search/power_curve.h"
#include "validation/study_bench.h"

namespace lorvane {
namespace {

struct CurveBench : StudyBench {
    PowerCurveRun run;

    const PowerCurve* curve() {
        run.begin(session);
        while (run.goOn(3)) {
        }
        return run.curve();
    }
    std::vector<ControlValue> state() const {
        std::vector<ControlValue> values;
        for (const std::string& name : registry.names())
            values.push_back(*registry.read(name));
        return values;
    }
    /// Enters the number as a person does.
    double powerAt(double units) {
        const FieldRef field = topUnits(study);
        session.edit({"units"}, [&](SessionState& state) { enterField(state, field, units); });
        return study.result.xValid ? study.result.txtPower : -1;
    }
};

/// The nine designs, means and binary outcomes, with linked and with free arms.
TEST(PowerCurves, EveryPointIsWhatTheComputationGives) {
    for (int design = 0; design < 9 * 4; ++design) {
        const int shape = design / 4;
        const int levels = shape < 2 ? 2 : shape < 5 ? 3 : 4;
        const int randomized = 1 + shape - (shape < 2 ? 0 : shape < 5 ? 2 : 5);
        CurveBench bench;
        bench.play("L=" + std::to_string(levels) + " R=" + std::to_string(randomized) +
                   " DataType=" + std::to_string(1 + design % 2) + " Link_N" + std::to_string(levels) + "=" +
                   std::to_string(design / 2 % 2) +
                   " d=0.4 OR=2 ICC_Metric=1 ICC(2)=0.1 ICC(3)=0.1 TauSq(2)=0.01 TauSq(3)=0.01 TauSq(4)=0.01 "
                   "Q(" +
                   std::to_string(levels) +
                   ")=3 NT(1)=9 NC(1)=8 NB(2)=6 NB(3)=6 NB(4)=6 NT(2)=7 "
                   "NC(2)=7 NT(3)=7 NC(3)=7 NT(4)=7 NC(4)=7");
        SCOPED_TRACE(testing::Message() << levels << randomized << ' ' << design % 4);
        const auto before = bench.state();
        const PowerCurve curve = *bench.curve();
        EXPECT_EQ(bench.state(), before);
        EXPECT_EQ(curve.points[curve.present].power, bench.study.result.txtPower);
        for (const PowerPoint& point : curve.points)
            EXPECT_EQ(bench.powerAt(point.units), point.power) << point.units;
        EXPECT_GT(curve.points.size(), 5u);
        EXPECT_EQ(curve.range.first, curve.points.front().units);
        const bool isLeast = curve.range.first == 1 || bench.powerAt(curve.range.first - 1) < 0;
        EXPECT_TRUE(isLeast) << "the smallest number with a power";
    }
}

TEST(PowerCurves, TheRangeStaysWhileTheNumberIsInItsMiddle) {
    CurveBench bench;
    bench.play("d=0.4 ICC_Metric=1 ICC(2)=0.1");
    for (const auto& [units, last, points] : {std::tuple{5.0, 12.0, 11u},
                                              {7.0, 12.0, 11u},
                                              {9.0, 12.0, 11u},
                                              {10.0, 20.0, 19u},
                                              {15.0, 20.0, 19u},
                                              {16.0, 32.0, 31u},
                                              {12.0, 32.0, 31u},
                                              {9.0, 18.0, 17u},
                                              {301.0, 602.0, 38u},
                                              {1000000.0, 1000000.0, 38u}}) {
        bench.powerAt(units);
        const PowerCurve& curve = *bench.curve();
        EXPECT_EQ(curve.range.first, 2) << units;
        EXPECT_EQ(curve.range.last, last) << units;
        EXPECT_EQ(curve.points.size(), points) << units;
        EXPECT_EQ(curve.points[curve.present].units, units);
    }
}

TEST(PowerCurves, WithoutAPowerThereIsNoCurveAndAnEditDropsTheOneBegun) {
    CurveBench bench;
    bench.play("d=0.4 NT(2)=20 NC(2)=20");
    EXPECT_NE(bench.curve(), nullptr);
    bench.run.begin(bench.session);
    EXPECT_TRUE(bench.run.goOn(5));
    bench.play("Q(2)=99");
    bench.run.begin(bench.session);
    EXPECT_EQ(bench.run.curve(), nullptr);
    EXPECT_FALSE(bench.run.goOn(1));
    bench.play("Q(2)=0 DataType=2 BinaryType=4");
    EXPECT_EQ(bench.curve(), nullptr) << "two risks have no test";
}

TEST(PowerCurves, Words) {
    CurveBench bench;
    bench.play("L=3 R=3");
    EXPECT_EQ(powerCurveTitle(bench.study), "Number of level 3s per group");
    EXPECT_EQ(powerPointWords(bench.study, {15, 0.8235}), "15 level 3s: power 0.82");
    bench.play("Link_N3=0");
    EXPECT_EQ(powerCurveTitle(bench.study), "Number of level 3s, Treated");
    bench.play("R=2");
    EXPECT_EQ(powerCurveTitle(bench.study), "Number of level 3s");
}

}  // namespace
}  // namespace lorvane
