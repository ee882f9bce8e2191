// Display model of the study screen.
#include "screen/main_screen.h"

#include <utility>

#include "base/names.h"
#include "engine/study.h"

namespace lorvane {

namespace {

void displayMode(Panel& digits, Panel& graph, int mode) {
    digits.Visible = mode == DisplayModes::digits;
    graph.Visible = mode == DisplayModes::graph;
}

struct ColumnRow {
    const char* key;
    const char* heading;
};

constexpr ColumnRow columnRows[columnCount] = {{"colBlocked", "Level"},
                                               {"colLevels", "Level"},
                                               {"colUnits", "Number of units"},
                                               {"colReplicates", "N in pop"},
                                               {"colICC", "ICC\n"},
                                               {"colMSpan", "Span of\nmeans"},
                                               {"colTauSq", "Tau-sq"},
                                               {"colDSpan", "Span of\neffects"},
                                               {"colOmega", "Omega"},
                                               {"colModel", "Model"},
                                               {"colRsq", "# Covariates, R-sq"},
                                               {"colCost", "Costs"},
                                               {"colES", "Effect size"}};

void addCell(ControlRegistry& registry, const std::string& panel, const std::string& spin, const Cell& cell) {
    registry.add(panel, static_cast<const Panel&>(cell));
    registry.add(panel + ".Number", &cell.number);
    registry.add(panel + ".Arm", &cell.arm);
    registry.add(spin + ".Visible", &cell.spinVisible);
}

void addPanels(ControlRegistry& registry, const MainScreen& s) {
    const std::pair<const char*, const Panel*> panels[] = {{"pnlTitle", &s.pnlTitle},
                                                           {"pnlSense", &s.pnlSense},
                                                           {"pnlPower", &s.pnlPower},
                                                           {"pnlPowerOuter", &s.pnlPowerOuter},
                                                           {"pnlPowerBar", &s.pnlPowerBar},
                                                           {"pnlPowerNote", &s.pnlPowerNote},
                                                           {"pnlPowerTick", &s.pnlPowerTick},
                                                           {"pnlMaxCost", &s.pnlMaxCost},
                                                           {"pnlCost", &s.pnlCost},
                                                           {"pnlCostOuter", &s.pnlCostOuter},
                                                           {"pnlCostBar", &s.pnlCostBar},
                                                           {"pnlCostNote", &s.pnlCostNote},
                                                           {"pnldW", &s.pnldW},
                                                           {"pnldT", &s.pnldT},
                                                           {"lblD", &s.lblD},
                                                           {"lblPrev", &s.lblPrev},
                                                           {"lblP2", &s.lblP2},
                                                           {"pnlAlphaTails", &s.pnlAlphaTails},
                                                           {"pnlAI", &s.pnlAI},
                                                           {"SSPanel10", &s.SSPanel10},
                                                           {"pnlStatus", &s.pnlStatus}};
    for (const auto& [name, panel] : panels)
        registry.add(name, *panel);
}

void addOutlines(ControlRegistry& registry, const MainScreen& s) {
    for (int number = 1; number <= s.outlines.last; ++number) {
        const Outline& outline = s.outlines(number);
        const std::string name = indexedName("outline", number);
        registry.add(name + ".Visible", &outline.Visible);
        registry.add(name + ".Color", &outline.colour);
        registry.add(name + ".From", &outline.from);
        registry.add(name + ".To", &outline.to);
    }
}

}  // namespace

const std::array<StripCellName, 8> stripCells = {
    {{"pnlD", "spnD", "txtd", "popd", &MainScreen::pnlD},
     {"pnlMean", "spnMean", "txtMean", "popMean", &MainScreen::pnlMean},
     {"pnlSD", "spnSD", "txtSD", "popSD", &MainScreen::pnlSD},
     {"pnlPrev", "spnPrev", "txtPrev", "popPrevalence", &MainScreen::pnlPrev},
     {"pnlP2", "spnP2", "txtP2", "popP2", &MainScreen::pnlP2},
     {"pnlOR", "spnOR", "txtOR", "popOR", &MainScreen::pnlOR},
     {"pnlRR", "spnRR", "txtRR", "popRR", &MainScreen::pnlRR},
     {"pnlRD", "spnRD", "txtRD", "popRD", &MainScreen::pnlRD}}};

const std::array<LevelCellName, 15> levelCells = {
    {{"pnlNT", "spnNT", "txtNT", "popLinkN{}", &MainScreen::pnlNT},
     {"pnlNC", "spnNC", "txtNC", "popLinkN{}", &MainScreen::pnlNC},
     {"pnlNB", "spnNB", "txtNB", "popLinkN{}B", &MainScreen::pnlNB},
     {"pnlPop", "spnPop", "txtPop", "", &MainScreen::pnlPop},
     {"pnlICC", "spnIcc", "txtICC", "popICC", &MainScreen::pnlICC},
     {"pnlMRange", "spnMRange", "txtMRange", "popMRange", &MainScreen::pnlMRange},
     {"pnlTauSq", "spnTauSq", "txtTauSq", "popTauSq", &MainScreen::pnlTauSq},
     {"pnlDRange", "spnDRange", "txtDRange", "popDRange", &MainScreen::pnlDRange},
     {"pnlOmega", "spnOmega", "txtOmega", "popOmega", &MainScreen::pnlOmega},
     {"pnlModel", "spnModel", "txtModel", "", &MainScreen::pnlModel},
     {"pnlQ", "spnQ", "txtQ", "popR-squared", &MainScreen::pnlQ},
     {"pnlRsq", "spnRsq", "txtRsq", "popR-squared", &MainScreen::pnlRsq},
     {"pnlCostT", "spnCostT", "txtCostT", "popLinkCost{}", &MainScreen::pnlCostT},
     {"pnlCostC", "spnCostC", "txtCostC", "popLinkCost{}", &MainScreen::pnlCostC},
     {"pnlCostB", "spnCostB", "txtCostB", "popCostB{}", &MainScreen::pnlCostB}}};

MainScreen::MainScreen() {
    pnlAI.Visible = false;
    pnlCost.Caption = "Cost = n/a";
    pnlCost.number = "n/a";
    for (std::size_t i = 0; i < columnCount; ++i) {
        columns[i].key = columnRows[i].key;
        columns[i].heading.Caption = columnRows[i].heading;
    }
}

void MainScreen::OutlineProblem(int number, const Colour& colour, std::string from, std::string to) {
    outlines(number) = {true, colour, std::move(from), std::move(to)};
}

void MainScreen::registerNames(ControlRegistry& registry) const {
    addPanels(registry, *this);
    for (const StripCellName& name : stripCells)
        addCell(registry, std::string(name.panel), std::string(name.spin), this->*name.cell);
    for (const LevelCellName& name : levelCells) {
        for (int level = lowestLevel; level <= highestLevel; ++level)
            addCell(registry, indexedName(name.panel, level), indexedName(name.spin, level),
                    (this->*name.cells)(level));
    }
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        registry.add(indexedName("BpnlLevel", level), BpnlLevel(level));
        registry.add(indexedName("pnlName", level), pnlName(level));
        registry.add(indexedName("pnlLevel", level), pnlLevel(level));
    }
    for (const Column& column : columns)
        registry.add(column.key, column.heading);
    addOutlines(registry, *this);
}

void DisplayPowerMode(MainScreen& screen, int Powermode) {
    displayMode(screen.pnlPower, screen.pnlPowerOuter, Powermode);
}

void DisplayCostMode(MainScreen& screen, int Costmode) {
    displayMode(screen.pnlCost, screen.pnlCostOuter, Costmode);
}

}  // namespace lorvane
