// All floating windows of the study screen: each shows its models while its state in the registry is open.
#pragma once

#include <memory>
#include <vector>

#include "desktop/docks.h"
#include "desktop/floating_stage.h"
#include "desktop/focus_ring.h"
#include "desktop/guide_pointer.h"
#include "desktop/panel_view.h"

namespace lorvane::desktop {

class MainWindow;

/// Makes every window that accompanies the main one once, hidden, and keeps it.
class Panels : public QObject {
    Q_OBJECT

public:
    Panels(Desk& desk, MainWindow& window);

    /// Opens, closes and fills them all as the program stands.
    void follow();

    /// The panel of a window by its name, "frmDisplayICC"; null when there is none.
    ToolPanel* panel(const QString& name) const;

    /// Where panels dock.
    Docks& docks() { return docks_; }

private:
    template <typename View, typename... More>
    void add(FirstPlace place, More&&... more);
    void addStudyPanels();
    void addScreens();
    void addDialogs();
    void keepClear();

    Desk& desk_;
    MainWindow& window_;
    Docks docks_;
    FloatingStage floating_[3];  ///< by FirstPlace
    FocusRing ring_;
    std::vector<std::unique_ptr<PanelView>> views_;
    GuidePointer pointer_;
};

}  // namespace lorvane::desktop
