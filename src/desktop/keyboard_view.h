// The page of all keys.
#pragma once

#include "desktop/panel_view.h"

class QBoxLayout;
class QScrollArea;

namespace lorvane::desktop {

class PushButton;

/// "frmKeyboard". What it tells never changes; it scrolls where it is higher than the window.
class KeyboardView final : public PanelView {
    Q_OBJECT

public:
    KeyboardView(Desk& desk, ToolPanel* panel);

    bool isOpen() const override { return desk_.application().keyboard().isOpen(); }
    void sync() override;

private:
    QScrollArea* makeKeys();
    QBoxLayout* makeButtons();
    void press(const char* button) { desk_.click(std::string("frmKeyboard.") + button); }

    PushButton* close_;
    bool wasOpen_ = false;
};

}  // namespace lorvane::desktop
