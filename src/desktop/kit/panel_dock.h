// A panel at the edge of the main window, or floating when the user drags it out: a title row of the
// program's own over the panel, which scrolls where it is higher than its dock. It knows no content.
#pragma once

#include <QDockWidget>

#include "desktop/kit/tool_panel.h"

class QScrollArea;

namespace lorvane::desktop {

class DockTitle;

/// The room around the content of a docked panel, at 100 %.
inline constexpr QMargins DockPadding(18, 4, 18, 16);

/// Takes a panel in. Whether it closes is for its owner to say, as with the panel itself.
class PanelDock : public QDockWidget {
    Q_OBJECT

public:
    /// The short name stands on the tab of several docks. A panel that scrolls by itself takes the height
    /// that there is; any other scrolls as a whole.
    PanelDock(ToolPanel* panel, const QString& shortName, bool scrollsItself, QWidget* owner);
    ~PanelDock() override;

    ToolPanel* panel() const { return panel_; }

    /// The height that title row and content take at a width, in pixels as shown.
    int heightFor(int width) const;

    /// The line around it while it floats.
    int frameWidth() const;

    /// A panel with nothing in it that takes the keyboard takes it itself.
    void takeKeyboard();

signals:
    /// The user asks to close the panel: by the close sign, by Escape or by the window system.
    void closeRequested();

    /// The content asks for another height.
    void contentChanged();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void addScroll();
    void limitShortcuts();
    void syncTitle();
    void syncLeastSize();

    ToolPanel* panel_;
    QString shortName_;
    DockTitle* title_;
    QScrollArea* scroll_;  ///< null for a panel that scrolls by itself
};

}  // namespace lorvane::desktop
