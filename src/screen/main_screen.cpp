// Display model of the study screen.
#include "screen/main_screen.h"

#include <algorithm>
#include <cassert>
#include <initializer_list>
#include <utility>

#include "base/names.h"
#include "base/number_text.h"

namespace lorvane {

namespace {

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

// A head of the table: its name, the column that it stands for until the study says otherwise, its menu, and
// the field whose heading it is where it shares the column with another.
struct HeadRow {
    const char* name;
    ColumnId column;
    const char* menu = "";
    const char* field = nullptr;
};

constexpr HeadRow headRows[headCount] = {{"lblLevel", ColumnId::levels},
                                         {"lblUnits", ColumnId::units},
                                         {"lblDispersion", ColumnId::icc, "popICCView"},
                                         {"lblEffect", ColumnId::tauSq, "popTauSqView"},
                                         {"lblModel", ColumnId::model},
                                         {"lblQ", ColumnId::rsq, "", "txtQ"},
                                         {"lblRsq", ColumnId::rsq, "", "txtRsq"},
                                         {"lblCost", ColumnId::cost}};

// The cells that an outline goes around at each of its levels, by the kind of cell that it starts at.
struct OutlinedCells {
    std::string_view from;
    std::initializer_list<const char*> cells;
};
const OutlinedCells outlinedCells[] = {{"pnlLevel", {"pnlQ", "pnlRsq", "pnlNT", "pnlNC", "pnlNB"}},
                                       {"pnlQ", {"pnlQ", "pnlRsq"}},
                                       {"pnlModel", {"pnlModel"}},
                                       {"pnlICC", {"pnlICC", "pnlMRange"}},
                                       {"pnlTauSq", {"pnlTauSq", "pnlDRange", "pnlOmega"}},
                                       {"pnlCostT", {"pnlCostT", "pnlCostC", "pnlCostB"}},
                                       {"pnlEffectSize", {"pnlD", "pnlOR", "pnlRR", "pnlRD", "pnlP2"}}};

std::vector<std::string> cellsBetween(const MainScreen& screen, const std::string& from,
                                      const std::string& to) {
    const IndexedName first = splitName(from);
    const int a = first.index.value_or(0), b = splitName(to).index.value_or(0);
    std::vector<std::string> names;
    for (const OutlinedCells& outlined : outlinedCells) {
        if (outlined.from != first.stem)
            continue;
        for (int level = std::min(a, b); level <= std::max(a, b); ++level) {
            for (const char* cell : outlined.cells) {
                if (screen.cell(cell, level).Visible)
                    names.push_back(level == 0 ? cell : indexedName(cell, level));
            }
        }
    }
    return names;
}

std::string nameOf(std::string_view stem, const Field& field, int index) {
    return field.index == FieldIndex::none ? std::string(stem) : indexedName(stem, index);
}

void addCells(ControlRegistry& registry, const FieldCells& cells) {
    const Field& field = *cells.field;
    for (int i = indicesOf(field).first; i <= indicesOf(field).last; ++i) {
        const std::string panel = nameOf(field.cell.stem, field, i);
        registry.add(panel, static_cast<const Panel&>(cells(i)));
        registry.add(panel + ".Number", &cells(i).number);
        registry.add(panel + ".Arm", &cells(i).arm);
        registry.add(panel + ".Words", &cells(i).words);
        if (field.index == FieldIndex::none)
            registry.add(panel + ".Heading", &cells(i).heading);
        registry.add(nameOf(field.spin, field, i) + ".Visible", &cells(i).spinVisible);
    }
}

void addPanels(ControlRegistry& registry, const MainScreen& s) {
    const std::pair<const char*, const Panel*> panels[] = {{"pnlTitle", &s.pnlTitle},
                                                           {"pnlSense", &s.pnlSense},
                                                           {"pnlPower", &s.pnlPower},
                                                           {"pnlPowerOuter", &s.pnlPowerOuter},
                                                           {"pnlPowerBar", &s.pnlPowerBar},
                                                           {"pnlPowerReason", &s.pnlPowerReason},
                                                           {"pnlPowerTip", &s.pnlPowerTip},
                                                           {"pnlPowerNote", &s.pnlPowerNote},
                                                           {"pnlPowerTick", &s.pnlPowerTick},
                                                           {"pnlMaxCost", &s.pnlMaxCost},
                                                           {"pnlCostTop", &s.pnlCostTop},
                                                           {"pnlCost", &s.pnlCost},
                                                           {"pnlCostOuter", &s.pnlCostOuter},
                                                           {"pnlCostBar", &s.pnlCostBar},
                                                           {"pnlCostNote", &s.pnlCostNote},
                                                           {"pnldW", &s.pnldW},
                                                           {"pnldT", &s.pnldT},
                                                           {"lblOther", &s.lblOther},
                                                           {"pnlOther", &s.pnlOther},
                                                           {"lblAlpha", &s.lblAlpha},
                                                           {"lblD", &s.lblD},
                                                           {"lblPrev", &s.lblPrev},
                                                           {"lblP2", &s.lblP2},
                                                           {"pnlAlphaTails", &s.pnlAlphaTails},
                                                           {"pnlAI", &s.pnlAI},
                                                           {"SSPanel10", &s.SSPanel10},
                                                           {"lblDerived", &s.lblDerived},
                                                           {"pnlDerived", &s.pnlDerived},
                                                           {"pnlStatus", &s.pnlStatus},
                                                           {"pnlNoticeTitle", &s.pnlNoticeTitle},
                                                           {"pnlNotice", &s.pnlNotice}};
    for (const auto& [name, panel] : panels)
        registry.add(name, *panel);
    for (const auto& [name, figure] : {std::pair{"pnlPower", &s.pnlPower}, {"pnlCost", &s.pnlCost}}) {
        registry.add(std::string(name) + ".Low", &figure->low);
        registry.add(std::string(name) + ".High", &figure->high);
    }
}

void addHeads(ControlRegistry& registry, const MainScreen& s) {
    for (std::size_t i = 0; i < headCount; ++i) {
        registry.add(headRows[i].name, static_cast<const Panel&>(s.heads[i]));
        registry.add(std::string(headRows[i].name) + ".Column", &s.heads[i].column);
    }
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

MainScreen::MainScreen() {
    pnlAI.Visible = false;
    pnlCost.Caption = "Cost = n/a";
    pnlCost.number = "n/a";
    pnlPower.name = "Power";
    pnlPower.high = "100%";
    pnlCost.name = "Cost";
    for (const Field& field : fieldBook()) {
        if (!field.cell.stem.empty())
            fields.push_back({&field, {}});
    }
    for (std::size_t i = 0; i < columnCount; ++i) {
        columns[i].key = columnRows[i].key;
        columns[i].heading.Caption = columnRows[i].heading;
    }
    for (std::size_t i = 0; i < headCount; ++i) {
        standFor(static_cast<HeadId>(i), headRows[i].column);
        heads[i].menu = headRows[i].menu;
        if (headRows[i].field != nullptr)
            heads[i].Caption = fieldOf(headRows[i].field).cell.heading;
    }
}

void MainScreen::standFor(HeadId head, ColumnId column) {
    Head& written = this->head(head);
    written.column = this->column(column).key;
    std::string text = this->column(column).heading.Caption;
    std::replace(text.begin(), text.end(), '\n', ' ');
    written.Caption = trimmed(text);
}

void MainScreen::reset() {
    std::vector<FieldCells> kept = std::move(fields);
    for (FieldCells& cells : kept)
        cells.cells.fill(Cell());
    *this = MainScreen();
    fields = std::move(kept);
}

void MainScreen::OutlineProblem(int number, const Colour& colour, std::string from, std::string to) {
    std::vector<std::string> around = cellsBetween(*this, from, to);
    const bool shown = !around.empty();
    outlines(number) = {shown, colour, std::move(from), std::move(to), std::move(around)};
}

const Cell& MainScreen::cell(std::string_view stem, int level) const {
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [&](const FieldCells& cells) { return cells.field->cell.stem == stem; });
    assert(found != fields.end());
    return (*found)(level);
}

void MainScreen::registerNames(ControlRegistry& registry) const {
    addPanels(registry, *this);
    for (const FieldCells& cells : fields)
        addCells(registry, cells);
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        registry.add(indexedName("BpnlLevel", level), BpnlLevel(level));
        registry.add(indexedName("pnlName", level), pnlName(level));
        registry.add(indexedName("pnlLevel", level), pnlLevel(level));
    }
    for (const Column& column : columns)
        registry.add(column.key, column.heading);
    addHeads(registry, *this);
    addOutlines(registry, *this);
}

const char* roleWord(LevelRole role) {
    switch (role) {
    case LevelRole::nested:
        return "Nested";
    case LevelRole::randomized:
        return "Randomized";
    case LevelRole::blocked:
        break;
    }
    return "Blocked";
}

}  // namespace lorvane
