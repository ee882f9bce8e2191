// The menus, popups and the tool bar by their rows.
#include "app/menu_rows.h"

#include <utility>

#include "app/command_series.h"
#include "app/command_table.h"
#include "app/graph_rows.h"
#include "app/report_rows.h"
#include "app/value_rows.h"
#include "app/window_rows.h"

namespace lorvane {

namespace {

// The commands of some patterns for one level.
Keys forLevel(std::initializer_list<const char*> patterns, int level) {
    Keys keys;
    for (const char* pattern : patterns)
        keys.push_back(ofLevel(pattern, level));
    return keys;
}

// The commands of some patterns for all levels, the top level first, with a line between levels.
Keys forAllLevels(std::initializer_list<const char*> patterns) {
    Keys keys;
    for (int level = highestLevel; level >= lowestLevel; --level) {
        if (!keys.empty() && patterns.size() > 1)
            keys.push_back("-");
        for (std::string& key : forLevel(patterns, level))
            keys.push_back(std::move(key));
    }
    return keys;
}

Keys joined(Keys keys, const Keys& more) {
    keys.insert(keys.end(), more.begin(), more.end());
    return keys;
}

std::vector<MenuRow> menuTable() {
    using enum BandKind;
    return {
        {"bndFile", "&File", menu, {"Clear", "Open", "-", "Save", "SaveAs", "-", "Exit"}},
        {"bndEdit",
         "&Edit",
         menu,
         {"Undo", "Redo", "-", "Enter value", "Link or unlink groups", "Copy", "Copy study", "-",
          "Details of value"}},
        {"popLevels", "&Levels", menu, {"Add a level", "Remove a level", "-", "gfrmLevelNames"}},
        {"popRandomize", "&Randomize", menu,
         joined(forAllLevels({"Randomize Level {}"}), {"-", "Show details colBlocked"})},
        {"bndLabels", "&Groups", menu, {"gfrmGroupNames"}},
        {"popDesign",
         "Effect si&ze",
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
        {"popOD", "Find number", popup, joined({"OD", "-"}, forAllLevels({"Find N for Level {}"}))},
        {"popScenarios", "&Scenarios", menu, {"gfrmScenarios", "Add scenario", "Restore scenario"}},
        {"popReport", "Re&port", menu, joined({"gfrmPrint", "Copy paragraph"}, reportSettingKeys())},
        {"popViewForms", "For&ms", menu, formKeys()},
        {"popHelp",
         "&Help",
         menu,
         {"gfrmTips", "+popTips", "gfrmDetails", "-", "Program manual", "PDF d", "PDF Low cell counts",
          "Formulas", "Keyboard", "-", "About"}},
        {"popTips", "&Text of the guide", submenu, {"Small", "Medium", "Large"}},
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

// The right clicks on units and costs of a level.
void addLevelPopups(std::vector<MenuRow>& rows, int level) {
    const Keys links = forLevel({"Link N for Level {}", "Unlink N for Level {}"}, level);
    const Keys costLinks = forLevel({"Link cost for Level {}", "Unlink cost for Level {}"}, level);
    const Keys steps = joined(
        forLevel({"Increment Level {} by 1", "Increment Level {} by 10", "Increment Level {} by 100"}, level),
        {"-", "Show details colUnits"});
    const Keys costSteps = joined(forLevel({"Increment Level {} cost by 1", "Increment Level {} cost by 10",
                                            "Increment Level {} cost by 100"},
                                           level),
                                  {"-", "Show details colCost"});
    const auto add = [&](const char* pattern, const Keys& keys) {
        rows.push_back({ofLevel(pattern, level), "", BandKind::popup, keys});
    };
    add("popLinkN{}", joined(joined(links, {"-"}), steps));
    add("popLinkN{}B", steps);
    add("popLinkCost{}", joined(joined(costLinks, {"-"}), costSteps));
    add("popCostB{}", costSteps);
    add("popModel{}", {modelKey(false, level), modelKey(true, level), "-", "Show details colModel"});
}

// The right clicks on values that have decimals or a step; the details are those of the field's column.
void addFieldPopups(std::vector<MenuRow>& rows) {
    for (const Field& field : fieldBook()) {
        Keys keys = decimalsKeys(field);
        if (const Keys steps = stepKeysOf(field); !steps.empty())
            keys = joined(keys.empty() ? keys : joined(keys, {"-"}), steps);
        if (!keys.empty())
            rows.push_back({std::string(field.cell.menu), "", BandKind::popup,
                            joined(keys, {"-", detailsKey(field.cell.column)})});
    }
}

}  // namespace

std::vector<Band> bandRows() {
    std::vector<MenuRow> rows = menuTable();
    for (int level = lowestLevel; level <= highestLevel; ++level)
        addLevelPopups(rows, level);
    addFieldPopups(rows);
    std::vector<Band> bands;
    for (const MenuRow& row : rows) {
        bands.push_back(bandOf(row));
        bands.back().toggles = row.name == "popViewForms";
    }
    for (const auto& bandsOfScreen : {graphBands(), reportBands()})
        bands.insert(bands.end(), bandsOfScreen.begin(), bandsOfScreen.end());
    return bands;
}

}  // namespace lorvane
