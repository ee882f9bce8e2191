// The small dialogs: a heading, a line of sense, the fields, their limits, the buttons. One class serves all.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "desktop/panel_view.h"
#include "screen/dialog.h"

class QLabel;

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
    void addField(const DialogField& model);
    void addButtons();
    void press(const DialogButton& button);
    void syncField(std::size_t number, bool opened);
    void focusFirst();

    const Dialog& model_;
    std::function<bool()> isOpen_;
    QLabel* heading_;
    QLabel* sense_;
    QLabel* limits_;
    std::vector<FieldView> fields_;
    bool wasOpen_ = false;
};

}  // namespace lorvane::desktop
