// The table of tools and bands.
#include "screen/tool_table.h"

#include <string_view>
#include <utility>

#include "engine/per_level.h"

namespace lorvane {

namespace {

using enum ToolCategory;

struct ToolRow {
    const char* name;
    const char* caption;
    const char* tip;
    ToolCategory category;
};

constexpr const char* noTest = "Such studies come from files and have no test";

constexpr ToolRow toolRows[] = {
    // Files
    {"Clear", "&New", "Start a new study", file},
    {"Open", "&Open", "Open a study file", file},
    {"Save", "&Save", "Save the study", file},
    {"SaveAs", "Save &As...", "Save the study under another name", file},
    {"Exit", "E&xit", "Close the program", file},
    // Structure
    {"Add a level", "&Add a level", "Add a level at the top of the study", command},
    {"Remove a level", "&Remove a level", "Remove the top level of the study", command},
    {"Debug ICC", "Table of the &ICC", "The raw table of the ICC", window},
    {"Debug Tau-sq", "Table of the &effects", "The raw table of the effects", window},
    {"OD", "Example of the optimal design", "Two levels, for the example of the optimal design", command},
    {"gfrmLevelNames", "Edit level &names", "Name the units of every level", window},
    {"gfrmGroupNames", "Edit group &names", "Name the two groups", window},
    {"Mean difference W", "Mean difference d (&within)", "Means, d on the standard deviation within cells",
     choice},
    {"Mean difference T", "Mean difference d (&total)", "Means, d on the total standard deviation", choice},
    {"PDF d", "About the two forms of &d", "Open the note on d within and d total", help},
    {"Odds ratio", "&Odds ratio", "Binary outcome, effect as an odds ratio", choice},
    {"Risk ratio", "Risk rat&io", noTest, choice},
    {"Risk difference", "&Risk difference", "Binary outcome, effect as a risk difference", choice},
    {"Two risks", "Two ris&ks", noTest, choice},
    // Dispersion
    {"Enter ICC", "Enter &ICC", "Enter the dispersion of the outcome as ICC", choice},
    {"Enter span for prevalence", "Enter &span of means", "Enter the dispersion of the outcome as a span",
     choice},
    {"Enter limits", "Enter &limits", "Enter the range of risks by its limits", choice},
    {"ICC Schematic always off", "Schematic always o&ff", "Never open the picture of the ICC", choice},
    {"ICC Schematic automatic", "Schematic a&utomatic", "Open the picture when an ICC is changed", choice},
    {"ICC Schematic always on", "Schematic always &on", "Open the picture with every change", choice},
    {"Enter tau-squared", "Enter &tau-squared", "Enter the dispersion of the effect as tau-squared", choice},
    {"Enter range of effects", "Enter &span of effects", "Enter the dispersion of the effect as a span",
     choice},
    {"Enter omega", "Enter o&mega", "Enter the dispersion of the effect as omega", choice},
    {"TauSq Schematic always off", "Schematic always o&ff", "Never open the picture of the effects", choice},
    {"TauSq Schematic automatic", "Schematic a&utomatic", "Open the picture when a dispersion is changed",
     choice},
    {"TauSq Schematic always on", "Schematic always &on", "Open the picture with every change", choice},
    {"Show omega", "Show om&ega", "Show omega in the picture of the effects", choice},
    {"Link or unlink N", "&Link or unlink", "Link or unlink the two groups", command},
    // Test and options
    {"Use t-distribution", "Use &t-distribution", "Test a risk difference with the t-distribution", choice},
    {"Use Z-distribution", "Use &Z-distribution", "Test a risk difference with the normal distribution",
     choice},
    {"gfrmDelta", "Modify limits for risks", "Set how near to 0 and 1 a risk may lie", window},
    {"gfrmControlMean", "Set &mean and span", "Set the scale on which means are stated", window},
    {"Alpha = 0.01", "Alpha = 0.0&1", "Test at the 0.01 level", choice},
    {"Alpha = 0.05", "Alpha = 0.0&5", "Test at the 0.05 level", choice},
    {"Alpha = 0.10", "Alpha = 0.1&0", "Test at the 0.10 level", choice},
    {"Alpha = 0.20", "Alpha = 0.&20", "Test at the 0.20 level", choice},
    {"gfrmAlpha", "&Custom alpha...", "Test at a level of your own", window},
    {"One-tailed test", "&One-tailed test", "Test one direction of the effect", choice},
    {"Two-tailed test", "&Two-tailed test", "Test both directions of the effect", choice},
    {"Set power", "80%", "Set the power that the searches aim at", command},
    {"Set power 80", "&80%", "Aim at a power of 80%", choice},
    {"Set power 85", "8&5%", "Aim at a power of 85%", choice},
    {"Set power 90", "&90%", "Aim at a power of 90%", choice},
    {"Set power 95", "95&%", "Aim at a power of 95%", choice},
    {"Set power 99", "&99%", "Aim at a power of 99%", choice},
    // Display
    {"Show power using graph", "Power as &bar", "Show the power as a bar", command},
    {"Show power using digits", "Power as &digits", "Show the power as digits", command},
    {"Show cost using graph", "Cost as b&ar", "Show the cost as a bar", command},
    {"Show cost using digits", "Cost as d&igits", "Show the cost as digits", command},
    {"Set maximum cost", "Set &maximum cost", "Set the top of the cost bar", window},
    // Searches, counts
    {"For optimal design use 5 iterations", "Use &5 iterations", "Try 5 sizes of the top level", choice},
    {"For optimal design use 10 iterations", "Use &10 iterations", "Try 10 sizes of the top level", choice},
    {"For optimal design use 20 iterations", "Use &20 iterations", "Try 20 sizes of the top level", choice},
    {"For optimal design use 30 iterations", "Use &30 iterations", "Try 30 sizes of the top level", choice},
    {"Counts Schematic always off", "Cell counts always o&ff", "Never open the cell counts", choice},
    {"Counts Schematic automatic", "Cell counts a&utomatic", "Open the cell counts while they are low",
     choice},
    {"Counts Schematic always on", "Cell counts always &on", "Keep the cell counts open", choice},
    {"Level of detail - None", "Level of detail - &None", "Show the verdict alone", choice},
    {"Level of detail - Moderate", "Level of detail - &Moderate", "Show the shares of low counts", choice},
    {"Level of detail - Full", "Level of detail - Fu&ll", "Show all numbers", choice},
    {"PDF Low cell counts", "About &low cell counts", "Open the note on low cell counts", help},
    {"Allow low cell counts", "&Allow low cell counts", "Let the searches give low cell counts", choice},
    {"Do not allow low cell counts", "&Do not allow low cell counts",
     "Keep the searches from low cell counts", choice},
    // Windows
    {"gfrmScenarios", "&Scenarios", "Open the table of scenarios", window},
    {"Show scenarios", "&Show scenarios", "Open the table of scenarios", window},
    {"Add scenario", "&Add scenario", "Keep the study as a scenario", command},
    {"Restore scenario", "&Restore scenario", "Put the selected scenario on the screen", command},
    {"gfrmOptimal", "&Optimal design", "Find the cheapest design for a required power", window},
    {"Find optimal n per cluster", "Find optimal &n per cluster",
     "Find the cheapest design, all sizes left to the search", command},
    {"Find M", "&Find the number of clusters", "Find the number of top units, all other sizes kept", command},
    {"gfrmMDES", "&MDES", "Find the smallest effect that can be detected", window},
    {"gfrmPrint", "&Report", "Make a report", window},
    {"Graph", "&Graph", "Draw power and cost as a graph", window},
    {"gfrmTips", "&Guide", "Open or close the guide", window},
    {"gfrmDetails", "&Details", "Open or close the details", window},
    {"Program manual", "&Program manual", "Open the manual", help},
    {"About", "&About Lorvane", "Version and licence", help},
    {"gDesign", "Study", "The study screen", window},
    {"gfrmDisplayICC", "&ICC and range", "The picture of the ICC", window},
    {"gfrmDisplayTauSq", "&Tau-squared and range", "The picture of the effects", window},
    {"gfrmLVar", "Lines of the graph", "The lines of the graph", window},
    {"gfrmScenariosName", "Name of a scenario", "Name and describe a scenario", window},
    {"gfrmTable", "Table of the graph", "The table of the graph", window},
    {"gfrmXVar", "Axis of the graph", "The axis of the graph", window},
    {"gxPlot", "Graph", "The graph", window},
    {"gfrmProblems", "&Problem", "Why the study gives no power", window},
    {"gfrmProblemES", "Problem with the &effect", "Why the effect is not admissible", window},
    {"gfrmTipsGraph", "Guide of the graph", "The guide of the graph", window},
    {"gfrmOpenWizard", "S&tart", "The start screen", window},
    {"gfrmCounts", "&Cell counts", "The cell counts", window},
    {"FrmLimits", "&Limits of risks", "The limits of the risks by level", window},
};

// Tools that there is one of for every level, the top level first.
constexpr ToolRow levelRows[] = {
    {"Randomize Level {}", "", "Assign treatment at this level", choice},
    {"Link N for Level {}", "", "Keep both groups at the same number", command},
    {"Unlink N for Level {}", "", "Let the groups have different numbers", command},
    {"Increment Level {} by 1", "", "One click changes the number by 1", increment},
    {"Increment Level {} by 10", "", "One click changes the number by 10", increment},
    {"Increment Level {} by 100", "", "One click changes the number by 100", increment},
    {"Link cost for Level {}", "", "Keep both groups at the same cost", command},
    {"Unlink cost for Level {}", "", "Let the groups have different costs", command},
    {"Increment Level {} cost by 1", "", "One click changes the cost by 1", increment},
    {"Increment Level {} cost by 10", "", "One click changes the cost by 10", increment},
    {"Increment Level {} cost by 100", "", "One click changes the cost by 100", increment},
};

constexpr std::string_view detailColumns[] = {
    "colBlocked", "colLevels", "colUnits", "colReplicates", "colICC",  "colMSpan", "colTauSq",
    "colDSpan",   "colOmega",  "colModel", "colRsq",        "colCost", "colES"};

// Popups that choose the decimals of a field: the band and the word for the field.
struct DecimalBand {
    const char* band;
    const char* field;
    const char* details;
};

constexpr DecimalBand decimalBands[] = {
    {"popd", "d", "colES"},
    {"popOR", "odds ratio", "colES"},
    {"popRR", "risk ratio", "colES"},
    {"popRD", "risk difference", "colES"},
    {"popPrevalence", "prevalence", "colES"},
    {"popP2", "P2", "colES"},
    {"popICC", "ICC", "colICC"},
    {"popTauSq", "tau-squared", "colTauSq"},
    {"popOmega", "omega", "colOmega"},
    {"popR-squared", "R-squared", "colRsq"},
};

// Popups that choose the step of a field.
struct StepBand {
    const char* band;
    const char* field;
    std::vector<std::string_view> steps;
    const char* details;
};

const std::vector<StepBand>& stepBands() {
    static const std::vector<StepBand> bands = {
        {"popMean", "mean", {".01", ".10", "1", "10", "100"}, "colES"},
        {"popSD", "SD", {".01", ".10", "1", "10", "100"}, "colES"},
        {"popMRange", "MRange", {".01", ".10", "1", "10", "100"}, "colMSpan"},
        {"popDRange", "DRange", {".01", ".10"}, "colDSpan"}};
    return bands;
}

std::string detailTool(std::string_view column) { return "Show details " + std::string(column); }

void addRow(std::vector<Tool>& tools, const ToolRow& row) {
    tools.push_back({row.name, row.caption, row.tip, row.category});
}

void addLevelTools(std::vector<Tool>& tools) {
    for (const ToolRow& row : levelRows) {
        for (int level = highestLevel; level >= lowestLevel; --level)
            tools.push_back({levelTool(row.name, level), levelTool(row.name, level), row.tip, row.category});
    }
}

void addDecimalTools(std::vector<Tool>& tools) {
    for (const DecimalBand& band : decimalBands) {
        for (int decimals = 1; decimals <= 4; ++decimals) {
            const std::string name = decimalToolName(band.field, decimals);
            tools.push_back({name, name, "Decimals shown; one click changes the last one", increment});
        }
    }
    for (const StepBand& band : stepBands()) {
        for (const std::string_view step : band.steps)
            tools.push_back({stepToolName(band.field, step), "Change by " + std::string(step),
                             "What one click changes the value by", increment});
    }
}

// Entries of a band: "-" is a line, ">" the gap before the right end, "+" leads to another band.
std::vector<BandEntry> entriesOf(const std::vector<std::string>& names) {
    std::vector<BandEntry> entries;
    for (const std::string& name : names) {
        if (name == "-")
            entries.push_back({BandEntry::Kind::line, ""});
        else if (name == ">")
            entries.push_back({BandEntry::Kind::stretch, ""});
        else if (name[0] == '+')
            entries.push_back({BandEntry::Kind::band, name.substr(1)});
        else
            entries.push_back({BandEntry::Kind::tool, name});
    }
    return entries;
}

// The tools of some patterns for one level.
std::vector<std::string> forLevel(std::initializer_list<std::string_view> patterns, int level) {
    std::vector<std::string> names;
    for (const std::string_view pattern : patterns)
        names.push_back(levelTool(pattern, level));
    return names;
}

// The tools of some patterns for all levels, the top level first, with a line between levels.
std::vector<std::string> forAllLevels(std::initializer_list<std::string_view> patterns) {
    std::vector<std::string> names;
    for (int level = highestLevel; level >= lowestLevel; --level) {
        if (!names.empty() && patterns.size() > 1)
            names.push_back("-");
        for (std::string& name : forLevel(patterns, level))
            names.push_back(std::move(name));
    }
    return names;
}

std::vector<std::string> joined(std::vector<std::string> names, std::initializer_list<const char*> more) {
    names.insert(names.end(), more.begin(), more.end());
    return names;
}

struct BandRow {
    const char* name;
    const char* caption;
    BandKind kind;
    std::vector<std::string> tools;
};

std::vector<BandRow> menuRows() {
    using enum BandKind;
    return {
        {"bndFile", "&File", menu, {"Clear", "Open", "-", "Save", "SaveAs", "-", "Exit"}},
        {"popLevels", "&Levels", menu, {"Add a level", "Remove a level", "-", "gfrmLevelNames"}},
        {"popRandomize", "&Randomize", menu,
         joined(forAllLevels({"Randomize Level {}"}), {"-", "Show details colBlocked"})},
        {"bndLabels", "&Groups", menu, {"gfrmGroupNames"}},
        {"popDesign",
         "&Effect size",
         menu,
         {"Mean difference W", "Mean difference T", "PDF d", "-", "Odds ratio", "Risk ratio",
          "Risk difference", "Two risks"}},
        {"popICCView",
         "&ICC",
         menu,
         {"Enter ICC", "Enter span for prevalence", "Enter limits", "-", "ICC Schematic always off",
          "ICC Schematic automatic", "ICC Schematic always on"}},
        {"popTauSqView",
         "&Tau-sq",
         menu,
         {"Enter tau-squared", "Enter range of effects", "Enter omega", "-", "TauSq Schematic always off",
          "TauSq Schematic automatic", "TauSq Schematic always on", "-", "Show omega"}},
        {"popUnits", "&Units", menu,
         joined(forAllLevels({"Link N for Level {}", "Unlink N for Level {}"}),
                {"-", "Show details colReplicates"})},
        {"popCosts", "&Costs", menu,
         joined(forAllLevels({"Link cost for Level {}", "Unlink cost for Level {}"}),
                {"-", "+popCostIncrements", "-", "Show details colCost"})},
        {"popCostIncrements", "Cost &Increments", submenu,
         forAllLevels({"Increment Level {} cost by 1", "Increment Level {} cost by 10",
                       "Increment Level {} cost by 100"})},
        {"popAlpha",
         "&Alpha",
         menu,
         {"Alpha = 0.01", "Alpha = 0.05", "Alpha = 0.10", "Alpha = 0.20", "gfrmAlpha", "-", "One-tailed test",
          "Two-tailed test"}},
        {"popOptions",
         "&Options",
         menu,
         {"Use t-distribution", "Use Z-distribution", "-", "gfrmDelta", "gfrmControlMean", "-",
          "+popIterations", "+popCountsView"}},
        {"popIterations",
         "&Iterations",
         submenu,
         {"For optimal design use 5 iterations", "For optimal design use 10 iterations",
          "For optimal design use 20 iterations", "For optimal design use 30 iterations"}},
        {"popCountsView",
         "&Cell counts",
         submenu,
         {"Counts Schematic always off", "Counts Schematic automatic", "Counts Schematic always on", "-",
          "Level of detail - None", "Level of detail - Moderate", "Level of detail - Full", "-",
          "PDF Low cell counts", "-", "Allow low cell counts", "Do not allow low cell counts"}},
        {"popScenarios", "&Scenarios", menu, {"gfrmScenarios", "Add scenario", "Restore scenario"}},
        {"popReport", "Re&port", menu, {"gfrmPrint"}},
        {"popViewForms",
         "For&ms",
         menu,
         {"gfrmDisplayICC", "gfrmDisplayTauSq", "gfrmCounts", "gfrmProblems", "gfrmProblemES", "-",
          "gfrmScenarios", "gfrmOptimal", "gfrmMDES", "-", "gfrmTips", "gfrmDetails", "gfrmOpenWizard"}},
        {"popHelp", "&Help", menu, {"gfrmTips", "gfrmDetails", "-", "Program manual", "-", "About"}},
    };
}

std::vector<BandRow> barRows() {
    using enum BandKind;
    return {
        {"popSetPower",
         "Set power",
         submenu,
         {"Set power 80", "Set power 85", "Set power 90", "Set power 95", "Set power 99"}},
        {"Band1",
         "Main tool bar",
         toolbar,
         {"Open",
          "Clear",
          "Save",
          "-",
          "Show power using digits",
          "Show power using graph",
          "Show cost using digits",
          "Show cost using graph",
          "Set maximum cost",
          "Set power",
          "-",
          "gfrmOptimal",
          "gfrmMDES",
          "-",
          "gfrmScenarios",
          "Add scenario",
          "-",
          "gfrmPrint",
          "Graph",
          ">",
          "gfrmTips",
          "gfrmDetails"}},
    };
}

void addLevelPopups(std::vector<BandRow>& rows) {
    using enum BandKind;
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        const auto steps = forLevel(
            {"Increment Level {} by 1", "Increment Level {} by 10", "Increment Level {} by 100"}, level);
        const auto costSteps = forLevel({"Increment Level {} cost by 1", "Increment Level {} cost by 10",
                                         "Increment Level {} cost by 100"},
                                        level);
        auto links = forLevel({"Link N for Level {}", "Unlink N for Level {}"}, level);
        auto costLinks = forLevel({"Link cost for Level {}", "Unlink cost for Level {}"}, level);
        links.push_back("-");
        links.insert(links.end(), steps.begin(), steps.end());
        costLinks.push_back("-");
        costLinks.insert(costLinks.end(), costSteps.begin(), costSteps.end());
        static constexpr const char* names[4][4] = {{"popLinkN1", "popLinkN1B", "popLinkCost1", "popCostB1"},
                                                    {"popLinkN2", "popLinkN2B", "popLinkCost2", "popCostB2"},
                                                    {"popLinkN3", "popLinkN3B", "popLinkCost3", "popCostB3"},
                                                    {"popLinkN4", "popLinkN4B", "popLinkCost4", "popCostB4"}};
        const auto& name = names[level - 1];
        rows.push_back({name[0], "", popup, joined(links, {"-", "Show details colUnits"})});
        rows.push_back({name[1], "", popup, joined(steps, {"-", "Show details colUnits"})});
        rows.push_back({name[2], "", popup, joined(costLinks, {"-", "Show details colCost"})});
        rows.push_back({name[3], "", popup, joined(costSteps, {"-", "Show details colCost"})});
    }
}

void addFieldPopups(std::vector<BandRow>& rows) {
    for (const DecimalBand& band : decimalBands) {
        std::vector<std::string> names;
        for (int decimals = 1; decimals <= 4; ++decimals)
            names.push_back(decimalToolName(band.field, decimals));
        names.push_back("-");
        names.push_back(detailTool(band.details));
        rows.push_back({band.band, "", BandKind::popup, std::move(names)});
    }
    for (const StepBand& band : stepBands()) {
        std::vector<std::string> names;
        for (const std::string_view step : band.steps)
            names.push_back(stepToolName(band.field, step));
        names.push_back("-");
        names.push_back(detailTool(band.details));
        rows.push_back({band.band, "", BandKind::popup, std::move(names)});
    }
}

}  // namespace

