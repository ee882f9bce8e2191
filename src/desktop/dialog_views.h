// The small dialogs: a heading, a line of sense, the fields, their limits, the buttons. One class serves all;
// what differs stands in a table.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "desktop/panel_view.h"

class QLabel;

namespace lorvane::desktop {

class PushButton;
class TextField;

struct DialogField {
    std::string control;  ///< "frmAlpha.txtAlpha"
    const TextBox* box;
    std::function<std::string()> label;
};

struct DialogButton {
    std::string control;
    const char* caption;
    bool primary;
};

struct DialogModel {
    std::string name;  ///< "frmAlpha"
    std::function<bool()> isOpen;
    std::function<std::string()> title;
    std::function<std::string()> sense;
    std::function<std::string()> limits;
    std::vector<DialogField> fields;
    std::vector<DialogButton> buttons;
};

/// The dialogs of the study screen.
std::vector<DialogModel> dialogModels(const Desk& desk);

class DialogView final : public PanelView {
    Q_OBJECT

public:
    DialogView(Desk& desk, ToolPanel* panel, DialogModel model);

    bool isOpen() const override { return model_.isOpen(); }
    void sync() override;

private:
    void prepareClose() override;

    struct FieldView {
        QLabel* label;
        TextField* field;
        std::string shown;  ///< text of the model that the field shows
    };
    void addField();
    void addButtons();
    void press(const DialogButton& button);

    DialogModel model_;
    QLabel* heading_;
    QLabel* sense_;
    QLabel* limits_;
    std::vector<FieldView> fields_;
    bool wasOpen_ = false;
};

}  // namespace lorvane::desktop
