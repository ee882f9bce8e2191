// The window of the details: what opens by a click, what it says, and when it falls back.
#include "app_bench.h"
#include "base/letter_case.h"
#include "base/names.h"

namespace lorvane {
namespace {

struct CellTitle {
    const char* cell;
    const char* title;  ///< with "*" for the level as typed and "~" in small letters
};

constexpr CellTitle cellTitles[] = {{"pnlLevel", "Study design"},
                                    {"pnlName", "Number of levels in the study design"},
                                    {"pnlNT", "Number of ~"},
                                    {"pnlNC", "Number of ~"},
                                    {"pnlNB", "Number of ~"},
                                    {"pnlICC", "ICC for *"},
                                    {"pnlMRange", "Span of means for *"},
                                    {"pnlTauSq", "Tau-squared for *"},
                                    {"pnlDRange", "Span of effects and omega for *"},
                                    {"pnlOmega", "Span of effects and omega for *"},
                                    {"pnlModel", "Fixed or random effects"},
                                    {"pnlQ", "Covariates and R-squared for *"},
                                    {"pnlRsq", "Covariates and R-squared for *"},
                                    {"pnlCostT", "Cost of *"},
                                    {"pnlCostC", "Cost of *"},
                                    {"pnlCostB", "Cost of *"}};

constexpr const char* levelNames[] = {"", "Pupils", "Classes", "Schools", "Towns"};

std::string titleAt(std::string title, int level) {
    for (const char sign : {'*', '~'}) {
        const std::string name = levelNames[level];
        if (const std::size_t place = title.find(sign); place != std::string::npos)
            title.replace(place, 1, sign == '*' ? name : lowerCased(name));
    }
    return title;
}

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
    app.click("pnlPop(1)");
    EXPECT_TRUE(app.details().isAtRest());
    app.click("colLevels");
    EXPECT_FALSE(app.details().isAtRest());
    EXPECT_TRUE(app.details().tabs().empty());
}

TEST_F(DetailsWindow, EveryCellOfEveryLevelAnswersByItsItem) {
    load({{"NumLevels", 4.0}, {"RandomizedLevel", 2.0}});
    for (int level = 2; level <= 4; ++level) {
        for (const auto& [cell, title] : cellTitles) {
            app.click("colES");
            EXPECT_EQ(after(indexedName(cell, level)), titleAt(title, level)) << cell;
            EXPECT_EQ(app.details().currentTab(), level);
        }
    }
}

TEST_F(DetailsWindow, EveryColumnAnswersByItsItemAndOpensFromItsMenu) {
    const std::pair<const char*, const char*> columns[] = {
        {"colLevels", "Number of levels in the study design"},
        {"colBlocked", "Study design"},
        {"colUnits", "Number of units"},
        {"colReplicates", "Number of units"},
        {"colICC", "ICC"},
        {"colMSpan", "Span of means"},
        {"colES", "Standardized mean difference, d (total)"},
        {"colTauSq", "Tau-squared"},
        {"colDSpan", "Span of effects and omega"},
        {"colOmega", "Span of effects and omega"},
        {"colModel", "Fixed or random effects"},
        {"colRsq", "Covariates and R-squared"},
        {"colCost", "Cost of all levels"}};
    for (const auto& [column, wanted] : columns)
        EXPECT_EQ(after(column), wanted) << column;
    for (const char* cell : {"pnlD", "pnlMean", "pnlSD", "pnlPrev", "pnlP2", "pnlOR", "pnlRR", "pnlRD",
                             "pnlesOuter", "pnlExplainES", "pnlOther"}) {
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

TEST_F(DetailsWindow, ThePopulationLeavesTheTextThatFollowsTheStudy) {
    load({{"NumLevels", 3.0}});
    app.click("pnlNT(2)");
    app.click("pnlPop(3)");
    EXPECT_EQ(title(), "Number of classes");
    EXPECT_EQ(app.details().currentTab(), 2);
    app.set(Values{{"txtNT(2)", 9.0}});
    EXPECT_TRUE(says("will include 9 classes")) << words();
}

// What each item says of a level, the numbers being worked out by hand.
TEST_F(DetailsWindow, TellsValuesOfALevelAndWhatFollows) {
    const Values icc = {{"NumLevels", 3.0},    {"ICC Metric", 1.0},    {"txtICC(3)", 0.16},
                        {"txtICC(2)", 0.2},    {"txtMRange(1)", 80.0}, {"txtMean", 500.0},
                        {"txtCostT(3)", 30.0}, {"txtCostC(3)", 20.0},  {"txtQ(2)", 2.0},
                        {"txtRsq(2)", 0.25},   {"txtNT(3)", 5.0},      {"txtNC(3)", 6.0},
                        {"Link N3", false},    {"Link Cost3", false}};
    const Values blocks = {{"NumLevels", 3.0},    {"RandomizedLevel", 1.0}, {"txtd", 0.5},
                           {"txtTauSq(3)", 0.01}, {"txtTauSq(2)", 0.04},    {"txtModel(3)", 1.0}};
    const Values risks = {{"DataType", 2.0}, {"BinaryType", 3.0}, {"txtPrev", 0.4}, {"txtMRange(2)", 0.2}};
    Values limits = risks;
    limits.insert(limits.end(), {{"RangeMode", 2.0}, {"txtLL(2)", 0.35}, {"txtUL(2)", 0.45}});
    const struct {
        Values study;
        const char* cell;
        const char* says;
    } rows[] = {
        {icc, "pnlLevel(1)",
         "The study will employ a three-level clustered design, with pupils within classes within schools."},
        {icc, "pnlICC(3)",
         "The ICC for Schools is the share of the total variance in scores that lies between schools. It is "
         "assumed to be 0.16."},
        // The standard deviation within is 20 at a share of 0.64, so 25 in all; 0.16 of 625 is 10 squared.
        {icc, "pnlICC(3)",
         "With scores for pupils that span 80.00 points within classes, this ICC implies that the means of "
         "schools span 40.00 points, from 480.00 to 520.00 in the usual group."},
        {icc, "pnlICC(2)", "for example from 477.64 to 522.36"},
        {icc, "pnlICC(1)", "within classes: a share of 0.64."},
        {icc, "pnlMRange(3)", "It follows from the ICC and comes to 40.00 points."},
        {icc, "pnlMRange(3)",
         "an ICC of 0.16, the share of the total variance in scores that lies between schools."},
        {icc, "pnlMRange(1)", "The scores of pupils lie, for example, from 460.00 to 540.00"},
        {icc, "pnlTauSq(3)", "Each of the schools belongs to one group"},
        {icc, "pnlModel(3)", "The model refers to the sampling frame for Schools. It is random, as always"},
        {icc, "pnlQ(3)", "The study will include no schools-level covariates."},
        {icc, "pnlRsq(2)",
         "The study will include 2 covariates at the classes-level, with an R-squared of 0.25."},
        {icc, "pnlRsq(2)", "Each covariate takes one degree of freedom at this level."},
        {icc, "pnlCostT(3)",
         "Specify the cost for each of the schools. The cost for each of the schools assigned to coached is "
         "$30. The cost for each of the schools assigned to usual is $20."},
        {icc, "pnlCostT(3)", "To specify these costs, use the spin button. You can"},
        {icc, "pnlCostT(3)", "In all, schools cost $270. The study costs $"},
        {blocks, "pnlTauSq(2)",
         "Tau-squared for Classes is the variance of the treatment effect (the standardized mean difference, "
         "d) across classes within schools. It is assumed to be 0.0400."},
        {blocks, "pnlTauSq(2)",
         "implies that the effects span 0.80. The effects lie, for example, from 0.10 to 0.90."},
        {blocks, "pnlTauSq(3)", "The model for schools is fixed"},
        {blocks, "pnlDRange(3)", "It follows from tau-squared and comes to 0.40."},
        {blocks, "pnlModel(3)", "The model refers to the sampling frame for Schools. It is fixed."},
        {blocks, "pnlCostB(3)", "The cost for each of the schools is $"},
        {risks, "pnlMRange(2)",
         "The span of risks is the width that holds nearly all risks of classes: four standard deviations, "
         "two to each side of the middle. It is assumed to be 0.20."},
        {risks, "pnlMRange(2)", "The risks of classes lie from 0.300 to 0.500 in the usual group."},
        {risks, "pnlICC(2)", "For a risk difference this is the ICC of the usual group."},
        {risks, "pnlICC(1)", "Each of the pupils has the event or does not have it"},
        {limits, "pnlMRange(2)", "It is the distance of the limits that were entered, 0.100."},
        {limits, "pnlICC(2)", "It follows from the limits of the risks and comes to 0."},
        {risks, "pnlQ(1)", "Where the outcome is binary, covariates explain risks of clusters alone."}};
    for (const auto& row : rows) {
        load(row.study);
        app.click(row.cell);
        EXPECT_TRUE(says(row.says)) << row.cell << ": " << row.says << "\n" << words();
    }
}

TEST_F(DetailsWindow, ShowsKeyNumbersStrongAndReadsNoMarksInNames) {
    load({{"ICC Metric", 1.0}, {"txtICC(2)", 0.1}});
    app.set(Values{{"txtName(2)", std::string("A**b** {span} & <i>")}});
    app.click("pnlICC(2)");
    EXPECT_EQ(title(), "ICC for A**b** {span} & <i>");
    const std::vector<Paragraph>& shown = app.details().paragraphs();
    EXPECT_EQ(shown.front(),
              (Paragraph{{"The ICC for A**b** {span} & <i> is the share of the total variance in "
                          "scores that lies between a**b** {span} & <i>. "},
                         {"It is assumed to be "},
                         {"0.10", true},
                         {"."}}));
    EXPECT_EQ(words(), plainText(shown));
}

}  // namespace
}  // namespace lorvane
