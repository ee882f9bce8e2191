// The base of the floating windows: what every one does as it opens, closes and follows the program.
#pragma once

#include <string>

#include "desktop/desk.h"
#include "desktop/kit/tool_panel.h"

namespace lorvane::desktop {

/// One floating window and when it is open.
class PanelView : public QObject {
    Q_OBJECT

public:
    PanelView(Desk& desk, ToolPanel* panel, const std::string& name);

    /// Whether the program has the window open.
    virtual bool isOpen() const = 0;

    /// Copies what has changed from the models into the widgets.
    virtual void sync() = 0;

    /// The window itself.
    ToolPanel* panel() const { return panel_; }

    /// Where it opens first, as shares of the screen from the left and from the top; below 0 in the middle.
    void setFirstPlace(double x, double y);

    /// Opens, closes and fills the window as the program stands.
    void follow();

protected:
    /// Makes the window one that is worked in as long as the user likes: it takes the keyboard and has any
    /// size from the smallest on. Its column has no margins.
    QVBoxLayout* makeScreen(QSize firstSize, QSize smallestSize);

    /// What has to reach the program before the window asks to be closed.
    virtual void prepareClose() {}

    Desk& desk_;

private:
    ToolPanel* panel_;
    double x_ = 0.5;
    double y_ = 0.4;
};

}  // namespace lorvane::desktop
