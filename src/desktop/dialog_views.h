// The small dialogs: a heading, a line of sense, the fields, their limits, the buttons. One class serves all
// that have no table.
#pragma once

#include <functional>
#include <vector>

#include "desktop/dialog_frame.h"
#include "desktop/panel_view.h"

class QGridLayout;
class QRadioButton;

namespace lorvane::desktop {

class ElidedLabel;
class TextField;

/// Any small dialog, made from its model.
class DialogView final : public PanelView {
    Q_OBJECT

public:
    DialogView(Desk& desk, ToolPanel* panel, const Dialog& model, std::function<bool()> isOpen);

    bool isOpen() const override { return isOpen_(); }
    void sync() override;

private:
    void prepareClose() override;

    struct FieldView {
        ElidedLabel* label;
        TextField* field;
        ElidedLabel* unit;
        std::string shown;  ///< text of the model that the field shows
    };
    struct OptionView {
        const DialogOption* model;
        QRadioButton* button;
    };
    void addOptions();
    void addFields();
    void addField(QGridLayout* grid, const DialogField& model);
    void press(const DialogButton& button);
    void typeAll();
    void syncField(std::size_t number, bool opened);
    void showRefusal();
    void focusFirst();

    const Dialog& model_;
    std::function<bool()> isOpen_;
    DialogFrame frame_;
    std::vector<OptionView> options_;
    std::vector<FieldView> fields_;
    bool wasOpen_ = false;
    int openings_ = 0;
    std::string refusal_;  ///< that was shown last
};

}  // namespace lorvane::desktop
