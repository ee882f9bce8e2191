// File dialogs of the desktop.
#pragma once

#include <functional>
#include <memory>

#include <QString>

#include "platform/file_dialogs.h"
#include "qt/window_in_use.h"

namespace lorvane {

class QtFileDialogs final : public FileDialogs {
public:
    /// What to do before a dialog comes up: the windows that make way have to be gone by then.
    void beforeShowing(std::function<void()> redraw) { redraw_ = std::move(redraw); }

    /// The main window: dialogs come up over it, or over its floating window that is in use.
    void setOwner(QWidget* owner) { owner_ = std::make_unique<WindowInUse>(owner); }

    /// Starts in the folder of the file that was chosen last, at first in the user's documents. A name for
    /// saving without an ending gets the one of the filter.
    std::optional<std::string> choose(const FileDialog& dialog) override;

private:
    std::function<void()> redraw_;
    std::unique_ptr<WindowInUse> owner_;
    QString folder_;
};

}  // namespace lorvane
