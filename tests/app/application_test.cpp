// The program without a face: changes that are whole or not at all, and events that are always announced.
#include "app_bench.h"
#include "persistence/study_file.h"

namespace lorvane {
namespace {

class App : public AppBench {
protected:
    std::string setting(const Values& values) {
        return problemOf([&] { app.set(values); });
    }
    std::string loading(const Values& values) {
        return problemOf([&] { app.load(values); });
    }
    // An empty arm, as a file can hold it; the ICC at fault keeps the formula from meeting it until it moves.
    void fail() {
        app.load(Values{
            {"txtNT(1)", 0.0}, {"txtNC(1)", 0.0}, {"ICC Metric", 1.0}, {"txtICC(2)", 1.0}, {"txtd", 0.5}});
        EXPECT_THROW(app.spin("spnIcc(2)", -1), ArithmeticFault);
    }
    void saveTwoScenarios(const std::string& path) {
        ScenarioGrid grid;
        for (const auto& [name, d] : {std::pair{"Small", 0.2}, {"Large", 0.8}})
            addScenario(grid, name, std::string(name) + " effect",
                        [d = d](SessionState& state) { state.study.txtd = d; });
        SaveGrid(files, path, grid);
    }
};

TEST_F(App, WhatCannotBeTakenChangesNothing) {
    app.load(
        Values{{"NumLevels", 3.0}, {"RandomizedLevel", 2.0}, {"txtd", 0.4}, {"AllowLowCellCounts", true}});
    app.set(Values{{"txtName(2)", std::string("Wards")}});
    app.save("kept");
    files.files["bad"] = "no study";
    const Values mixed = {{"NumLevels", 4.0}, {"DataType", 2.0}, {"txtName(1)", std::string("X")},
                          {"MaxCost", 7.0},   {"txtAlpha", 0.1}, {"IterationsForOptimal", 5.0}};
    const Values bad[] = {{{"txtd", 11.0}},
                          {{"txtd", std::string("1")}},
                          {{"txtName(3)", 1.0}},
                          {{"Link N2", 1.0}},
                          {{"txtName(3)", std::string(256, 'n')}},
                          {{"nothing", 1.0}},
                          {{"RandomizedLevel", 5.0}},
                          {{"txtd", std::numeric_limits<double>::quiet_NaN()}}};
    const auto before = state();
    for (Values values : bad) {
        const std::string name = values[0].name;
        values.insert(values.begin(), mixed.begin(), mixed.end());
        EXPECT_NE(setting(values).find(name), std::string::npos) << name;
        EXPECT_EQ(changedSince(before), "") << name;
        const bool onlyBeyondADialog = values.back().value == FieldValue(11.0);
        if (!onlyBeyondADialog) {
            EXPECT_NE(loading(values).find(name), std::string::npos) << name;
        }
        EXPECT_EQ(changedSince(before), "") << name;
    }
    EXPECT_NE(problemOf([&] { app.open("bad"); }).find("\"bad\""), std::string::npos);
    EXPECT_NE(problemOf([&] { app.open("missing"); }), "done");
    EXPECT_NE(problemOf([&] { app.restoreScenario("None"); }), "done");
    EXPECT_EQ(changedSince(before), "");
}

TEST_F(App, ARefusalKeepsBothStatesOfTheDirtyFlag) {
    for (const bool dirty : {true, false}) {
        app.set(Values{{"txtd", 0.3}});
        if (!dirty)
            app.save("clean");
        EXPECT_NE(setting({{"txtd", 11.0}}), "done");
        EXPECT_EQ(app.session().isDirty(), dirty);
    }
}

TEST_F(App, AnArithmeticFaultOfAChangeIsUndone) {
    app.load(Values{{"txtd", 0.5}, {"txtNT(2)", 8.0}});
    app.save("kept");
    const auto before = state();
    const Values empty = {{"txtNT(1)", 0.0}, {"txtNC(1)", 0.0}, {"txtd", 0.7}};
    EXPECT_THROW(app.load(empty), ArithmeticFault);
    EXPECT_EQ(changedSince(before), "");
    EXPECT_TRUE(app.scenarios().empty());
    EXPECT_EQ(text("CurrentFile"), "kept");
}

TEST_F(App, AStudyThatCannotBeComputedOpensAndRecovers) {
    ScenarioGrid grid;
    addScenario(grid, "Empty", "",
                [](SessionState& state) { state.study.txtNT(1) = state.study.txtNC(1) = 0; });
    SaveGrid(files, "faulty", grid);
    app.open("faulty");
    EXPECT_EQ(text("pnlPower.Caption"), "Please modify data");
    EXPECT_FALSE(hasPower(app.session()));
    EXPECT_NE(whyNoPower(app.session()).find("please modify the values"), std::string::npos);
    app.set(Values{{"txtNT(1)", 10.0}, {"txtNC(1)", 10.0}, {"txtd", 0.7}});
    EXPECT_TRUE(hasPower(app.session())) << "a study that was saved in trouble is not lost";
}

TEST_F(App, DesignChoicesComeFirstWhateverTheOrder) {
    const Values values = {{"txtMRange(2)", 0.9}, {"RandomizedLevel", 1.0}, {"txtCostB(3)", 5.0},
                           {"NumLevels", 4.0},    {"DataType", 2.0},        {"txtPrev", 0.3}};
    Values backwards(values.rbegin(), values.rend());
    for (const Values& order : {values, backwards}) {
        app.load(Values{});
        app.set(order);
        EXPECT_EQ(study().NumLevels, 4);
        EXPECT_EQ(study().RandomizedLevel, 1);
        EXPECT_TRUE(study().isBinary());
        EXPECT_EQ(study().txtCostB(3), 5);
    }
    for (const Values& order :
         {Values{{"txtMRange(2)", 1.5}, {"DataType", 2.0}}, Values{{"DataType", 2.0}, {"txtMRange(2)", 1.5}}})
        EXPECT_EQ(setting(order), "txtMRange(2) must lie from 0 to 1, not at 1.5.");
    EXPECT_EQ(setting({{"txtMRange(2)", 1.5}, {"DataType", 1.0}}), "done");
    app.set(Values{{"NumLevels", 3.0}});
    EXPECT_EQ(study().RandomizedLevel, 3) << "the randomization moves to the top";
    EXPECT_EQ(setting({{"RandomizedLevel", 4.0}}),
              "RandomizedLevel must lie from 1 to 3, the number of levels.");
}

TEST_F(App, TheLastOfTwoValuesOfAFieldCounts) {
    app.set(Values{{"txtd", 1.0}, {"DType", 2.0}, {"txtd", 2.0}, {"DType", 1.0}});
    EXPECT_EQ(study().txtd, 2);
    EXPECT_EQ(study().DType, DTypes::within);
    app.set(Values{{"NumLevels", 3.0}, {"NumLevels", 4.0}});
    EXPECT_EQ(study().NumLevels, 4);
}

TEST_F(App, SetHoldsTheLimitsOfTheDialogsAndLoadDoesNot) {
    const std::pair<const char*, double> beyond[] = {
        {"txtd", 10.5},     {"txtNT(2)", 0.5}, {"txtAlpha", 0.495}, {"txtICC(2)", 1},
        {"txtRsq(2)", 1},   {"txtQ(1)", 100},  {"txtCostT(1)", -1}, {"txtModel(2)", 2},
        {"txtOmega(2)", 3}, {"txtSD", 0},      {"txtDelta", 0.2}};
    for (const auto& [name, value] : beyond) {
        EXPECT_TRUE(setting({{name, value}}).starts_with(std::string(name) + " must lie ")) << name;
        EXPECT_EQ(loading({{name, value}}), "done") << name;
    }
    EXPECT_EQ(loading({{"DataType", 3.0}}), "DataType must be 1 or 2, not 3.");
    EXPECT_EQ(loading({{"txtTails", 3.0}}), "txtTails must be 1 or 2, not 3.");
}

TEST_F(App, ParseReadsEveryKind) {
    EXPECT_EQ(std::get<double>(parseAssignment("txtd", " -0.5 ").value), -0.5);
    EXPECT_EQ(std::get<double>(parseAssignment("NumLevels", "3").value), 3);
    EXPECT_EQ(std::get<std::string>(parseAssignment("txtName(1)", " 1 ").value), " 1 ");
    for (const auto& [word, flag] : {std::pair{"true", true}, {"FALSE", false}, {"1", true}, {" 0 ", false}})
        EXPECT_EQ(std::get<bool>(parseAssignment("Link N2", word).value), flag) << word;
    const std::tuple<const char*, const char*, const char*> refused[] = {
        {"txtd", "1e999", "txtd takes a number, not \"1e999\"."},
        {"txtd", "0,5", "txtd takes a number, not \"0,5\"; use a point, not a comma, before the decimals."},
        {"txtd", "", "txtd takes a number, not \"\"."},
        {"Link N2", "yes", "Link N2 takes true or false, not \"yes\"."},
        {"txtDD", "1", "There is no field \"txtDD\"; the nearest is \"txtd\"."},
        {"link m3", "1", "There is no field \"link m3\"; the nearest is \"Link N3\"."}};
    for (const auto& [name, word, problem] : refused)
        EXPECT_EQ(problemOf([&, n = name, w = word] { parseAssignment(n, w); }), problem);
    EXPECT_EQ(problemOf([&] { app.tool("Add levels"); }),
              "There is no tool \"Add levels\"; the nearest is \"Add a level\".");
}

TEST_F(App, ScenariosOpenRestoreAndSaveWithTheStudy) {
    EXPECT_EQ(problemOf([&] { app.restoreScenario("Small"); }),
              "There is no scenario \"Small\"; the study has none.");
    saveTwoScenarios("two");
    app.open("two");
    EXPECT_EQ(study().txtd, 0.2) << "the first scenario where there is no state of the screen";
    app.restoreScenario("Large");
    EXPECT_EQ(study().txtd, 0.8);
    EXPECT_TRUE(app.session().isDirty());
    EXPECT_EQ(problemOf([&] { app.restoreScenario("large one"); }),
              "There is no scenario \"large one\"; the nearest is \"Large\".");
    EXPECT_NE(problemOf([&] { app.restoreScenario(std::string(SystemScenarioName)); }), "done");
    app.set(Values{{"txtd", 0.6}});
    app.save("again");
    EXPECT_FALSE(app.session().isDirty());
    app.load(Values{});
    app.open("again");
    EXPECT_EQ(study().txtd, 0.6) << "the state of the screen";
    ASSERT_EQ(app.scenarios().size(), 2u);
    EXPECT_EQ(app.scenarios()[1].description, "Large effect");
    EXPECT_EQ(text("CurrentFile"), "again");
}

TEST_F(App, WhyNoPowerSpeaksForEveryGate) {
    const std::pair<Values, const char*> gates[] = {
        {{{"DataType", 2.0}, {"txtPrev", 0.5}, {"BinaryType", 3.0}, {"txtRD", 0.6}},
         "An event rate of 0.5000 in the control group, coupled with risk difference of 0.60"},
        {{{"NumLevels", 3.0}, {"ICC Metric", 1.0}, {"txtICC(2)", 0.6}, {"txtICC(3)", 0.6}},
         "The sum of the ICCs must fall in the range of 0 to 0.99"},
        {{{"RandomizedLevel", 1.0}, {"Tau-sq Metric", 3.0}, {"ICC Metric", 1.0}, {"txtOmega(2)", 0.5}},
         "When ICC is zero, omega is undefined"},
        {{{"txtNT(2)", 1.0}, {"txtNC(2)", 1.0}}, "There are insufficient degrees of freedom."},
        {{{"txtRsq(2)", 0.5}}, "It is not possible for R-squared at any level to be greater than zero"},
        {{{"DataType", 2.0}, {"BinaryType", 2.0}}, "The effect metric \"risk ratio\" has no test"},
        {{{"DataType", 2.0}, {"BinaryType", 4.0}}, "The effect metric \"event rate in each group\" has no"}};
    for (const auto& [values, words] : gates) {
        app.load(Values{{"txtd", 0.5}});
        EXPECT_TRUE(hasPower(app.session()));
        app.load(values);
        EXPECT_FALSE(hasPower(app.session())) << words;
        EXPECT_TRUE(whyNoPower(app.session()).starts_with(words))
            << whyNoPower(app.session()) << "\n  wanted " << words;
    }
}

TEST_F(App, AnEventIsAnnouncedAfterAFaultAndThePowerAsksForData) {
    std::vector<std::string> seen;
    app.whenShown([&] { seen.push_back(text("pnlPower.Caption")); });
    fail();
    EXPECT_EQ(seen, std::vector<std::string>{"Please modify data"});
    EXPECT_FALSE(hasPower(app.session()));
    EXPECT_TRUE(whyNoPower(app.session()).ends_with("please modify the values of Subjects."));
    EXPECT_THROW(app.click("nothing"), UseProblem);
    EXPECT_THROW(app.close("nothing"), UseProblem);
    EXPECT_EQ(seen.size(), 3u);
    EXPECT_THROW(app.type("nothing", ""), UseProblem);
    EXPECT_EQ(seen.size(), 3u);
}

TEST_F(App, ArrowsThatDoNotExistAreRefusedByTheirName) {
    int redrawn = 0;
    app.whenShown([&] { ++redrawn; });
    const auto before = state();
    for (const std::string arrows :
         {"spnNT(5)", "spnNT(0)", "spnNT", "spnXX", "spnModel(5)", "txtNT(2)", "", "frmDisplayICC.spnQ(2)",
          "frmDisplayTauSq.spnQ(2)", "frmDisplayTauSq.spnIcc(2)"})
        EXPECT_EQ(problemOf([&] { app.spin(arrows, 1); }), "There are no arrows \"" + arrows + "\".");
    EXPECT_EQ(changedSince(before), "");
    EXPECT_EQ(redrawn, 0);
}

TEST_F(App, AfterAFaultARefusalIsStillToldAsWhatItIs) {
    fail();
    EXPECT_EQ(setting({{"txtd", 11.0}}), "txtd must lie from -10 to 10, not at 11.");
    EXPECT_EQ(study().txtd, 0.5);
    EXPECT_EQ(text("pnlPower.Caption"), "Please modify data");
    EXPECT_TRUE(std::get<bool>(*app.names().read("pnlPower.Visible"))) << "not the bar of an earlier power";
}

// An R-squared above 1, as a file can hold it, makes the variance negative as soon as the ICC grows.
TEST_F(App, AfterAFaultWhyNoPowerNeverSaysValid) {
    app.load(Values{{"ICC Metric", 1.0}, {"txtRsq(2)", 3.0}, {"txtQ(2)", 1.0}, {"txtd", 0.5}});
    ASSERT_TRUE(hasPower(app.session()));
    bool failed = false;
    for (int i = 0; i < 20 && !failed; ++i)
        failed = problemOf([&] { app.spin("spnIcc(2)", 1); }) != "done";
    ASSERT_TRUE(failed);
    EXPECT_FALSE(hasPower(app.session()));
    EXPECT_TRUE(whyNoPower(app.session()).ends_with("please modify the values of Level 2s."));
}

TEST_F(App, WhatIsRefusedLeavesEveryResult) {
    const std::function<void()> refused[] = {
        [&] {
            app.set(Values{{"txtd", 11.0}});
        },
        [&] {
            app.set(Values{{"RandomizedLevel", 3.0}, {"txtd", 0.1}});
        },
        [&] {
            app.load(Values{{"txtNT(1)", 0.0}, {"txtNC(1)", 0.0}, {"txtd", 0.5}});
        },
        [&] {
            app.load(Values{{"BinaryType", 5.0}});
        },
        [&] { app.tool("Nothing"); },
        [&] { app.tool("Redo"); },
        [&] { app.click("nothing"); },
        [&] { app.close("nothing"); },
        [&] { app.type("nothing", ""); },
        [&] { app.spin("nothing", 1); },
        [&] { app.select("vsA", {99}); },
        [&] { app.setNumber("frmOptimal.txtNumReps(1)", 0); },
        [&] { app.restoreScenario("nothing"); },
        [&] { app.open("nothing"); }};
    for (const auto& [button, result] :
         {std::pair{"frmMDES.cmdComputeMDES", "frmMDES.pnlFigureNumber.Caption"},
          {"frmOptimal.cmdOpt(2)", "frmOptimal.pnlCostNumber.Caption"}}) {
        app.load(Values{{"ICC Metric", 1.0},
                        {"txtICC(2)", 0.1},
                        {"txtd", 0.5},
                        {"txtCostT(1)", 1.0},
                        {"txtCostC(1)", 1.0},
                        {"txtCostT(2)", 5.0},
                        {"txtCostC(2)", 5.0}});
        app.click(button);
        app.save("kept");
        ASSERT_NE(text(result), "") << button;
        const auto before = state();
        for (std::size_t i = 0; i < std::size(refused); ++i) {
            EXPECT_NE(problemOf(refused[i]), "done") << i;
            EXPECT_EQ(changedSince(before), "") << i;
        }
    }
}

TEST_F(App, ARefusalOpensNoWindowThatWasClosed) {
    app.load(Values{{"txtRsq(2)", 0.5}});
    ASSERT_EQ(number("window:15"), 4) << "the problem window is open";
    app.close("frmProblems");
    const auto before = state();
    EXPECT_NE(setting({{"txtd", 11.0}}), "done");
    EXPECT_EQ(changedSince(before), "");
}

TEST_F(App, ToolsWithoutASubjectAreThereAndDisabled) {
    for (const char* name : {"gfrmScenariosName", "X Tails", "xPlot.Interactive guide"}) {
        const Tool* tool = app.commands().find(name);
        ASSERT_NE(tool, nullptr) << name;
        EXPECT_FALSE(tool->Enabled) << name;
        EXPECT_EQ(problemOf([&] { app.tool(name); }), "The tool \"" + std::string(name) +
                                                          "\" is not on offer as the study stands (" +
                                                          tool->Reason + ").");
    }
    app.tool("Add a level");
    EXPECT_FALSE(app.commands().find("gfrmScenariosName")->Enabled) << "also after an event";
    EXPECT_TRUE(app.commands().find("gfrmDetails")->Enabled);
}

}  // namespace
}  // namespace lorvane
