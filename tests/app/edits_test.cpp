// Everything that can be done to a study: the screen is right afterwards, undo takes it back whole, and redo
// brings it again.
#include <algorithm>
#include <set>

#include "app_bench.h"
#include "base/names.h"
#include "persistence/unsaved_words.h"
#include "session/answers.h"
#include "session/field_book.h"

namespace lorvane {
namespace {

bool startsWithOneOf(const std::string& name, std::initializer_list<const char*> starts) {
    return std::any_of(starts.begin(), starts.end(),
                       [&](const char* start) { return name.starts_with(start); });
}

// What is not the study's: windows and their tools, dialogs and their texts, what is on the disk, the history
// itself, answers of searches.
bool isOfSession(const std::string& name) {
    return startsWithOneOf(
        name, {"window:",    "tool:gfrm",   "tool:gDesign",  "tool:Undo",     "tool:Redo",    "UndoDepth",
               "UndoName",   "RedoName",    "StudyDirty",    "CurrentFile",   "Clipboard",    "frmAlpha",
               "frmDelta.",  "frmSetMean",  "frmGroupNames", "frmLevelNames", "frmLimits.",   "frmValue",
               "frmOD",      "frmSpread",   "pic.",          "txtMaxCost",    "frmScenarios", "frmMDES",
               "frmOptimal", "frmStart",    "frmDetails",    "xValidOptimal", "xValidES",     "xValidModel",
               "xValidICC",  "xValidTauSq", "xValidOmega",   "xValidCost",    "Adjusteddf",   "MDES",
               "pnlStatus",  "pnlNotice",   "frmAbout",      "frmKeyboard"});
}

bool isOfDisplay(const std::string& name) {
    return name.find("Schematic") != std::string::npos ||
           startsWithOneOf(name,
                           {"Powermode", "Costmode", "Show", "tool:Show power", "tool:Show cost",
                            "tool:Show omega", "pnlPower.Visible", "pnlPowerOuter", "pnlCost.Visible",
                            "pnlCostOuter", "pnlAI", "frmDisplayTauSq.lblOmega", "frmDisplayTauSq.pnlOmega"});
}

// What a graph or a report leaves on its screen is nothing of the study.
bool isOfOtherScreen(const std::string& name) {
    static const std::vector<Band> bands = bandRows();
    if (!name.starts_with("tool:"))
        return startsWithOneOf(name, {"XVar",          "LVar",        "XRow",     "LRow",         "NumLines",
                                      "Graph",         "CostScale",   "ColorSet", "CurrentPoint", "DisplayOn",
                                      "DetailsCorner", "xPlot",       "frmTable", "frmXVar",      "frmLVar",
                                      "XRangeTable",   "LValueTable", "frmPrint", "frmTipsGraph", "TipFrame",
                                      "frmTips",       "CurrentTip"});
    const std::string tool = name.substr(5, name.rfind('.') - 5);
    const bool isOfGuide = tool == "gfrmTipsGraph" || tool == "Small" || tool == "Medium" || tool == "Large";
    return tool == "gxPlot" || isOfGuide || std::any_of(bands.begin(), bands.end(), [&](const Band& band) {
               return !band.screen.empty() &&
                      std::any_of(band.entries.begin(), band.entries.end(),
                                  [&](const BandEntry& entry) { return entry.name == tool; });
           });
}

/// A thing that a person does, by the names of controls.
struct Action {
    std::string name;
    std::function<void(Application&)> run;
};

struct DialogRow {
    const char* tool;
    std::vector<std::pair<const char*, const char*>> typed;
    const char* button;
};

const DialogRow dialogs[] = {
    {"gfrmAlpha", {{"frmAlpha.txtAlpha", "0.03"}}, "frmAlpha.cmdOK"},
    {"gfrmDelta", {{"frmDelta.txtDelta", "0.02"}}, "frmDelta.Command1"},
    {"gfrmControlMean",
     {{"frmSetMean.txtMean", "50.5"}, {"frmSetMean.txtSpan", "12.00"}},
     "frmSetMean.cmdOK"},
    {"gfrmGroupNames", {{"frmGroupNames.txtGroupName(1)", "New <b>"}}, "frmGroupNames.cmdGroupNames(0)"},
    {"gfrmLevelNames", {{"frmLevelNames.txtLevelNames(1)", "Pupils"}}, "frmLevelNames.cmdLevelNames(0)"},
    {"FrmLimits", {{"frmLimits.txtLL(2)", "0.2"}, {"frmLimits.txtUL(2)", "0.5"}}, "frmLimits.Command1"},
    {"FrmLimits", {}, "frmLimits.Command2"},
    {"FrmLimits", {}, "frmLimits.Command3"},
    {"Set maximum cost", {{"txtMaxCost", "5000"}}, "cmdSetMaxCost(0)"},
    {"OD", {}, "frmOD.optA"}};

std::string controlOf(FieldRef field, std::string_view stem) {
    return field->index == FieldIndex::none ? std::string(stem) : indexedName(stem, field.index);
}

class Edits : public AppBench {
protected:
    using Values = lorvane::Values;
    using State = std::vector<ControlValue>;  // in the order of the names

