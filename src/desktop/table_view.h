// A raw table of the program, only to be read.
#pragma once

#include "desktop/panel_view.h"

class QTableWidget;

namespace lorvane::desktop {

/// "frmSpreadICC" or "frmSpreadTauSq".
class TableView final : public PanelView {
    Q_OBJECT

public:
    TableView(Desk& desk, ToolPanel* panel, const SmallDialogs::RawTable& model, const Grid& grid);

    bool isOpen() const override { return model_.open; }
    void sync() override;

private:
    const SmallDialogs::RawTable& model_;
    const Grid& grid_;
    QTableWidget* table_;
};

}  // namespace lorvane::desktop
