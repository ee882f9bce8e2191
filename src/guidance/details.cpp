// The window of the details.
#include "guidance/details.h"

#include <optional>

#include "base/names.h"
#include "guidance/detail_texts.h"

namespace lorvane {

namespace {

constexpr Colour restingPaper{255, 255, 210};

struct ColumnItem {
    const char* column;
    DetailItem item;
};

constexpr ColumnItem columnItems[] = {
    {"colBlocked", DetailItem::design}, {"colLevels", DetailItem::levels},
    {"colUnits", DetailItem::units},    {"colReplicates", DetailItem::population},
    {"colICC", DetailItem::icc},        {"colMSpan", DetailItem::span},
    {"colTauSq", DetailItem::tauSq},    {"colDSpan", DetailItem::effects},
    {"colOmega", DetailItem::effects},  {"colModel", DetailItem::model},
    {"colRsq", DetailItem::covariates}, {"colCost", DetailItem::costs},
    {"colES", DetailItem::effect}};

struct CellItem {
    const char* panel;
    DetailItem item;
};

constexpr CellItem cellItems[] = {
    {"pnlLevel", DetailItem::design},   {"pnlName", DetailItem::levels}, {"pnlNT", DetailItem::units},
    {"pnlNC", DetailItem::units},       {"pnlNB", DetailItem::units},    {"pnlICC", DetailItem::icc},
    {"pnlMRange", DetailItem::span},    {"pnlTauSq", DetailItem::tauSq}, {"pnlDRange", DetailItem::effects},
    {"pnlOmega", DetailItem::effects},  {"pnlModel", DetailItem::model}, {"pnlQ", DetailItem::covariates},
    {"pnlRsq", DetailItem::covariates}, {"pnlCostT", DetailItem::costs}, {"pnlCostC", DetailItem::costs},
    {"pnlCostB", DetailItem::costs}};

std::optional<DetailText> textOf(const Study& s, DetailItem item, int row) {
    switch (item) {
    case DetailItem::levels:
        return levelsText(s);
    case DetailItem::units:
        return unitsText(s, row);
    case DetailItem::effect:
        return GetTextES(s);
    default:
        return std::nullopt;
    }
}

std::string joined(const std::vector<std::string>& paragraphs) {
    std::string text;
    for (const std::string& paragraph : paragraphs)
        text += (text.empty() ? "" : "\n\n") + paragraph;
    return text;
}

}  // namespace

Details::Details(Design& design) : design_(design) {
    rest();
    design_.follow(RefreshFollower::details, [this] { refresh(); });
}

// Item 0: nothing has been asked for.
void Details::rest() {
    pnlCover_.Visible = true;
    pnlCover_.BackColor = restingPaper;
    pnlCover_.Caption = "Click any item on the main screen\nto see details for that item";
    title_.Caption.clear();
    text_.Caption.clear();
    tabs_.clear();
}

void Details::fill() {
    const Study& s = design_.study();
    const auto text = textOf(s, item_, row_);
    if (!text)
        return;
    pnlCover_.Visible = false;
    title_.Caption = text->title;
    text_.Caption = joined(text->paragraphs);
    tabs_.clear();
    for (int level = s.NumLevels; item_ == DetailItem::units && level >= 1; --level)
        tabs_.push_back(s.txtName(level));
}

// An item on a level that is gone falls back to nothing.
void Details::refresh() {
    if (row_ > design_.study().NumLevels) {
        item_ = DetailItem::none;
        row_ = 0;
    }
    if (item_ == DetailItem::none)
        rest();
    else
        fill();
}

void Details::GetDetails(DetailItem item, int row) {
    if (item != DetailItem::none && !textOf(design_.study(), item, row))
        return;
    item_ = item;
    row_ = row;
    refresh();
}

void Details::open(DetailItem item, int row) {
    GetDetails(item, row);
    design_.SynchForms(WindowId::frmDetails, WindowAction::open);
}

void Details::toggle() {
    const bool isOpen = design_.windows().state(WindowId::frmDetails) == WindowStates::open;
    design_.SynchForms(WindowId::frmDetails, isOpen ? WindowAction::withdrawForGood : WindowAction::open);
}

void Details::registerNames(ControlRegistry& registry) const {
    registry.add("frmDetails.Title", title_);
    registry.add("frmDetails.xDesc", text_);
    registry.add("frmDetails.pnlCover", pnlCover_);
}

void Details::registerEvents(EventRegistry& events) {
    events.onTool("gfrmDetails", [this] { toggle(); });
    events.onClick("frmDetails.Command1",
                   [this] { design_.SynchForms(WindowId::frmDetails, WindowAction::withdrawForGood); });
    for (const ColumnItem& column : columnItems) {
        events.onTool(std::string("Show details ") + column.column,
                      [this, &column] { open(column.item, 0); });
        events.onClick(column.column, [this, &column] { GetDetails(column.item, 0); });
    }
    for (const CellItem& cell : cellItems) {
        for (int level = lowestLevel; level <= highestLevel; ++level)
            events.onClick(indexedName(cell.panel, level),
                           [this, &cell, level] { GetDetails(cell.item, level); });
    }
    for (const StripCellName& cell : stripCells)
        events.onClick(std::string(cell.panel), [this] { GetDetails(DetailItem::effect, 0); });
    for (int level = lowestLevel; level <= highestLevel; ++level)
        events.onClick(indexedName("frmDetails.tabDetails", level),
                       [this, level] { GetDetails(item_, level); });
}

}  // namespace lorvane
