// The dialog of the limits of risks: a row a level with two limits and what they imply.
#pragma once

#include <vector>

#include "desktop/dialog_frame.h"
#include "desktop/panel_view.h"
#include "screen/limits_dialog.h"

class QGridLayout;

namespace lorvane::desktop {

class ElidedLabel;
class EntryCell;
class NumberLabel;

class LimitsView final : public PanelView {
    Q_OBJECT

public:
    LimitsView(Desk& desk, ToolPanel* panel);

    bool isOpen() const override { return model_.dialog().open; }
    void sync() override;

private:
    struct Row {
        int level;
        QWidget* line;  ///< above it
        ElidedLabel* name;
        EntryCell* lower;
        EntryCell* upper;
        std::vector<NumberLabel*> implied;
    };
    void addHeads(QGridLayout* grid);
    void addRow(QGridLayout* grid, int level);
    QWidget* addLine(QGridLayout* grid, int row);
    EntryCell* addCell(const DialogField& field);
    void syncRow(const Row& row);
    void showRefusal();
    static void syncCell(EntryCell& cell, const DialogField& field);
    void press(const DialogButton& button) { desk_.click(button.control); }
    bool eventFilter(QObject* watched, QEvent* event) override;

    const LimitsDialog& model_;
    DialogFrame frame_;
    std::vector<Row> rows_;
    bool wasOpen_ = false;
    int openings_ = 0;
    std::string refusal_;  ///< that was shown last
};

}  // namespace lorvane::desktop
