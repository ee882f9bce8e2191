// The small dialogs: a heading, a line of sense, the fields, their limits, the buttons. One class serves all.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "desktop/panel_view.h"
#include "screen/dialog.h"

class QLabel;
class QLayout;
class QRadioButton;

namespace lorvane::desktop {

class PushButton;
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
        QLabel* label;
        TextField* field;
        std::string shown;  ///< text of the model that the field shows
    };
    struct OptionView {
        const DialogOption* model;
        QRadioButton* button;
    };
    void addOptions();
    void addField(const DialogField& model);
    PushButton* makeButton(const DialogButton& button, bool primary);
    /// The buttons that end the dialog stand at the right, the last one being primary; others at the left.
    QLayout* makeRow(const std::vector<DialogButton>& buttons, bool ends = false);
    void press(const DialogButton& button);
    void syncField(std::size_t number, bool opened);
    void syncNote();
    void focusFirst();

    const Dialog& model_;
    std::function<bool()> isOpen_;
    QLabel* heading_;
    QLabel* sense_;
    QLabel* limits_;
    std::vector<OptionView> options_;
    std::vector<FieldView> fields_;
    bool wasOpen_ = false;
    int openings_ = 0;
};

}  // namespace lorvane::desktop
