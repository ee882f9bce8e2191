// The table of levels, faults, the value dialog, windows that make way, and money.
#include <cstdlib>

#include "base/names.h"
#include "screen/cost_shares.h"
#include "screen/screen_bench.h"
#include "session/currency.h"

namespace lorvane {
namespace {

using Screen = ScreenTest;

TEST_F(Screen, CellsOfARow) {
    for (const Texts& row : rowsOf("cells.txt")) {
        load(row[0]);
        std::string shown;
        for (const char* cell :
             {"pnlNT", "pnlNC", "pnlNB", "pnlPop", "pnlICC", "pnlMRange", "pnlTauSq", "pnlDRange", "pnlOmega",
              "pnlModel", "pnlQ", "pnlRsq", "pnlCostT", "pnlCostC", "pnlCostB"}) {
            if (see(cell + ('(' + row[1]) + ").Visible") == "true")
                shown += (shown.empty() ? "" : " ") + std::string(cell);
        }
        EXPECT_EQ(shown, row[2]) << row[0] << ", level " << row[1];
        EXPECT_EQ(see("BpnlLevel(" + row[1] + ").Visible"), shown.empty() ? "false" : "true");
    }
}

/// Levels 1 and 2 of a binary study in ICCs: covariates at level 2 alone, no span, no third level.
TEST(Outlines, GoAroundWhatIsShown) {
    using Cells = std::vector<std::string>;
    StudyBench bench;
    bench.play("DataType=2 ICC_Metric=1");
    for (const auto& [from, to, around] : {std::tuple{"pnlQ(2)", "pnlRsq(1)", Cells{"pnlQ(2)", "pnlRsq(2)"}},
                                           {"pnlICC(2)", "pnlICC(2)", Cells{"pnlICC(2)"}},
                                           {"pnlEffectSize", "pnlEffectSize", Cells{"pnlOR"}},
                                           {"pnlQ(1)", "pnlRsq(1)", Cells{}},
                                           {"pnlLevel(3)", "pnlRsq(3)", Cells{}}}) {
        bench.design.outline(7, from, to);
        EXPECT_EQ(bench.design.screen().outlines(7).around, around) << from;
        EXPECT_EQ(bench.design.screen().outlines(7).Visible, !around.empty()) << from;
    }
}

TEST(CostShares, AddUpToTheCostOfEveryDesign) {
    for (int design = 0; design < 9; ++design) {
        const int levels = design < 2 ? 2 : design < 5 ? 3 : 4;
        const int randomized = 1 + design - (design < 2 ? 0 : design < 5 ? 2 : 5);
        StudyBench bench;
        bench.play("L=" + std::to_string(levels) + " R=" + std::to_string(randomized) +
                   " NT(1)=7 NC(1)=6 NT(2)=3 NC(2)=5 NT(3)=2 NC(3)=9 NT(4)=4 NC(4)=3 NB(2)=8 NB(3)=3 NB(4)=2"
                   " CostT(1)=1.3 CostC(1)=2 CostT(2)=30 CostC(2)=7 CostT(3)=99 CostC(3)=80.7 CostT(4)=500"
                   " CostC(4)=1 CostB(2)=11 CostB(3)=222 CostB(4)=3333");
        double amount = 0, share = 0, percent = 0;
        for (const CostShare& row : costShares(bench.session.state())) {
            std::string digits = row.amount;
            std::erase_if(digits, [](char c) { return c == ',' || c == '$'; });
            amount += std::atof(digits.c_str());
            percent += std::atof(row.percent.c_str());
            share += row.share;
        }
        EXPECT_EQ(amount, bench.study.result.txtCost) << levels << randomized;
        EXPECT_NEAR(share, 1, 1e-12);
        EXPECT_EQ(percent, 100);
    }
}

TEST(CostShares, TellUnitsAndUnitCosts) {
    StudyBench bench;
    const auto rows = [&](const char* played) {
        bench.play(played);
        std::string text;
        for (const CostShare& row : costShares(bench.session.state()))
            text += row.units + ": " + row.unitCosts + " = " + row.amount + " " + row.percent + "; ";
        return text;
    };
    EXPECT_EQ(rows("L=3 R=2 NB(3)=3 NT(2)=5 NC(2)=4 NT(1)=10 NC(1)=10 CostB(3)=1000 CostT(2)=50 CostC(2)=40"
                   " CostT(1)=2 CostC(1)=2"),
              "3: 3 at $1,000 = $3,000 63%; 27: 15 at $50 and 12 at $40 = $1,230 26%; 270: 270 at $2 = $540 "
              "11%; ");
    EXPECT_EQ(rows("CostB(3)=0 CostT(2)=0 CostC(2)=0 CostT(1)=0 CostC(1)=0"),
              "3: 3 at $0 =  ; 27: 27 at $0 =  ; 270: 270 at $0 =  ; ");
}

// The top that the user has set stays; until then the bar ends above the cost.
TEST_F(Screen, TheCostBarEndsAboveTheCostUntilItsTopIsSet) {
    for (const auto& [cost, top, flood] : {std::tuple{"30", "$500 maximum", "60"},
                                           {"0", "$100 maximum", "0"},
                                           {"9", "$100 maximum", "90"},
                                           {"100000", "$2,000,000 maximum", "50"}}) {
        load(std::string("Costmode=2 txtNT(2)=5 txtNC(2)=5 txtNT(1)=1 txtNC(1)=1 txtCostT(2)=") + cost +
             " txtCostC(2)=" + cost + " txtCostT(1)=0 txtCostC(1)=0");
        expect({{"pnlCost.High", top}, {"pnlCostTop.Flood", flood}, {"MaxCost", "100"}});
    }
    app.tool("Set maximum cost");
    app.type("txtMaxCost", "4000000");
    app.click("cmdSetMaxCost(0)");
    expect({{"pnlCost.High", "$4,000,000 maximum"}, {"pnlCostTop.Flood", "25"}, {"MaxCost", "4000000"}});
}

/// A study from a file may hold an empty arm; an unusable ICC keeps the formula from meeting it.
TEST_F(Screen, ArithmeticFaultShowsTheEntryAndTheNextGoodEditRecovers) {
    load("txtNT(1)=0 txtNC(1)=0 ICC_Metric=1 txtICC(2)=1 txtd=0.5");
    int redrawn = 0;
    app.whenShown([&] { ++redrawn; });
    EXPECT_THROW(app.spin("spnIcc(2)", -1), ArithmeticFault);
    expect({{"pnlICC(2).Caption", "        0.99"}, {"txtICC(2)", "0.99"}, {"xValid", "0"}});
    EXPECT_THROW(app.tool("Set power 90"), ArithmeticFault);
    app.spin("spnNT(1)", 1);
    expect({{"xValid", "1"}, {"pnlPowerOuter.Visible", "true"}, {"tool:Set power.Caption", "90%"}});
    EXPECT_EQ(redrawn, 3) << "each event is shown, also after a fault";
}

TEST_F(Screen, ValueDialogHoldsTheLimitsOfTheArrows) {
    for (const Texts& row : rowsOf("values.txt")) {
        const std::string& field = row[0];
        load(row[1]);
        app.save("clean.Lorvane");
        app.openValue(field);
        for (const bool good : {false, true}) {
            const std::string before = see(field);
            app.type("frmValue.txtValue", row[good ? 3 : 2]);
            app.click("frmValue.cmdOK");
            EXPECT_EQ(messages.script.take().size(), good ? 0u : 1u) << field << ' ' << row[good ? 3 : 2];
            expect({{field, good ? row[3] : before}, {"frmValue.Visible", good ? "false" : "true"}});
            EXPECT_EQ(app.session().isDirty(), good);
        }
        EXPECT_EQ(see("txtNC(2)"), field == "txtNT(2)" ? row[3] : "2") << "the linked arm";
    }
}

TEST(Windows, EveryStateAndAction) {
    using enum WindowAction;
    using Actions = std::vector<WindowAction>;
    const std::pair<Actions, const char*> rows[] = {
        {{}, "00004"}, {{open, withdrawForGood}, "11114"}, {{open, withdraw}, "22244"}, {{open}, "01244"}};
    for (const auto& [path, wanted] : rows) {
        std::string reached;
        for (const WindowAction last : {unload, withdrawForGood, withdraw, bringBack, open}) {
            WindowRegistry windows;
            for (const WindowAction step : path)
                windows.SynchForms(WindowId::frmTips, step);
            windows.SynchForms(WindowId::frmTips, last);
            reached += std::to_string(static_cast<int>(windows.state(WindowId::frmTips)));
        }
        EXPECT_EQ(reached, wanted);
    }
}

/// States of the windows 1 to 25: all open but 21; then 6 and 13 closed by hand, 7 by its OK, 14 withdrawn.
TEST(Windows, MakeWayBySetsAndComeBack) {
    using enum WindowAction;
    for (const auto& [set, away, back] :
         {std::tuple{FormSet::main, "4422210422421222224404222", "4444410444441244444404444"},
          {FormSet::graph, "4444410244241244442404444", "4444410444441444444404444"}}) {
        StudyBench bench;
        const auto states = [&] {
            std::string text;
            for (int window = 1; window <= lastWindowId; ++window)
                text += std::to_string(static_cast<int>(bench.design.windows().state(WindowId(window))));
            return text;
        };
        for (int window = 2; window <= lastWindowId; ++window)
            bench.design.SynchForms(WindowId(window), window == 21 ? unload : open);
        bench.design.SynchForms(WindowId::frmGroupNames, withdrawForGood);
        bench.design.SynchForms(WindowId::frmXVar, withdrawForGood);
        bench.design.SynchForms(WindowId::frmLevelNames, unload);
        bench.design.SynchForms(WindowId::xPlot, withdraw);
        bench.design.SuspendForms(set);
        EXPECT_EQ(states(), away);
        bench.design.RestoreForms(set);
        EXPECT_EQ(states(), back);
    }
}

TEST_F(Screen, MessageStandsAlone) {
    load("RandomizedLevel=1 DataType=2 txtOR=2");
    for (const char* window : {"gfrmDisplayICC", "gfrmDisplayTauSq", "gfrmLevelNames", "gfrmDetails"})
        app.tool(window);
    app.close("frmDisplayICC");
    const auto states = [&] {
        return see("window:3") + see("window:4") + see("window:7") + see("window:25");
    };
    std::string during;
    messages.whileShown = [&] { during = states(); };
    app.tool("Risk difference");
    EXPECT_EQ(during + ' ' + states(), "2122 4144");
}

TEST_F(Screen, SettingsThatMeetStayInStep) {
    load("NumLevels=3 txtModel(2)=1");
    app.tool("Randomize Level 2");
    expect({{"txtModel(2)", "0"}, {"pnlModel(2).Caption", "   Random"}});
    load("DataType=2 BinaryType=3 txtPrev=0.3 RangeMode=2 txtLL(2)=0.1 txtUL(2)=0.9");
    EXPECT_EQ(see("frmDisplayICC.pnlFooter.Caption"), "Range includes 95% of units.");
    app.tool("FrmLimits");
    app.tool("Enter ICC");
    EXPECT_EQ(see("frmLimits.Visible"), "false");
    app.save("work/north.Lorvane");
    EXPECT_EQ(see("Design.Caption"), "Lorvane,  risk difference  north.Lorvane");
}

TEST_F(Screen, ThePanelOfTheIccLeadsToTheLimitsOfRisks) {
    load("DataType=2 txtPrev=0.1 txtMRange(2)=0.4 txtDelta=0.01");
    expect({{"frmDisplayICC.cmdDelta.Visible", "true"}, {"window:23", "0"}});
    app.click("frmDisplayICC.cmdDelta");
    expect({{"window:23", "4"}, {"frmDelta.txtDelta.Text", "0.0100"}, {"frmLimits.Visible", "false"}});
    app.click("frmDisplayICC.cmdOptions");
    expect({{"frmLimits.Visible", "true"}});
}

/// Scripts can ask for what no face offers: a level that is not in use, a dialog that is not open.
TEST_F(Screen, WhatIsNotOfferedDoesNoHarm) {
    const auto exitAfter = [&](const auto& event) {
        try {
            event();
        } catch (const UseProblem&) {
        }
        std::exit(see("RandomizedLevel") == "2" ? 0 : 1);
    };
    EXPECT_EXIT(exitAfter([&] { app.tool("Randomize Level 4"); }), testing::ExitedWithCode(0), "");
    EXPECT_EXIT(exitAfter([&] { app.click("frmValue.cmdOK"); }), testing::ExitedWithCode(0), "");
}

TEST(Words, Currency) {
    for (const auto& [zero, amount] : {std::pair{"$0.00", "$1,234,567"},
                                       {"0,00 €", "1,234,567€"},
                                       {"kr 0,00", "kr1,234,567"},
                                       {"0.00 Ft.", "1,234,567Ft"},
                                       {"Bs.F. 0,00", "BsF1,234,567"}})
        EXPECT_EQ(ReFormatCurrency(1234567, detectCurrency(FixedLocale(zero))), amount);
    EXPECT_EQ(ReFormatCurrency(999, {"$", 3}), "");
}

}  // namespace
}  // namespace lorvane
