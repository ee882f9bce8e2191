// The window of a small dialog around its fields: heading, sense, note, buttons. It never grows beyond the
// screen; what does not fit scrolls.
#pragma once

#include <functional>
#include <vector>

#include "desktop/kit/tool_panel.h"
#include "screen/dialog.h"

class QHBoxLayout;
class QScrollArea;
class QVBoxLayout;

namespace lorvane::desktop {

class ElidedLabel;
class PushButton;
class FieldNote;

/// Lengths are in pixels.
class DialogFrame {
public:
    /// The content of a panel, so wide. A button is pressed by its model.
    DialogFrame(ToolPanel* panel, const Dialog& model, int width,
                std::function<void(const DialogButton&)> press);

    /// Between sense and note. The owner fills it and then calls finish, so that Tab goes on to the buttons.
    QVBoxLayout* fields() const { return fields_; }
    void finish();

    /// A row of buttons at the left.
    QHBoxLayout* makeRow(const std::vector<DialogButton>& buttons);

    /// Copies the words from the model and takes the size that they need.
    void sync();

private:
    PushButton* makeButton(const DialogButton& button, bool primary);
    QHBoxLayout* makeButtons();
    void fit();

    ToolPanel* panel_;
    const Dialog& model_;
    int width_;
    std::function<void(const DialogButton&)> press_;
    QScrollArea* area_;
    QWidget* body_;
    QVBoxLayout* fields_;
    ElidedLabel* heading_;
    FieldNote* sense_;
    FieldNote* note_;
};

}  // namespace lorvane::desktop
