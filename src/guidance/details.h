// The window of the details: says what the item that was clicked means, and follows the study.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/control_registry.h"
#include "platform/event_registry.h"
#include "screen/design.h"
#include "screen/part.h"

namespace lorvane {

/// Items of the study screen that can be asked for.
enum class DetailItem : int {
    none = 0,
    design = 1,
    levels = 2,
    units = 3,
    icc = 4,
    span = 5,
    tauSq = 6,
    effects = 7,
    population = 8,
    model = 9,
    covariates = 10,
    costs = 11,
    effect = 12
};

class Details final : public Part {
public:
    /// The screen must outlive it.
    explicit Details(Design& design);

    /// Remembers item and row (a level, 0 for a whole column) and fills the window. An item that has no text
    /// shows what is shown at rest; the population leaves the window as it was.
    void GetDetails(DetailItem item, int row);

    /// The details of a field, whether the window is open or not.
    void tellOf(FieldRef field);

    /// Opens the window with the details of a column by its key, "colICC", or of a field; opens or closes it.
    void openColumn(std::string_view column);
    void openField(FieldRef field);
    void open();
    void toggle();

    void follow(const Changed&) override { refresh(); }

    void registerNames(ControlRegistry& registry) const override;
    void registerEvents(EventRegistry& events) override;

    const Panel& title() const { return title_; }
    const Panel& text() const { return text_; }
    bool isAtRest() const { return pnlCover_.Visible; }
    const Panel& cover() const { return pnlCover_; }
    const Panel& hint() const { return hint_; }
    const Button& closeButton() const { return close_; }
    const Option& tab(int level) const { return tabDetails_(level); }

    /// The captions of the tabs, the top level first.
    std::vector<std::string> tabs() const;
    int currentTab() const { return row_; }

private:
    void openBy(DetailItem item, int row);
    void refresh();
    void rest();
    void fill();
    void showTabs();

    Design& design_;
    DetailItem item_ = DetailItem::none;
    int row_ = 0;
    Panel title_;
    Panel text_;
    Panel yDesc_;  ///< the second text area; no item of this screen fills it
    Panel pnlCover_;
    Panel hint_{"Click any item on the main screen"};  ///< below a text
    Button close_{"Close"};
    PerLevel<Option> tabDetails_;
};

}  // namespace lorvane
