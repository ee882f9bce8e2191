// The window that tells of the program itself.
#pragma once

#include "desktop/panel_view.h"

class QBoxLayout;

namespace lorvane::desktop {

class PushButton;

/// "frmAbout". What it tells never changes.
class AboutView final : public PanelView {
    Q_OBJECT

public:
    AboutView(Desk& desk, ToolPanel* panel);

    bool isOpen() const override { return desk_.application().about().isOpen(); }
    void sync() override;

private:
    QBoxLayout* makeHead();
    QBoxLayout* makeFact(const AboutFact& fact);
    QWidget* makeCitation(const AboutFact& fact);
    QBoxLayout* makeButtons();
    void press(const char* button) { desk_.click(std::string("frmAbout.") + button); }

    PushButton* close_;
    bool wasOpen_ = false;
};

}  // namespace lorvane::desktop
