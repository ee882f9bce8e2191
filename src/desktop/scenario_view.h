// The window of scenarios: the list and its buttons.
#pragma once

#include <vector>

#include "desktop/panel_view.h"

class QLabel;

namespace lorvane::desktop {

class PushButton;
class RecordTable;

/// "frmScenarios". A double click or Enter restores a scenario, and Delete deletes those selected.
class ScenarioView final : public PanelView {
    Q_OBJECT

public:
    ScenarioView(Desk& desk, ToolPanel* panel);

    bool isOpen() const override;
    void sync() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* makeFooter();
    void setNarrow(bool isNarrow);
    void press(int button);

    RecordTable* table_;
    QLabel* count_;
    std::vector<PushButton*> buttons_;
    bool isNarrow_ = false;
    int flights_ = 0;
};

}  // namespace lorvane::desktop
