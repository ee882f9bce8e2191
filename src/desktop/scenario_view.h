// The window of scenarios: the list and its buttons.
#pragma once

#include "desktop/panel_view.h"

class QLabel;

namespace lorvane::desktop {

class RecordTable;

/// "frmScenarios". A double click or Enter restores a scenario, and Delete deletes those selected.
class ScenarioView final : public PanelView {
    Q_OBJECT

public:
    ScenarioView(Desk& desk, ToolPanel* panel);

    bool isOpen() const override;
    void sync() override;

private:
    QWidget* makeFooter();
    void press(int button);

    RecordTable* table_;
    QLabel* count_;
    int flights_ = 0;
};

}  // namespace lorvane::desktop
