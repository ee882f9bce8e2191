// Ties a cell on the screen to its model: text, kind and words come from the model, pushes go back by name.
#pragma once

#include <string>

#include "desktop/desk.h"
#include "desktop/kit/value_cell.h"

namespace lorvane::desktop {

class Menus;

/// One cell and its field. The widget must outlive it.
class CellBinding {
public:
    /// The cell of a field on the study screen.
    CellBinding(Desk& desk, Menus& menus, FieldRef field, const Cell& model, ValueCell* widget);

    /// Copies what has changed from the model.
    void sync();

    /// What is tied together.
    ValueCell* widget() const { return widget_; }
    FieldRef field() const { return field_; }

    /// Name of the panel, "pnlNT(2)", which is clicked for details.
    const std::string& panel() const { return panel_; }

private:
    QString linkWords() const;
    void connectEvents(Menus& menus);

    Desk& desk_;
    FieldRef field_;
    std::string panel_;
    const Cell& model_;
    ValueCell* widget_;
};

}  // namespace lorvane::desktop
