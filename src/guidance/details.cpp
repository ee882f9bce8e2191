// The window of the details.
#include "guidance/details.h"

#include <algorithm>
#include <utility>

#include "base/names.h"

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

// The item that a column stands for.
DetailItem itemOf(std::string_view column) {
    for (const ColumnItem& row : columnItems) {
        if (row.column == column)
            return row.item;
    }
    return DetailItem::none;
}

// What the strip of the effect shows beside its cells.
constexpr const char* effectPanels[] = {"pnlesOuter", "pnlExplainES", "pnldT",      "pnldW",
                                        "pnlOther",   "SSPanel10",    "pnlDerived", "lblD",
                                        "lblPrev",    "lblP2",        "lblOther",   "lblDerived"};

}  // namespace

Details::Details(Design& design) : design_(design) { rest(); }

// Item 0: nothing has been asked for.
void Details::rest() {
    pnlCover_.Visible = true;
    pnlCover_.BackColor = restingPaper;
    pnlCover_.Caption = hint_.Caption + "\nto see details for that item";
    title_.Caption.clear();
    text_.Caption.clear();
    paragraphs_.clear();
    showTabs();
}

void Details::showTabs() {
    const Study& s = design_.study();
    const std::vector<int> levels = detailLevels(s, item_);
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        Option& tab = tabDetails_(level);
        tab.Visible = std::find(levels.begin(), levels.end(), level) != levels.end();
        tab.Caption = tab.Visible ? s.txtName(level) : "";
        tab.Value = tab.Visible && level == row_;
    }
}

std::vector<std::string> Details::tabs() const {
    std::vector<std::string> names;
    for (int level = highestLevel; level >= lowestLevel; --level) {
        if (tab(level).Visible)
            names.push_back(tab(level).Caption);
    }
    return names;
}

// Without an item the window rests.
void Details::fill() {
    auto text = detailText(design_.session().state(), item_, row_);
    if (!text)
        return rest();
    pnlCover_.Visible = false;
    title_.Caption = std::move(text->title);
    text_.Caption = plainText(text->paragraphs);
    paragraphs_ = std::move(text->paragraphs);
    showTabs();
}

// An item on a level that is gone falls back to nothing.
void Details::refresh() {
    if (row_ > design_.study().NumLevels) {
        item_ = DetailItem::none;
        row_ = 0;
    }
    fill();
}

void Details::GetDetails(DetailItem item, int row) {
    if (item == DetailItem::population)
        return;
    item_ = item;
    row_ = row;
    refresh();
}

void Details::tellOf(FieldRef field) { GetDetails(itemOf(field->cell.column), field.index); }

void Details::open() { design_.SynchForms(WindowId::frmDetails, WindowAction::open); }

void Details::openColumn(std::string_view column) {
    GetDetails(itemOf(column), 0);
    open();
}

void Details::openField(FieldRef field) {
    tellOf(field);
    open();
}

// A click opens the window where there is something to tell.
void Details::openBy(DetailItem item, int row) {
    GetDetails(item, row);
    if (item != DetailItem::population && !isAtRest())
        open();
}

void Details::toggle() {
    design_.SynchForms(WindowId::frmDetails, design_.isOpen(WindowId::frmDetails)
                                                 ? WindowAction::withdrawForGood
                                                 : WindowAction::open);
}

void Details::registerNames(ControlRegistry& registry) const {
    for (const auto& [name, panel] : {std::pair{"frmDetails.Title", &title_},
                                      {"frmDetails.xDesc", &text_},
                                      {"frmDetails.yDesc", &yDesc_}}) {
        registry.add(name, *panel);
        registry.add(name, &panel->Caption);
    }
    registry.add("frmDetails.tabDetails", [this]() -> ControlValue {
        std::string names;
        for (const std::string& name : tabs())
            names += (names.empty() ? "" : "|") + name;
        return names;
    });
    registry.add("frmDetails.pnlCover", pnlCover_);
    registry.add("frmDetails.Command1", close_);
    for (int level = lowestLevel; level <= highestLevel; ++level)
        registry.add(indexedName("frmDetails.tabDetails", level), tab(level));
}

void Details::registerEvents(EventRegistry& events) {
    events.onClick("frmDetails.Command1",
                   [this] { design_.SynchForms(WindowId::frmDetails, WindowAction::withdrawForGood); });
    const auto onClick = [&](std::string control, DetailItem item, int row) {
        events.onClick(std::move(control), [this, item, row] { openBy(item, row); });
    };
    for (const ColumnItem& column : columnItems)
        onClick(column.column, column.item, 0);
    for (const char* panel : effectPanels)
        onClick(panel, DetailItem::effect, 0);
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        onClick(indexedName("pnlLevel", level), DetailItem::design, level);
        onClick(indexedName("pnlName", level), DetailItem::levels, level);
        events.onClick(indexedName("frmDetails.tabDetails", level),
                       [this, level] { GetDetails(item_, level); });
    }
    forEachField([&](FieldRef ref) {
        if (!ref->cell.stem.empty())
            onClick(ref->index == FieldIndex::none ? std::string(ref->cell.stem)
                                                   : indexedName(ref->cell.stem, ref.index),
                    itemOf(ref->cell.column), ref.index);
    });
}

}  // namespace lorvane
