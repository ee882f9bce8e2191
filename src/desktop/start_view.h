// The start screen over the main window.
#pragma once

#include "desktop/panel_view.h"

namespace lorvane::desktop {

class NoticeCard;
class StartPage;

/// "frmStart": two choices and the recent files.
class StartView final : public PanelView {
    Q_OBJECT

public:
    StartView(Desk& desk, ToolPanel* panel);

    bool isOpen() const override;
    void sync() override;

private:
    void addTexts();

    StartPage* page_;
    NoticeCard* notice_;
    bool wasOpen_ = false;
};

}  // namespace lorvane::desktop
