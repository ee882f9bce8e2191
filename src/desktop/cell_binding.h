// Ties a cell on the screen to its model: text, kind and words come from the model, pushes go back by name.
#pragma once

#include <string>

#include "desktop/desk.h"
#include "desktop/kit/value_cell.h"

namespace lorvane::desktop {

class Menus;

/// The names that belong to one cell.
struct CellNames {
    std::string panel;  ///< clicked for details
    std::string spin;   ///< its arrows
    std::string field;  ///< its value dialog
    std::string popup;  ///< band of its right click; empty for none
};

class CellBinding {
public:
    CellBinding(Desk& desk, Menus& menus, CellNames names, const Cell& model, ValueCell::Kind changeable,
                ValueCell* widget);

    /// Copies what has changed from the model.
    void sync();

    ValueCell* widget() const { return widget_; }
    const CellNames& names() const { return names_; }

private:
    ValueCell::Kind kind() const;
    void connectEvents(Menus& menus);
    void activate();

    Desk& desk_;
    CellNames names_;
    const Cell& model_;
    ValueCell::Kind changeable_;
    ValueCell* widget_;
};

}  // namespace lorvane::desktop