    Edits() {
        const std::vector<std::string>& all = app.names().names();
        for (const std::string& name : all) {
            const std::string flag = name.substr(0, name.rfind('.')) + ".Visible";
            const auto found = std::find(all.begin(), all.end(), flag);
            const std::string& shows = found == all.end() ? name : *found;
            names_.push_back({isOfSession(name) || isOfOtherScreen(name), isOfDisplay(name),
                              name.starts_with("frmCounts"), static_cast<std::size_t>(&shows - all.data())});
        }
    }

    State state() const {
        State values;
        for (const std::string& name : app.names().names())
            values.push_back(*app.names().read(name));
        return values;
    }

    // The first name whose value differs; empty when there is none. A control that does not show may keep an
    // older text, and the cell counts of a study of means are nobody's.
    std::string difference(const State& before, const State& now, bool withDisplay) const {
        for (std::size_t i = 0; i < names_.size(); ++i) {
            const Name& name = names_[i];
            const bool hidden = name.visible != i && before[name.visible] == ControlValue(false);
            const bool ofOthers = name.isOfSession || hidden || (study().isMeans() && name.isOfCounts) ||
                                  (!withDisplay && name.isOfDisplay);
            if (!ofOthers && now[i] != before[i])
                return app.names().names()[i];
        }
        return "";
    }

    std::vector<Action> actions() const {
        std::vector<Action> all;
        for (const Tool& tool : app.commands().tools()) {
            const bool ofHistory = tool.Name == "Undo" || tool.Name == "Redo" || tool.Name == "Exit";
            if (!ofHistory)
                all.push_back({"tool " + tool.Name, [name = tool.Name](Application& a) { a.tool(name); }});
        }
        forEachField([&](FieldRef field) { addArrows(all, field); });
        for (const DialogRow& dialog : dialogs)
            all.push_back({dialog.tool + std::string(" by ") + dialog.button, [&dialog](Application& a) {
                               a.tool(dialog.tool);
                               for (const auto& [box, text] : dialog.typed)
                                   a.type(box, text);
                               a.click(dialog.button);
                           }});
        return all;
    }

    // Arrows that a study does not show are there for scripts alone.
    static void addArrows(std::vector<Action>& all, FieldRef field) {
        if (field->arrows == ArrowRule::none)
            return;
        const std::string arrows = controlOf(field, field->spin);
        const auto requireShown = [field, arrows](Application& a) {
            for (const std::string& control : {arrows, controlOf(field, field->cell.stem)}) {
                if (a.names().read(control + ".Visible") == ControlValue(false))
                    throw UseProblem(control + " is not shown.");
            }
        };
        for (const int direction : {1, -1})
            all.push_back({arrows + (direction > 0 ? " up" : " down"), [=](Application& a) {
                               requireShown(a);
                               a.spin(arrows, direction);
                           }});
        all.push_back({"activate " + field.name(), [=](Application& a) {
                           requireShown(a);
                           a.openValue(field.name());
                           a.type("frmValue.txtValue", "0.25");
                           a.click("frmValue.cmdOK");
                       }});
    }

