// Placing of floating windows.
#include "desktop/floating_stage.h"

#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>
#include <QWidget>
#include <algorithm>

#include "desktop/in_sight.h"
#include "desktop/panel_view.h"

namespace lorvane::desktop {

namespace {

constexpr int titleHeight = 30;  // of a frame that the window system has not drawn yet
constexpr int inset = 40;        // from the corner of the main window
constexpr int gripped = 40;      // of a window has to be on a screen for the pointer to grip it

QSize framed(const QWidget& widget) {
    const bool hasFrame = widget.isVisible() && widget.frameGeometry() != widget.geometry();
    return hasFrame ? widget.frameGeometry().size() : widget.size() + QSize(0, titleHeight);
}

// What a window in a place has to leave in sight. A dialog stands over the window, as near as it can.
Surroundings sightFor(FirstPlace place, const QWidget& mainWindow) {
    Surroundings around = surroundingsOf(mainWindow);
    if (place == FirstPlace::clearSight)
        return around;
    around.window = {};
    around.results.clear();
    if (place == FirstPlace::centre)
        around.pointedAt.clear();
    return around;
}

void placeFirst(QWidget& floating, const QWidget& mainWindow, FirstPlace place) {
    const QRect window = mainWindow.frameGeometry();
    const QSize size = framed(floating);
    const QPoint corner(window.right() - size.width() - inset, window.top() + inset);
    const QPoint middle = window.center() - QPoint(size.width() / 2, size.height() / 2);
    const QPoint wanted = place == FirstPlace::clearSight ? corner : middle;
    floating.move(freePlace(size, sightFor(place, mainWindow), wanted));
}

bool coversWhatCounts(const ToolPanel& panel, const QWidget& mainWindow, FirstPlace place) {
    const QRect there(panel.place().value_or(QPoint()), framed(panel));
    return coveredArea(there, sightFor(place, mainWindow).pointedAt) > 0;
}

bool isOnScreen(const QPoint& corner) {
    const QList<QScreen*> screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
        return screen->availableGeometry().adjusted(0, 0, -gripped, -gripped).contains(corner);
    });
}

}  // namespace

void placeClear(QWidget& floating, const QWidget& mainWindow) {
    placeFirst(floating, mainWindow, FirstPlace::clearSight);
}

void keepClear(QWidget& floating, const QWidget& mainWindow) {
    const Surroundings around = surroundingsOf(mainWindow);
    const int below = floating.frameGeometry().bottom() - around.screen.bottom();
    if (below > 0)
        floating.move(floating.x(), std::max(around.screen.top(), floating.y() - below));
    if (coveredArea(floating.frameGeometry(), around.pointedAt) == 0)
        return;
    const QPoint free = freePlace(framed(floating), around, floating.pos());
    if (coveredArea(QRect(free, framed(floating)), around.pointedAt) == 0)
        floating.move(free);
}

bool FloatingStage::isShown(const PanelView& view) const { return view.panel()->isVisible(); }

void FloatingStage::show(PanelView& view) {
    ToolPanel& panel = *view.panel();
    if (panel.content()->sizeConstraint() == QLayout::SetFixedSize)
        panel.adjustSize();
    if (!panel.place() || !isOnScreen(*panel.place()) || coversWhatCounts(panel, mainWindow_, place_)) {
        placeFirst(panel, mainWindow_, place_);
        panel.setPlace(panel.pos());
    }
    panel.show();
    // A window that is there to be answered takes the keyboard.
    if (!panel.testAttribute(Qt::WA_ShowWithoutActivating))
        panel.activateWindow();
}

void FloatingStage::hide(PanelView& view) { view.panel()->hide(); }

void FloatingStage::raise(PanelView& view) {
    view.panel()->raise();
    if (!view.panel()->testAttribute(Qt::WA_ShowWithoutActivating))
        view.panel()->activateWindow();
}

}  // namespace lorvane::desktop
