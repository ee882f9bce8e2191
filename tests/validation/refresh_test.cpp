// What a change shows, which windows it moves, and that a trial leaves no trace.
#include <regex>

#include "screen/design_words.h"
#include "support/counted_allocations.h"
#include "validation/cell_counts.h"
#include "validation/study_bench.h"

namespace lorvane {
namespace {

// Values of controls, windows and outlines; not the fields and results of the study.
std::vector<ControlValue> shown(const StudyBench& bench) {
    static const std::regex display("pnl|cmd|outline|window:|SSPanel|DisplayICC.txt");
    std::vector<ControlValue> values;
    for (const std::string& name : bench.registry.names()) {
        if (std::regex_search(name, display))
            values.push_back(*bench.registry.read(name));
    }
    return values;
}

/// All eighteen designs, valid and with every kind of fault that the design knows.
TEST(Refresh, TrialShowsNothingAndAllocatesNothing) {
    for (int design = 0; design < 24; ++design) {
        const int levels = 2 + design / 8, randomized = 1 + design / 2 % 4, type = 1 + design % 2;
        StudyBench bench;
        bench.play("L=" + std::to_string(levels) + " R=" + std::to_string(std::min(levels, randomized)) +
                   " DataType=" + std::to_string(type) +
                   " d=0.4 OR=2 ICC_Metric=1 ICC(2)=0.1 ICC(3)=0.1 NT(1)=50 NC(1)=50 Q(2)=1 NB(2)=9");
        const auto before = shown(bench);
        const Grid::Row row = bench.registry.grid("frmSpreadICC.VS")->rows.at(2);
        for (const auto& [change, valid] : {std::pair{"NT(1)=80", true},
                                            {"Q(2)=9999 Q(3)=99 Q(4)=99", false},
                                            {"Rsq(2)=0.5 Q(2)=0", false},
                                            {"ICC(2)=0.995", false},
                                            {"OR=1000000", type == 1},
                                            {"MRange(1)=0 ICC_Metric=2", type == 2},
                                            {"TauSq(2)=-1 TauSq(3)=-1 TauSq(4)=-1", randomized >= levels}}) {
            SCOPED_TRACE(testing::Message() << levels << ' ' << randomized << ' ' << type << ' ' << change);
            SessionState changed = bench.session.state();
            StudyBench::write(changed, change);
            StudyTrial trial = bench.session.trial();
            trial.study = changed.study;
            const long earlier = allocations;
            trial.refresh();
            EXPECT_EQ(allocations, earlier);
            EXPECT_EQ(trial.study.result.xValid, valid);
            EXPECT_EQ(shown(bench), before);
            EXPECT_EQ(bench.registry.grid("frmSpreadICC.VS")->rows.at(2), row);
        }
        EXPECT_GT(allocations, 0);
    }
}

TEST(Refresh, PowerLineAndWindows) { playScenarios("power_line.txt", "", "pnlPower"); }

TEST(Refresh, ReasonLine) { playScenarios("reason_line.txt", "", "pnlPowerReason"); }

TEST(Refresh, TheNoteLeadsToOutlinesOfThisProblemAlone) {
    using Cells = std::vector<std::string>;
    for (const auto& [played, around, leads] :
         {std::tuple{"L=4 R=4 ICC_Metric=1 ICC(2)=0.6 ICC(4)=0.6",
                     Cells{"pnlICC(2)", "pnlICC(3)", "pnlICC(4)"}, true},
          {"L=3 R=1 DataType=2 BinaryType=3 Tau-sq_Metric=2 DRange(3)=3", Cells{"pnlDRange(3)"}, true},
          {"ICC_Metric=1 MRange(1)=0", Cells{}, false},
          {"Q(2)=9", Cells{}, true},
          {"Q(2)=9 ; DataType=2 OR=1000000", Cells{}, false}}) {
        StudyBench bench;
        bench.play(played);
        const MainScreen& screen = bench.design.screen();
        EXPECT_EQ(screen.outlines(1).around, around) << played;
        EXPECT_EQ(screen.pnlPowerNote.Caption == outlinedValuesNote, leads) << played;
    }
}

TEST(Refresh, CostLine) { playScenarios("cost_line.txt", "", "pnlCost"); }

TEST(CellCounts, PanelAndItsSetting) {
    for (const auto& [mode, whenLow, whenOk] : {std::tuple{SchematicModes::off, "window:25=0", "window:25=0"},
                                                {SchematicModes::automatic, "window:25=4", "window:25=1"},
                                                {SchematicModes::on, "window:25=4", "window:25=4"}}) {
        StudyBench bench;
        bench.design.setShowCellCounts(mode);
        bench.play("DataType=2 ;");
        bench.expect(whenLow);
        EXPECT_EQ(bench.caption("frmCounts.pnlTitle"), "Cell counts are low");
        bench.play("Prev=0.25 OR=2 NC(1)=100 NT(1)=200 ;");
        bench.expect(whenOk);
        std::string text;
        for (const char* cell : {"Title", "N(1)", "N(2)", "Rate(1)", "Rate(2)", "Rate(3)", "Rate(4)",
                                 "Mean(1)", "Mean(2)", "Mean(3)", "Mean(4)"})
            text += bench.caption(std::string("frmCounts.pnl") + cell) + ' ';
        EXPECT_EQ(text, "Cell counts are Ok 100 200 0.250 0.750 0.400 0.600 25.0 75.0 80.0 120.0 ");
    }
    for (const auto& [share, text, colour] :
         {std::tuple{0.1, "10.00%", problemColour}, {0.0999, "9.99%", normalBackground}}) {
        Panel cell;
        CellColor(cell, share);
        EXPECT_EQ(cell.Caption, text);
        EXPECT_EQ(cell.BackColor, colour);
    }
}

}  // namespace
}  // namespace lorvane