std::string levelTool(std::string_view pattern, int level) {
    std::string name(pattern);
    return name.replace(name.find("{}"), 2, std::to_string(level));
}

std::string decimalToolName(std::string_view field, int decimals) {
    return "Use " + std::to_string(decimals) +
           (decimals == 1 ? " decimal place for " : " decimal places for ") + std::string(field);
}

std::string stepToolName(std::string_view field, std::string_view step) {
    return "Change " + std::string(field) + " by " + std::string(step);
}

std::string_view windowTool(WindowId window) {
    static constexpr std::string_view names[lastWindowId + 1] = {"",
                                                                 "gDesign",
                                                                 "gfrmAlpha",
                                                                 "gfrmDetails",
                                                                 "gfrmDisplayICC",
                                                                 "gfrmDisplayTauSq",
                                                                 "gfrmGroupNames",
                                                                 "gfrmLevelNames",
                                                                 "gfrmLVar",
                                                                 "gfrmScenarios",
                                                                 "gfrmScenariosName",
                                                                 "gfrmTable",
                                                                 "gfrmTips",
                                                                 "gfrmXVar",
                                                                 "gxPlot",
                                                                 "gfrmProblems",
                                                                 "gfrmProblemES",
                                                                 "gfrmOptimal",
                                                                 "gfrmMDES",
                                                                 "gfrmTipsGraph",
                                                                 "gfrmOpenWizard",
                                                                 "",
                                                                 "gfrmPrint",
                                                                 "gfrmDelta",
                                                                 "gfrmControlMean",
                                                                 "gfrmCounts"};
    return names[static_cast<int>(window)];
}

std::vector<Tool> makeTools() {
    std::vector<Tool> tools;
    for (const ToolRow& row : toolRows)
        addRow(tools, row);
    addLevelTools(tools);
    addDecimalTools(tools);
    for (const std::string_view column : detailColumns)
        tools.push_back({detailTool(column), "Show &details", "Explain this column", help});
    return tools;
}

std::vector<Band> makeBands() {
    std::vector<BandRow> rows = menuRows();
    for (std::vector<BandRow> more : {barRows()})
        rows.insert(rows.end(), more.begin(), more.end());
    addLevelPopups(rows);
    addFieldPopups(rows);
    std::vector<Band> bands;
    for (const BandRow& row : rows)
        bands.push_back({row.name, row.caption, row.kind, entriesOf(row.tools)});
    return bands;
}

}  // namespace lorvane
