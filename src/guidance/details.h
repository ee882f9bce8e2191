// The window of the details: says what the item that was clicked means, and follows the study.
#pragma once

#include <string>
#include <vector>

#include "platform/control_registry.h"
#include "platform/event_registry.h"
#include "screen/design.h"

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

class Details {
public:
    /// Follows the refreshes of a screen, which must outlive it.
    explicit Details(Design& design);
    Details(const Details&) = delete;
    Details& operator=(const Details&) = delete;

    /// Remembers item and row (a level, 0 for a whole column) and fills the window. An item that has no text
    /// leaves the window as it was.
    void GetDetails(DetailItem item, int row);

    void registerNames(ControlRegistry& registry) const;
    void registerEvents(EventRegistry& events);

    const Panel& title() const { return title_; }
    const Panel& text() const { return text_; }
    bool isAtRest() const { return pnlCover_.Visible; }
    const Panel& cover() const { return pnlCover_; }
    const std::vector<std::string>& tabs() const { return tabs_; }
    int currentTab() const { return row_; }

private:
    void refresh();
    void rest();
    void fill();
    void toggle();
    void open(DetailItem item, int row);

    Design& design_;
    DetailItem item_ = DetailItem::none;
    int row_ = 0;
    Panel title_;
    Panel text_;
    Panel pnlCover_;
    std::vector<std::string> tabs_;
};

}  // namespace lorvane