    // A file may keep a fixed model where levels are always random; the study moves on with its first
    // refresh.
    void begin(const Values& values) {
        app.load(values);
        app.tool("Add scenario");
        app.save("study");
        app.spinReleased();
        static_cast<void>(messages.take());
    }

    // Whether the action was a step of undo.
    bool isStep(const Action& action, const Values& values) {
        SCOPED_TRACE(action.name);
        begin(values);
        const State before = state();
        const double depth = number("UndoDepth");
        messages.queue(Answer::OK);
        try {
            action.run(app);
        } catch (const UseProblem&) {
            EXPECT_EQ(difference(before, state(), true), "") << "what is refused changes nothing";
            return false;
        }
        const State after = state();
        app.spinReleased();
        // What a search marks stays until the next computation.
        if (!action.name.starts_with("tool Find")) {
            EXPECT_EQ(difference(after, state(), true), "") << "not what a refresh makes of it";
        }
        if (number("UndoDepth") <= depth) {
            const bool isOther = action.name == "tool Clear";
            EXPECT_EQ(isOther ? "" : difference(before, state(), false), "") << "a change that is no step";
            return false;
        }
        checkUndo(before, after, depth);
        return true;
    }

    void checkUndo(const State& before, const State& after, double depth) {
        EXPECT_EQ(number("UndoDepth"), depth + 1);
        EXPECT_NE(text("UndoName"), "");
        app.tool("Undo");
        EXPECT_EQ(difference(before, state(), false), "") << "undo";
        EXPECT_EQ(number("UndoDepth"), depth);
        app.tool("Redo");
        EXPECT_EQ(difference(after, state(), true), "") << "redo";
    }

private:
    /// What a name is, worked out once.
    struct Name {
        bool isOfSession;
        bool isOfDisplay;
        bool isOfCounts;
        std::size_t visible;  ///< place of the flag that shows its control; its own where there is none
    };
    std::vector<Name> names_;
};

/// Studies of means and risks, with two to four levels, blocked and nested, with and without a power, one
/// with low cell counts.
TEST_F(Edits, LeaveARightScreenAndCanBeTakenBack) {
    const Values common = {{"txtd", 0.4},         {"txtOR", 2.0},       {"txtRD", 0.2},
                           {"txtPrev", 0.4},      {"txtICC(2)", 0.1},   {"txtICC(3)", 0.05},
                           {"txtNT(2)", 12.0},    {"txtNC(2)", 12.0},   {"txtNB(2)", 9.0},
                           {"txtNB(3)", 8.0},     {"txtCostT(1)", 7.0}, {"txtCostC(1)", 7.0},
                           {"txtTauSq(3)", 0.02}, {"txtTauSq(2)", 0.03}};
    const Values studies[] = {
        {{"NumLevels", 2.0}},
        {{"NumLevels", 3.0}, {"RandomizedLevel", 2.0}, {"ICC Metric", 1.0}, {"Link N2", false}},
        {{"NumLevels", 4.0}, {"RandomizedLevel", 1.0}, {"ICC Metric", 1.0}, {"Tau-sq Metric", 3.0}},
        {{"NumLevels", 3.0}, {"RandomizedLevel", 3.0}, {"DataType", 2.0}, {"ICC Metric", 1.0}},
        {{"NumLevels", 2.0}, {"RandomizedLevel", 1.0}, {"DataType", 2.0}, {"BinaryType", 3.0}},
        {{"NumLevels", 2.0}, {"DataType", 2.0}, {"txtPrev", 0.03}, {"txtNT(2)", 4.0}, {"txtNC(2)", 4.0}},
        {{"NumLevels", 2.0}, {"txtRsq(2)", 0.5}}};
    std::set<std::string> steps;
    for (const Values& study : studies) {
        Values values = common;
        values.insert(values.end(), study.begin(), study.end());
        for (const Action& action : actions()) {
            if (isStep(action, values))
                steps.insert(action.name);
        }
    }
    for (const char* step : {"tool Add a level",
                             "tool Randomize Level 1",
                             "tool Odds ratio",
                             "tool Enter ICC",
                             "tool Enter omega",
                             "tool Alpha = 0.10",
                             "tool One-tailed test",
                             "tool Set power 90",
                             "tool Use t-distribution",
                             "tool Use 3 decimal places for ICC",
                             "tool Change mean by 10",
                             "tool Increment Level 1 by 10",
                             "tool Increment Level 2 cost by 100",
                             "tool Unlink N for Level 1",
                             "tool Link N for Level 2",
                             "tool Allow low cell counts",
                             "tool Level of detail - None",
                             "tool Add scenario",
                             "tool For optimal design use 5 iterations",
                             "spnNT(2) up",
                             "spnModel(2) up",
                             "spnIcc(2) down",
                             "activate txtICC(2)",
                             "gfrmAlpha by frmAlpha.cmdOK",
                             "gfrmDelta by frmDelta.Command1",
                             "gfrmControlMean by frmSetMean.cmdOK",
                             "gfrmGroupNames by frmGroupNames.cmdGroupNames(0)",
                             "gfrmLevelNames by frmLevelNames.cmdLevelNames(0)",
                             "FrmLimits by frmLimits.Command1",
                             "FrmLimits by frmLimits.Command3",
                             "Set maximum cost by cmdSetMaxCost(0)"})
        EXPECT_TRUE(steps.contains(step)) << step;
    for (const char* noStep : {"tool Show power using digits", "tool Show cost using graph",
                               "tool ICC Schematic always off", "tool Counts Schematic always on",
                               "tool Show omega", "tool gfrmDetails", "tool Copy", "tool Clear"})
        EXPECT_FALSE(steps.contains(noStep)) << noStep;
}

// Everything that can be read after clicks on a pair of arrows: up and, further, down again. Where there is
// no power the last one that there was is nobody's.
std::vector<ControlValue> afterClicks(const Values& values, const std::string& arrows, bool atOnce) {
    TestPlatform outside;
    Application app(outside.platform());
    app.load(values);
    for (const auto& [direction, clicks] : {std::pair{1, 7}, {-1, 12}}) {
        for (int i = 0; i < (atOnce ? 1 : clicks); ++i) {
            try {
                app.spin(arrows, direction, ArrowHold::click, atOnce ? clicks : 1);
            } catch (const ArithmeticFault&) {
            }
        }
    }
    std::vector<ControlValue> all;
    for (const std::string& name : app.names().names()) {
        const bool isLeftOver = !hasPower(app.session()) && (name == "txtPower" || name == "txtCritT");
        all.push_back(isLeftOver ? ControlValue(0.0) : *app.names().read(name));
    }
    return all;
}

TEST(Arrows, ManyClicksAtOnceEndLikeManyClicks) {
    std::vector<std::string> arrows = {"frmOptimal.OptimalspnNT(1)"};
    forEachField([&](FieldRef field) {
        if (field->arrows != ArrowRule::none)
            arrows.push_back(controlOf(field, field->spin));
    });
    for (const Values& values :
         {Values{{"txtd", 0.4}, {"txtSD", 3.0}, {"txtMRange(2)", 0.5}}, Values{{"NumLevels", 3.0},
                                                                               {"RandomizedLevel", 2.0},
                                                                               {"DataType", 2.0},
                                                                               {"txtPrev", 0.03},
                                                                               {"ICC Metric", 1.0},
                                                                               {"txtICC(2)", 0.1},
                                                                               {"txtICC(3)", 0.85},
                                                                               {"Tau-sq Metric", 3.0},
                                                                               {"Link N1", false}}}) {
        for (const std::string& control : arrows)
            EXPECT_TRUE(afterClicks(values, control, true) == afterClicks(values, control, false)) << control;
    }
}

/// Time that a test moves on by hand.
struct HandClock final : Clock {
    Time now() const override { return time; }
    std::string dayAndTime() const override { return day + " 14:05"; }
    Time time{};
    std::string day = "2026-11-23";
};

class History : public AppBench {
protected:
    void wait(int milliseconds) { clock.time += std::chrono::milliseconds(milliseconds); }
    double depth() const { return number("UndoDepth"); }
    bool isDirty() const { return std::get<bool>(*timed.names().read("StudyDirty")); }
    double number(const std::string& name) const { return std::get<double>(*timed.names().read(name)); }

