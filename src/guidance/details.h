// The window of the details: says what the item that was clicked means, and follows the study.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "guidance/detail_texts.h"
#include "platform/control_registry.h"
#include "platform/event_registry.h"
#include "screen/design.h"
#include "screen/part.h"

namespace lorvane {

class Details final : public Part {
public:
    /// The screen must outlive it.
    explicit Details(Design& design);

    /// Remembers item and row (a level, 0 for a whole column) and fills the window. No item shows what is
    /// shown at rest; the population leaves the window as it was.
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
    /// The same with its key numbers.
    const std::vector<Paragraph>& paragraphs() const { return paragraphs_; }
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
    std::vector<Paragraph> paragraphs_;
    Panel yDesc_;  ///< the second text area; it stays empty, since every text stands whole in the first
    Panel pnlCover_;
    Panel hint_{"Click any item on the main screen"};  ///< below a text
    Button close_{"Close"};
    PerLevel<Option> tabDetails_;
};

}  // namespace lorvane
