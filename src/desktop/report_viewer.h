// The viewer of the report: menus and tool bar, the bar for finding, the pages, the status line.
#pragma once

#include "desktop/panel_view.h"

namespace lorvane::desktop {

class ElidedLabel;
class Menus;
class ReportFind;
class ReportPages;

/// "frmPrint".
class ReportViewer final : public PanelView {
    Q_OBJECT

public:
    ReportViewer(Desk& desk, ToolPanel* panel);

    bool isOpen() const override;
    void sync() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addStatus();
    void syncPages();
    void syncFocus();

    const ReportScreen& model() const { return desk_.application().report(); }

    Menus* menus_;
    ReportFind* find_;
    ReportPages* pages_;
    ElidedLabel* status_;
    int revision_ = 0;  ///< of the report that is shown
    bool wasOpen_ = false;
    bool wasFinding_ = false;
};

}  // namespace lorvane::desktop
