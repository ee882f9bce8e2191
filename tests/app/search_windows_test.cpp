// The panel of the smallest effect and the wizard of the optimal design, as a script presses their buttons.
#include "app_bench.h"
#include "base/names.h"
#include "base/number_text.h"

namespace lorvane {
namespace {

class SearchWindows : public AppBench {
protected:
    Colour colour(const std::string& name) const { return std::get<Colour>(*app.names().read(name)); }
    bool flag(const std::string& name) const { return std::get<bool>(*app.names().read(name)); }
};

const Values twentyClusters = {{"txtNT(2)", 10.0}, {"txtNC(2)", 10.0},  {"txtNT(1)", 20.0},
                               {"txtNC(1)", 20.0}, {"ICC Metric", 1.0}, {"txtICC(2)", 0.1},
                               {"txtd", 0.3}};

TEST_F(SearchWindows, ThePanelOfTheEffectFollowsTheStudyWhileItIsOpen) {
    using enum MdesWindow::State;
    const auto set = [&](const char* field, double value) { app.set(Values{{field, value}}); };
    const auto press = [&](const char* button) { app.click(std::string("frmMDES.") + button); };
    const struct {
        std::function<void()> action;
        MdesWindow::State state;
        const char* firstLine;
    } steps[] = {
        {[&] { app.tool("gfrmMDES"); }, resting, ""},
        {[&] { set("txtd", 0.4); }, changed, "Parameters have been changed."},
        {[&] { press("cmdComputeMDES"); }, result, "The minimum detectable effect size is a"},
        {[&] { app.spin("spnNT(2)", 1); }, changed, "Parameters have been changed."},
        {[&] { set("txtRsq(2)", 0.5); }, problem, "There is a problem with the design"},
        {[&] { press("cmdComputeMDES"); }, problem, "There is a problem with the design"},
        {[&] { set("txtRsq(2)", 0); }, changed, "Parameters have been changed."},
        {[&] { app.tool("Set power 90"); }, changed, "Parameters have been changed. Click <Ccompute"},
        {[&] { press("cmdComputeMDES"); }, result, "The minimum detectable effect size is a"},
        {[&] { press("cmdMDESClose"); }, resting, ""},
        {[&] { set("txtRsq(2)", 0.5); }, resting, ""},
        {[&] { press("cmdComputeMDES"); }, problem, "There is a problem with the design"},
        {[&] { app.close("frmMDES"); }, resting, ""}};
    app.load(twentyClusters);
    for (std::size_t i = 0; i < std::size(steps); ++i) {
        SCOPED_TRACE(i);
        steps[i].action();
        EXPECT_EQ(app.mdesWindow().state(), steps[i].state);
        const bool open = steps[i].state != resting || i == 0;
        EXPECT_EQ(number("window:18"), open ? 4 : 0);
        const std::string line = text("frmMDES.pnlMDESMid.Caption");
        EXPECT_TRUE(line.starts_with(steps[i].firstLine)) << line;
        EXPECT_EQ(line.empty(), steps[i].state == resting);
        EXPECT_EQ(text("frmMDES.pnlFigureNumber.Caption").empty(), steps[i].state != result);
        EXPECT_EQ(colour("frmMDES.pnlMDESMid.ForeColor"), steps[i].state == problem ? problemColour : black);
    }
}

TEST_F(SearchWindows, ARefusalOfTheWizardMarksItsCellsUntilTheNextEdit) {
    Values good = {{"NumLevels", 4.0}, {"RandomizedLevel", 2.0}, {"ICC Metric", 1.0}, {"txtd", 0.4}};
    for (int level = 1; level <= 4; ++level) {
        for (const char* stem : {"txtNT", "txtNC", "txtNB", "txtCostT", "txtCostC", "txtCostB"})
            good.push_back({indexedName(stem, level), 10.0});
        good.push_back({indexedName("txtICC", level), 0.05});
        good.push_back({indexedName("txtTauSq", level), 0.02});
    }
    const auto marked = [&] {
        std::string marks;
        for (int number = 1; number <= 7; ++number) {
            const std::string outline = indexedName("outline", number);
            if (flag(outline + ".Visible"))
                marks += std::to_string(number) + ": " + text(outline + ".From") + " to " +
                         text(outline + ".To") + "; ";
        }
        return marks;
    };
    const std::string effects = "4: pnlTauSq(4) to pnlTauSq(3); ";
    const std::string costs = "5: pnlCostT(4) to pnlCostC(1); ";
    const std::pair<Values, std::string> rows[] = {
        {{{"txtModel(3)", 1.0}}, "2: pnlModel(4) to pnlModel(1); "},
        {{{"txtICC(3)", 0.0}}, "3: pnlICC(4) to pnlICC(2); " + effects},
        {{{"txtTauSq(4)", 0.0}}, effects},
        {{{"txtCostT(1)", 0.0}, {"txtCostC(1)", 0.0}}, costs},
        {{{"txtCostB(4)", 0.0}}, costs},
        {{{"txtd", 0.0}}, "7: pnlEffectSize to pnlEffectSize; "}};
    for (const auto& [wrong, marks] : rows) {
        SCOPED_TRACE(wrong[0].name);
        app.load(good);
        app.set(wrong);
        app.click("frmOptimal.cmdOpt(2)");
        EXPECT_EQ(app.optimalWindow().result(), nullptr);
        EXPECT_NE(text("frmOptimal.pnlOptimalTitle.Caption"), "");
        EXPECT_EQ(marked(), marks);
        app.set(Values{{"txtAlpha", 0.04}});
        EXPECT_EQ(marked(), "");
        EXPECT_EQ(text("frmOptimal.pnlOptimalTitle.Caption"), "");
    }
}

struct CountedLooks final : Progress {
    bool goOn() override {
        ++looks;
        return true;
    }
    int looks = 0;
};

TEST_F(SearchWindows, ComputeSearchesAnewAfterASuccess) {
    CountedLooks progress;
    Platform platform = outside.platform();
    platform.progress = &progress;
    Application wizard(platform);
    Values values = twentyClusters;
    for (const char* cost : {"txtCostT(2)", "txtCostC(2)", "txtCostT(1)", "txtCostC(1)"})
        values.push_back({cost, 10.0});
    wizard.load(values);
    wizard.tool("gfrmOptimal");
    const auto found = [&] {
        progress.looks = 0;
        wizard.click("frmOptimal.cmdOpt(2)");
        EXPECT_GT(progress.looks, 0);
        EXPECT_TRUE(wizard.optimalWindow().cmdOpt(3).Visible);
        return wizard.optimalWindow().result()->bestTrial();
    };
    const Trial first = found();
    const Trial second = found();
    EXPECT_EQ(second.cost, first.cost);
    EXPECT_EQ(second.sizes(1), first.sizes(1));
    wizard.click("frmOptimal.optManual(1)");
    wizard.setNumber("frmOptimal.txtNumReps(1)", 40);
    EXPECT_EQ(wizard.optimalWindow().result(), nullptr);
    const Trial byHand = found();
    EXPECT_EQ(byHand.sizes(1), 40);
    EXPECT_GT(byHand.cost, first.cost);
}

TEST_F(SearchWindows, TheQuestionStaysWhileASearchRuns) {
    struct Meddling final : Progress {
        bool goOn() override {
            for (const char* control : {"frmOptimal.optGoal(2)", "frmOptimal.txtBudget"})
                wizard->click(control);
            for (const char* arrows : {"frmOptimal.spnBudget", "frmOptimal.spnReqPower"})
                wizard->spin(arrows, 1);
            wizard->type("frmOptimal.txtReqPower", "99%");
            wizard->type("frmOptimal.txtBudget", "7");
            return ++looks < 3;
        }
        Application* wizard = nullptr;
        int looks = 0;
    } progress;
    Platform platform = outside.platform();
    platform.progress = &progress;
    Application wizard(platform);
    progress.wizard = &wizard;
    wizard.load(twentyClusters);
    wizard.set(
        Values{{"txtCostT(2)", 10.0}, {"txtCostT(1)", 10.0}, {"txtCostC(2)", 10.0}, {"txtCostC(1)", 10.0}});
    wizard.tool("gfrmOptimal");
    wizard.click("frmOptimal.cmdOpt(2)");
    EXPECT_EQ(progress.looks, 3);
    const OptimalQuestion& question = wizard.optimalWindow().question();
    EXPECT_EQ(question.goal(), OptimalGoal::cheapest);
    EXPECT_EQ(question.budget(), 4200);
    EXPECT_EQ(question.field(OptimalGoal::cheapest).Text, "80%");
    EXPECT_EQ(question.field(OptimalGoal::mostPower).Text, "$4,200");
    EXPECT_EQ(wizard.session().study().ReqPower, 0.8);
}

// A study of any design that the search can take.
Values searchable(int levels, int randomized, DataTypes dataType) {
    Values values = {{"NumLevels", 1.0 * levels},
                     {"RandomizedLevel", 1.0 * randomized},
                     {"DataType", 1.0 * static_cast<int>(dataType)},
                     {"ICC Metric", 1.0},
                     {"txtd", 0.3},
                     {"txtOR", 2.2},
                     {"PowerOption", 1.0},
                     {"IterationsForOptimal", 5.0}};
    constexpr double costs[] = {4, 90, 400, 1500};
    for (int level = 1; level <= levels; ++level) {
        const std::pair<const char*, double> fields[] = {{"txtNT", 12},
                                                         {"txtNC", 12},
                                                         {"txtNB", 12},
                                                         {"txtTauSq", 0.02},
                                                         {"txtICC", level > 1 ? 0.07 : 0}};
        for (const auto& [stem, value] : fields)
            values.push_back({indexedName(stem, level), value});
        for (const char* stem : {"txtCostT", "txtCostC", "txtCostB"})
            values.push_back({indexedName(stem, level), costs[level - 1]});
    }
    return values;
}

// Blocks that cost a hundred thousand times as much as what is in them: the proof takes its time.
TEST_F(SearchWindows, AProofThatIsStoppedLeavesTheResult) {
    struct Impatient final : Progress {
        bool goOn() override {
            const OptimalWindow& window = wizard->optimalWindow();
            if (window.result() == nullptr)
                return true;
            ++looks;
            words = window.pnlOther().Caption;
            wizard->click("frmOptimal.cmdOther");
            wizard->select("frmOptimal.vsTrials", {3});
            wizard->click("frmOptimal.cmdOpt(3)");
            return looks < 3;
        }
        Application* wizard = nullptr;
        int looks = 0;
        std::string words;
    } progress;
    Platform platform = outside.platform();
    platform.progress = &progress;
    Application wizard(platform);
    progress.wizard = &wizard;
    wizard.load(searchable(4, 1, DataTypes::binary));
    wizard.set(Values{{"BinaryType", 3.0},
                      {"PowerOption", 2.0},
                      {"txtRD", 0.0434},
                      {"txtPrev", 0.15},
                      {"ReqPower", 0.99},
                      {"txtCostB(4)", 1000000.0},
                      {"txtCostB(3)", 6500.0},
                      {"txtCostB(2)", 9.0},
                      {"txtCostT(1)", 1.0},
                      {"txtCostC(1)", 2.0},
                      {"txtTauSq(4)", 0.0614},
                      {"txtTauSq(3)", 0.0045},
                      {"txtTauSq(2)", 0.0003}});
    const double before = wizard.session().study().txtNB(4);
    wizard.tool("gfrmOptimal");
    wizard.click("frmOptimal.cmdOpt(2)");
    EXPECT_EQ(progress.looks, 3);
    EXPECT_TRUE(progress.words.starts_with("Looking for a cheaper design: ")) << progress.words;
    const OptimalWindow& window = wizard.optimalWindow();
    ASSERT_NE(window.result(), nullptr);
    EXPECT_TRUE(window.outcome()->showsBest()) << "nothing was done with it on the way";
    EXPECT_FALSE(window.outcome()->isProven());
    EXPECT_NE(window.pnlAdjustInner().Caption.find("The proof was stopped"), std::string::npos);
    EXPECT_TRUE(window.pnlAdjustOuter().Visible);
    EXPECT_TRUE(window.cmdOpt(3).Visible);
    EXPECT_EQ(wizard.session().study().txtNB(4), before);
    wizard.click("frmOptimal.cmdOpt(3)");
    EXPECT_EQ(wizard.session().study().txtNB(4), window.result()->bestTrial().sizes(4));
}

TEST_F(SearchWindows, WhatIsPastedHasThePowerAndTheCostThatWereTold) {
    struct Look {
        int question;
        std::function<void()> choose;
    };
    const auto best = [] {};
    const auto row = [&] { app.select("frmOptimal.vsTrials", {3}); };
    const auto other = [&] { app.click("frmOptimal.cmdOther"); };
    const Look looks[] = {{1, best}, {1, row}, {1, other}, {2, best}, {2, row}};
    const OptimalWindow& wizard = app.optimalWindow();
    int others = 0;
    for (int i = 0; i < 36; ++i) {
        SCOPED_TRACE(i);
        const int levels = 2 + i % 3, randomized = 1 + i / 3 % levels;
        app.load(searchable(levels, randomized, i < 24 ? DataTypes::means : DataTypes::binary));
        for (int level = 1; level <= randomized && i % 2 == 1; ++level) {
            app.tool("Unlink N for Level " + std::to_string(level));
            app.set(Values{{indexedName("txtNC", level), 15.0}});
        }
        app.tool("gfrmOptimal");
        if (i % 4 == 3)
            app.click("frmOptimal.optManual(1)");
        for (const auto& [question, choose] : looks) {
            app.click(indexedName("frmOptimal.optGoal", question));
            app.click("frmOptimal.cmdOpt(2)");
            ASSERT_NE(wizard.outcome(), nullptr);
            choose();
            const Trial told = wizard.outcome()->shown();
            others += wizard.outcome()->showsOther();
            const std::string figure = text("frmOptimal.pnlOptimalCost.Caption");
            const double budget = wizard.question().budget();
            const std::string size = wizard.row(1).OptimalpnlNT.Caption;
            const Study before = study();
            app.click("frmOptimal.cmdOpt(3)");
            EXPECT_TRUE(study().result.xValid);
            EXPECT_EQ(study().result.txtPower, told.power);
            EXPECT_EQ(study().result.txtCost, told.cost);
            EXPECT_TRUE(question == 1 ? told.power >= before.ReqPower : told.cost <= budget);
            EXPECT_EQ(text(question == 1 ? "pnlCost.Caption" : "pnlPower.Caption"), figure);
            EXPECT_EQ(shortestText(study().txtNC(1)), size);
            app.tool("Undo");
            EXPECT_EQ(study().txtNC(1), before.txtNC(1)) << "one step";
            EXPECT_EQ(study().result.txtPower, before.result.txtPower);
        }
    }
    EXPECT_GT(others, 5);
}

}  // namespace
}  // namespace lorvane
