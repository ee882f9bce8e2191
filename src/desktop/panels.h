// All floating windows of the study screen: each shows its models while its state in the registry is open.
#pragma once

#include <memory>
#include <vector>

#include "desktop/panel_view.h"

namespace lorvane::desktop {

class MainWindow;

/// Makes every floating window once, hidden, and keeps it.
class Panels : public QObject {
    Q_OBJECT

public:
    Panels(Desk& desk, MainWindow& window);

    /// Opens, closes and fills them all as the program stands.
    void follow();

    /// The floating window of a name, "frmDisplayICC"; null when there is none.
    ToolPanel* panel(const QString& name) const;

private:
    template <typename View, typename... More>
    void add(double x, double y, More&&... more);

    Desk& desk_;
    MainWindow& window_;
    std::vector<std::unique_ptr<PanelView>> views_;
};

}  // namespace lorvane::desktop
