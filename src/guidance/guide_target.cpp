// The targets of the guide: one table, a row for every group of cells.
#include "guidance/guide_target.h"

#include <algorithm>
#include <initializer_list>

#include "base/names.h"

namespace lorvane {

namespace {

// Cells of all levels, or those of the effect strip.
struct Group {
    std::string_view name;  ///< in the texts
    const char* target;     ///< the control that scripts are told; empty: the first cell that is shown
    const char* column;     ///< for the details
    std::initializer_list<const char*> cells;
};

const Group groups[] = {
    {"colUnits", "colUnits", "colUnits", {"pnlNT", "pnlNC", "pnlNB"}},
    {"colICC", "colICC", "colICC", {"pnlICC", "pnlMRange"}},
    {"colTauSq", "colTauSq", "colTauSq", {"pnlTauSq", "pnlDRange", "pnlOmega"}},
    {"colModel", "colModel", "colModel", {"pnlModel"}},
    {"colCovariates", "colRsq", "colRsq", {"pnlQ", "pnlRsq"}},
    {"colCost", "colCost", "colCost", {"pnlCostT", "pnlCostC", "pnlCostB"}},
    {"effect", "colES", "colES", {"pnlPrev", "pnlD", "pnlOR", "pnlRR", "pnlRD", "pnlP2", "pnlMean", "pnlSD"}},
    {"pnlEffect", "", "colES", {"pnlD", "pnlOR", "pnlRR", "pnlRD", "pnlP2"}},
    {"pnlMean", "pnlMean", "colES", {"pnlMean", "pnlSD"}},
};

// The buttons of the wizard by what they do.
constexpr const char* computeButton = "frmOptimal.cmdOpt(2)";
constexpr const char* pasteButton = "frmOptimal.cmdOpt(3)";

void addCells(const MainScreen& screen, std::string_view stem, std::vector<std::string>& around) {
    const auto cells = std::find_if(screen.fields.begin(), screen.fields.end(),
                                    [&](const FieldCells& row) { return row.field->cell.stem == stem; });
    const IndexRange range = indicesOf(*cells->field);
    for (int i = range.last; i >= range.first; --i) {
        if ((*cells)(i).Visible)
            around.push_back(i == 0 ? std::string(stem) : indexedName(stem, i));
    }
}

std::vector<std::string> rowsOf(const MainScreen& screen, std::string_view stem) {
    std::vector<std::string> around;
    for (int level = highestLevel; level >= lowestLevel; --level) {
        if (screen.BpnlLevel(level).Visible)
            around.push_back(indexedName(stem, level));
    }
    return around;
}

// What the effect implies stands in one of two places.
GuideTarget derivedTarget(const MainScreen& screen) {
    const std::string name = screen.pnlOther.Visible ? "pnlOther" : "pnlDerived";
    return {name, "colES", {name}};
}

// The options of the wizard, a row a level below the top.
GuideTarget wizardTarget(const MainScreen& screen) {
    GuideTarget target{"frmOptimal.optAuto(1)", "", {}};
    for (int level = lowestLevel; level < highestLevel && screen.BpnlLevel(level + 1).Visible; ++level) {
        for (const char* option : {"frmOptimal.optAuto", "frmOptimal.optManual"})
            target.around.push_back(indexedName(option, level));
    }
    return target;
}

}  // namespace

GuideTarget targetOf(std::string_view name, const MainScreen& screen) {
    if (name == "pnlSense")
        return {"pnlSense", "", {"pnlSense", "pnlTitle"}};
    if (name == "frmOptimal.levels")
        return wizardTarget(screen);
    if (name == "pnlOther")
        return derivedTarget(screen);
    if (name == "colLevels" || name == "colBlocked")
        return {std::string(name), std::string(name), rowsOf(screen, "pnlName")};
    for (const Group& group : groups) {
        if (group.name != name)
            continue;
        GuideTarget target{group.target, group.column, {}};
        for (const char* cell : group.cells)
            addCells(screen, cell, target.around);
        if (target.name.empty() && !target.around.empty())
            target.name = target.around.front();
        return target;
    }
    if (name.empty())
        return {};
    // There is nothing to paste before the wizard has computed.
    if (name == "frmOptimal.cmdPaste")
        return {pasteButton, "", {pasteButton, computeButton}};
    if (name == "frmOptimal.cmdCompute")
        return {computeButton, "", {computeButton}};
    return {std::string(name), "", {std::string(name)}};
}

std::string menuOf(std::string_view name, const MainScreen& screen) {
    if (name != "popEffect")
        return std::string(name);
    const std::string effect = targetOf("pnlEffect", screen).name;
    const auto found = std::find_if(screen.fields.begin(), screen.fields.end(), [&](const FieldCells& cells) {
        return cells.field->cell.stem == effect;
    });
    return found == screen.fields.end() ? "" : std::string(found->field->cell.menu);
}

}  // namespace lorvane
