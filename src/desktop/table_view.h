// A raw table of the program, only to be read.
#pragma once

#include <functional>

#include "desktop/panel_view.h"

class QTableWidget;

namespace lorvane::desktop {

class TableView final : public PanelView {
    Q_OBJECT

public:
    TableView(Desk& desk, ToolPanel* panel, const std::string& name, const char* title, const Grid& grid,
              std::function<bool()> isOpen);

    bool isOpen() const override { return isOpen_(); }
    void sync() override;

private:
    const Grid& grid_;
    std::function<bool()> isOpen_;
    QTableWidget* table_;
};

}  // namespace lorvane::desktop
