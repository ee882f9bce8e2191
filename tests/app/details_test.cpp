// The window of the details: what opens by a click, what it says, and when it falls back.
#include "app_bench.h"
#include "base/names.h"

namespace lorvane {
namespace {

constexpr const char* notes[] = {"pnlNT", "pnlNC", "pnlNB"};
constexpr const char* without[] = {"pnlLevel", "pnlICC", "pnlMRange", "pnlTauSq", "pnlDRange", "pnlOmega",
                                   "pnlModel", "pnlQ",   "pnlRsq",    "pnlCostT", "pnlCostC",  "pnlCostB"};

class DetailsWindow : public AppBench {
protected:
    void load(Values values) {
        for (const auto& [name, word] : {std::pair{"txtName(1)", "Pupils"},
                                         {"txtName(2)", "Classes"},
                                         {"txtName(3)", "Schools"},
                                         {"txtName(4)", "Towns"},
                                         {"txtGroupName(1)", "Coached"},
                                         {"txtGroupName(2)", "Usual"}})
            values.push_back({name, std::string(word)});
        app.load(values);
    }
    std::string title() const { return text("frmDetails.Title.Caption"); }
    std::string words() const { return text("frmDetails.xDesc.Caption"); }
    bool says(const std::string& part) const { return words().find(part) != std::string::npos; }
    std::string after(const std::string& control) {
        app.click(control);
        return title();
    }
};

TEST_F(DetailsWindow, RestsUntilAnItemWithATextIsClicked) {
    const std::string rest = "Click any item on the main screen\nto see details for that item";
    EXPECT_TRUE(app.details().isAtRest());
    EXPECT_EQ(app.details().cover().Caption, rest);
    EXPECT_EQ(app.details().cover().BackColor, (Colour{255, 255, 210}));
    for (const char* panel : without) {
        app.click(indexedName(panel, 1));
        EXPECT_TRUE(app.details().isAtRest()) << panel;
    }
    app.click("colLevels");
    EXPECT_FALSE(app.details().isAtRest());
    EXPECT_TRUE(app.details().tabs().empty());
}

TEST_F(DetailsWindow, EveryCellOfEveryLevelAnswersByItsItem) {
    const char* unitsOf[] = {"", "Number of pupils", "Number of classes", "Number of schools",
                             "Number of towns"};
    load({{"NumLevels", 4.0}, {"RandomizedLevel", 2.0}});
    for (int level = 1; level <= 4; ++level) {
        for (const char* panel : notes) {
            app.click("colLevels");
            EXPECT_EQ(after(indexedName(panel, level)), unitsOf[level]) << panel;
            EXPECT_EQ(app.details().currentTab(), level);
        }
        for (const char* panel : without)
            EXPECT_EQ(after(indexedName(panel, level)), "") << panel;
        EXPECT_EQ(after(indexedName("pnlName", level)), "Number of levels in the study design");
    }
}

TEST_F(DetailsWindow, EveryColumnAnswersByItsItemAndOpensFromItsMenu) {
    const std::pair<const char*, const char*> columns[] = {
        {"colLevels", "Number of levels in the study design"},
        {"colBlocked", ""},
        {"colUnits", "Number of units"},
        {"colReplicates", "Number of units"},
        {"colICC", ""},
        {"colMSpan", ""},
        {"colES", "Standardized mean difference, d (total)"},
        {"colTauSq", ""},
        {"colDSpan", ""},
        {"colOmega", ""},
        {"colModel", ""},
        {"colRsq", ""},
        {"colCost", ""}};
    for (const auto& [column, wanted] : columns)
        EXPECT_EQ(after(column), wanted) << column;
    for (const char* cell : {"pnlD", "pnlMean", "pnlSD", "pnlPrev", "pnlP2", "pnlOR", "pnlRR", "pnlRD"}) {
        app.click("colLevels");
        EXPECT_EQ(after(cell), "Standardized mean difference, d (total)") << cell;
    }
    app.tool("gfrmDetails");
    for (const auto& [column, wanted] : columns) {
        app.click("frmDetails.Command1");
        EXPECT_EQ(number("window:3"), 1);
        app.tool(std::string("Show details ") + column);
        EXPECT_EQ(number("window:3"), 4);
        EXPECT_EQ(title(), wanted) << column;
    }
    app.tool("gfrmDetails");
    EXPECT_EQ(number("window:3"), 1);
    EXPECT_EQ(problemOf([&] { app.click("colNothing"); }), "There is no control \"colNothing\" to click.");
}

TEST_F(DetailsWindow, TabsNameTheLevelsFromTheTopAndLeadToThem) {
    load({{"NumLevels", 3.0}, {"txtNT(3)", 6.0}, {"txtNC(3)", 7.0}, {"txtNT(2)", 4.0}, {"txtNC(2)", 5.0}});
    app.click("colUnits");
    EXPECT_EQ(app.details().tabs(), (std::vector<std::string>{"Schools", "Classes", "Pupils"}));
    EXPECT_TRUE(says("Click on a specific row to get details for that row."));
    // 6 x 4 x 10 + 7 x 5 x 10 pupils.
    EXPECT_TRUE(says("In all, the study includes 13 schools, 59 classes, 590 pupils.")) << words();
    EXPECT_EQ(after("frmDetails.tabDetails(2)"), "Number of classes");
    EXPECT_TRUE(says("Each of the schools will include 4 classes in the Coached group.")) << words();
    EXPECT_TRUE(says("Each of the schools will include 5 classes in the Usual group."));
    EXPECT_FALSE(says("Click on a specific row"));
    EXPECT_EQ(after("frmDetails.tabDetails(3)"), "Number of schools");
    EXPECT_TRUE(says("The study will include 6 schools in the Coached group.")) << words();
}

TEST_F(DetailsWindow, FollowsTheStudyAndFallsBackWhenItsLevelGoes) {
    load({{"NumLevels", 3.0}});
    app.click("pnlNT(3)");
    app.set(Values{{"txtNT(3)", 9.0}, {"txtName(3)", std::string("Wards")}});
    EXPECT_EQ(title(), "Number of wards");
    EXPECT_TRUE(says("The study will include 9 wards in the Coached group.")) << words();
    app.tool("Remove a level");
    EXPECT_TRUE(app.details().isAtRest());
    EXPECT_EQ(title() + words(), "");
    EXPECT_TRUE(app.details().tabs().empty());
    app.tool("Add a level");
    EXPECT_TRUE(app.details().isAtRest());
}

TEST_F(DetailsWindow, TellsTheRoleOfEveryLevel) {
    load({{"NumLevels", 3.0}, {"RandomizedLevel", 2.0}, {"txtNB(3)", 8.0}});
    app.click("pnlName(1)");
    for (const char* part :
         {"The study has three levels.", "Schools are blocked: each of them includes both groups.",
          "Classes are assigned to Coached or to Usual.",
          "Pupils are nested: each of them belongs to one group with its classes."})
        EXPECT_TRUE(says(part)) << words();
    app.click("pnlNB(3)");
    EXPECT_TRUE(says("The study will include 8 schools.")) << words();
    app.set(Values{{"NumLevels", 2.0}});
    app.click("colLevels");
    EXPECT_TRUE(says("The study has two levels.")) << words();
    app.set(Values{{"NumLevels", 4.0}});
    EXPECT_TRUE(says("The study has four levels.")) << words();
}

TEST_F(DetailsWindow, EffectOfMeansNamesTheLevelsAndTheDeviation) {
    const char* joined[] = {"", "", "Classes", "Classes, and Schools", "Classes, Schools, and Towns"};
    for (int levels = 2; levels <= 4; ++levels) {
        const std::string names = joined[levels];
        load({{"NumLevels", double(levels)}, {"DType", 2.0}, {"txtd", 0.25}});
        EXPECT_EQ(after("colES"), "Standardized mean difference, d (total)");
        EXPECT_TRUE(says("computed for all Pupils (across " + names + "). It is")) << words();
        EXPECT_TRUE(
            says("in means divided by the total standard deviation. This value is assumed to be 0.250."));
        EXPECT_TRUE(says("the difference in means (Coached and Usual) divided by the standard deviation."));
        app.set(Values{{"DType", 1.0}, {"txtd", -1.2345}});
        EXPECT_EQ(title(), "Standardized mean difference, d (within)");
        EXPECT_TRUE(says("for Pupils within cells (that is, within " + names + "). It is")) << words();
        EXPECT_TRUE(
            says("divided by the within-cell standard deviation. This value is assumed to be -1.235."));
    }
}

TEST_F(DetailsWindow, EffectOfRisksGivesRatesAndMetric) {
    load({{"DataType", 2.0}, {"BinaryType", 1.0}, {"txtPrev", 0.2}, {"txtOR", 3.0}});
    EXPECT_EQ(after("colES"), "Odds ratio");
    EXPECT_TRUE(
        says("If the event rate is lower in the Coached group the odds ratio should be less than 1.0."));
    EXPECT_TRUE(says("You must provide the event rate in the Usual group and the odds ratio."));
    // Odds of 0.25 times 3 are odds of 0.75, a rate of 3/7.
    EXPECT_TRUE(says("groups are 0.20 vs. 0.43, corresponding to an odds ratio of 3.00.")) << words();
    app.set(Values{{"BinaryType", 3.0}, {"txtRD", -0.05}});
    EXPECT_EQ(title(), "Risk difference");
    EXPECT_TRUE(says("You must provide the event rate in the Usual group and the risk difference."));
    EXPECT_TRUE(says("enter -0.20 rather than 0.20, or 0.20 rather than -0.20)."));
    EXPECT_TRUE(says("groups are 0.20 vs. 0.15, corresponding to a risk difference of -0.05.")) << words();
}

TEST_F(DetailsWindow, EffectsWithoutATestTellNoRiskDifferenceThatIsNotTheirs) {
    load({{"DataType", 2.0}, {"BinaryType", 2.0}, {"txtPrev", 0.2}, {"txtRR", 1.5}, {"txtP2", 0.4}});
    app.click("colES");
    EXPECT_TRUE(says("groups are 0.20 vs. 0.30")) << words();
    EXPECT_FALSE(says("risk difference of 0.00")) << words();
    app.set(Values{{"BinaryType", 4.0}});
    EXPECT_TRUE(says("groups are 0.20 vs. 0.40")) << words();
    EXPECT_FALSE(says("risk difference of 0.00")) << words();
}

// The text of another item must not stand for one that has none.
TEST_F(DetailsWindow, AnItemWithoutATextRestsAndThePopulationLeavesAll) {
    load({{"NumLevels", 3.0}});
    app.click("pnlNT(2)");
    app.click("pnlPop(3)");
    EXPECT_EQ(title(), "Number of classes");
    EXPECT_EQ(app.details().currentTab(), 2);
    app.click("pnlICC(3)");
    EXPECT_TRUE(app.details().isAtRest());
    app.set(Values{{"txtNT(2)", 9.0}});
    EXPECT_EQ(title() + words(), "") << "also when the study changes";
    EXPECT_TRUE(app.details().tabs().empty());
    app.click("pnlNT(2)");
    EXPECT_FALSE(app.details().isAtRest());
    EXPECT_TRUE(says("9 classes in the Coached group")) << words();
}

}  // namespace
}  // namespace lorvane