    HandClock clock;
    Platform platform = [this] {
        Platform given = outside.platform();
        given.clock = &clock;
        return given;
    }();
    Application timed{platform};
};

TEST_F(History, ARunOfClicksOnOnePairOfArrowsIsOneStep) {
    for (int click = 0; click < 3; ++click, wait(900))
        timed.spin("spnNT(2)", 1);
    timed.spin("spnNT(2)", -1);
    EXPECT_EQ(depth(), 1) << "each within a second of the one before";
    wait(1001);
    timed.spin("spnNT(2)", 1);
    EXPECT_EQ(depth(), 2);
    timed.spin("spnNB(2)", 1);
    timed.spin("spnNT(2)", 1);
    EXPECT_EQ(depth(), 4) << "another pair comes between";
    timed.tool("Undo");
    timed.spin("spnNT(2)", 1);
    EXPECT_EQ(depth(), 4) << "an undo ends a run";
    timed.save("study");
    timed.spin("spnNT(2)", 1);
    EXPECT_EQ(depth(), 5) << "and so does a save";
    for (int tick = 0; tick < 40; ++tick, wait(60))
        timed.spin("spnD", 1, ArrowHold::tick);
    timed.spinReleased();
    EXPECT_EQ(depth(), 6) << "a held arrow";
    timed.tool("Undo");
    EXPECT_EQ(number("txtd"), 0);
}

TEST_F(History, WhatChangesNothingIsNoStep) {
    timed.spin("spnQ(2)", -1);
    timed.tool("Alpha = 0.05");
    timed.set(Values{{"txtd", 0.0}});
    EXPECT_EQ(depth(), 0);
    timed.spin("spnNT(2)", 1);
    timed.spin("spnNT(2)", -1);
    EXPECT_EQ(depth(), 0) << "there and back";
    timed.tool("Add a level");
    timed.tool("Undo");
    timed.spin("spnQ(2)", -1);
    EXPECT_EQ(std::get<std::string>(*timed.names().read("RedoName")), "number of levels")
        << "what was undone is still there";
}

TEST_F(History, TheWayBackToTheSavedStateIsTheSavedState) {
    timed.set(Values{{"txtd", 0.2}});
    timed.save("study");
    timed.set(Values{{"txtd", 0.3}});
    timed.tool("Add scenario");
    timed.tool("Undo");
    EXPECT_TRUE(isDirty());
    timed.tool("Undo");
    EXPECT_FALSE(isDirty());
    EXPECT_FALSE(timed.unsavedStudy().has_value());
    timed.tool("Undo");
    EXPECT_TRUE(isDirty()) << "before the saved state";
    timed.tool("Redo");
    EXPECT_FALSE(isDirty());
    timed.open("study");
    EXPECT_EQ(depth(), 0);
    EXPECT_THROW(timed.tool("Redo"), UseProblem) << "a file begins a new history";
}

// Steps are counted from the saved state in either direction, and a scenario is not told as a change too.
TEST_F(History, TheQuestionTellsHowMuchIsNotInTheFile) {
    const auto words = [&] { return unsavedWords(timed.session()); };
    timed.set(Values{{"txtd", 0.2}});
    EXPECT_EQ(words(), "1 change since 14:05 is in no file.");
    timed.tool("Add scenario");
    EXPECT_EQ(words(), "1 change and 1 scenario since 14:05 are in no file.");
    timed.save("/My trial.Lorvane");
    EXPECT_EQ(saveQuestion(timed.session()), "Save the changes to “My trial”?");
    timed.tool("Add scenario");
    EXPECT_EQ(words(), "1 scenario since 14:05 is not in the file.");
    timed.tool("Undo");
    timed.tool("Undo");
    clock.day = "2026-11-24";
    EXPECT_EQ(words(), "1 change since 2026-11-23 14:05 is not in the file.") << "undone past the save";
    for (int i = 0; i <= 200; ++i)
        timed.set(Values{{"txtNT(1)", i + 20.0}});
    EXPECT_EQ(words(), "The last changes since 2026-11-23 14:05 are not in the file.");
}

TEST_F(History, KeepsTwoHundredStepsAndTheDisplay) {
    for (int i = 1; i <= 250; ++i)
        timed.set(Values{{"txtNT(1)", i + 1.0}});
    EXPECT_EQ(depth(), 200);
    timed.tool("Show power using digits");
    timed.tool("Counts Schematic always on");
    for (int i = 0; i < 200; ++i)
        timed.tool("Undo");
    EXPECT_EQ(number("txtNT(1)"), 51);
    EXPECT_EQ(number("Powermode"), 1);
    EXPECT_EQ(number("ShowCellCounts"), 3);
    timed.set(Values{{"txtd", 0.1}});
    EXPECT_THROW(timed.tool("Redo"), UseProblem) << "an edit forgets what was undone";
}

TEST_F(History, NeverSeesTheEffectThatASearchShows) {
    timed.set(Values{{"txtd", 0.2}});
    timed.tool("gfrmMDES");
    timed.click("frmMDES.cmdComputeMDES");
    EXPECT_EQ(depth(), 1);
    const double found = number("txtd");
    timed.tool("Alpha = 0.05");
    EXPECT_EQ(depth(), 1) << "nothing changed";
    timed.spin("spnNT(2)", 1);
    timed.tool("Add scenario");
    timed.save("study");
    EXPECT_EQ(number("txtd"), found) << "it is still shown";
    timed.tool("Undo");
    timed.tool("Undo");
    EXPECT_EQ(number("txtd"), 0.2);
    timed.tool("Redo");
    timed.close("frmMDES");
    EXPECT_EQ(number("txtd"), 0.2);
    Application reader(outside.platform());
    reader.open("study");
    EXPECT_EQ(reader.session().study().txtd, 0.2);
    reader.restoreScenario("Scenario 0001");
    EXPECT_EQ(reader.session().study().txtd, 0.2);
}

TEST_F(History, ScenariosAreStepsThatTheListFollows) {
    timed.tool("Add scenario");
    timed.tool("Add scenario");
    timed.select("frmScenarios.vsNames", {1});
    timed.click("frmScenarios.cmdScenarios(3)");
    timed.type("frmScenariosName.txtScenariosName", "First");
    timed.click("frmScenariosName.cmdScenarioNameOk(0)");
    timed.select("frmScenarios.vsNames", {2});
    timed.click("frmScenarios.cmdScenarios(2)");
    std::string names;
    for (const char* step : {"Undo", "Undo", "Undo", "Redo", "Redo", "Redo"}) {
        timed.tool(step);
        for (std::size_t row = 1; row < timed.scenarioWindow().vsNames().rows.size(); ++row)
            names += timed.scenarioWindow().vsNames().rows[row][1] + ",";
        names += " ";
    }
    EXPECT_EQ(names,
              "First,Scenario 0002, Scenario 0001,Scenario 0002, Scenario 0001, Scenario 0001,Scenario "
              "0002, First,Scenario 0002, First, ");
}

}  // namespace
}  // namespace lorvane
