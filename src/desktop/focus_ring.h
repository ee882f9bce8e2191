// The keyboard's way round the main window and what accompanies it.
#pragma once

#include <vector>

#include <QObject>
#include <QPointer>
#include <QWidget>

class QMainWindow;

namespace lorvane::desktop {

class PanelDock;
class PanelView;

/// F6 and Shift+F6 go round the main window and all open panels and windows. A panel that goes gives the
/// keyboard back to the value in the main window that had it last.
class FocusRing final : public QObject {
    Q_OBJECT

public:
    explicit FocusRing(QMainWindow& window);

    /// A view with its dock, or null for one that always floats. They come round in the order of adding.
    void add(PanelView& view, PanelDock* dock);

signals:
    /// Another value of the main window has the keyboard.
    void movedInMainWindow();

private:
    struct Stop {
        PanelView* view;
        PanelDock* dock;
    };
    QWidget* frameOf(const Stop& stop) const;
    std::vector<Stop> open() const;
    void go(int direction);
    void enter(const Stop& stop);
    void giveBack();
    void giveBackAfter(const PanelView& view, const PanelDock* dock);
    void noteFocus(QWidget* now);

    QMainWindow& window_;
    std::vector<Stop> stops_;
    QPointer<QWidget> last_;    ///< in the middle of the main window
    QPointer<QWidget> recent_;  ///< there or in a dock
};

}  // namespace lorvane::desktop
