// The numbers of the graph as a table, only to be read.
#pragma once

#include "desktop/panel_view.h"

class QTableView;

namespace lorvane::desktop {

class GraphTableModel;

/// "frmTable".
class GraphTableView final : public PanelView {
    Q_OBJECT

public:
    GraphTableView(Desk& desk, ToolPanel* panel);

    bool isOpen() const override;
    void sync() override;

private:
    QWidget* makeButtons();
    void syncRows();

    GraphTableModel* cells_;
    QTableView* table_;
    int marked_ = 0;
};

}  // namespace lorvane::desktop
