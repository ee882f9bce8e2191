// Message boxes of the desktop.
#pragma once

#include <functional>

#include "platform/message_boxes.h"

class QWidget;

namespace lorvane {

class QtMessageBoxes final : public MessageBoxes {
public:
    /// What to do before a message comes up: the windows that make way have to be gone by then.
    void beforeShowing(std::function<void()> redraw) { redraw_ = std::move(redraw); }

    /// The window over which messages come up.
    void setOwner(QWidget* owner) { owner_ = owner; }

    Answer show(const MessageBox& message) override;

private:
    std::function<void()> redraw_;
    QWidget* owner_ = nullptr;
};

}  // namespace lorvane
