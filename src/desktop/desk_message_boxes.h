// Message boxes of the desktop.
#pragma once

#include <functional>
#include <memory>

#include "platform/message_boxes.h"
#include "qt/window_in_use.h"

namespace lorvane::desktop {

class DeskMessageBoxes final : public MessageBoxes {
public:
    /// What to do before a message comes up: the windows that make way have to be gone by then.
    void beforeShowing(std::function<void()> redraw) { redraw_ = std::move(redraw); }

    /// The main window: messages come up over it, or over its floating window that is in use.
    void setOwner(QWidget* owner) { owner_ = std::make_unique<WindowInUse>(owner); }

    /// A formality comes up nowhere.
    Answer show(const MessageBox& message) override;

private:
    std::function<void()> redraw_;
    std::unique_ptr<WindowInUse> owner_;
};

}  // namespace lorvane::desktop
