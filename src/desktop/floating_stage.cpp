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

QPoint centredOver(const QSize& size, const QRect& window, const QRect& screen) {
    const QPoint at = window.center() - QPoint(size.width() / 2, size.height() / 2);
    return {std::clamp(at.x(), screen.left(), std::max(screen.left(), screen.right() - size.width())),
            std::clamp(at.y(), screen.top(), std::max(screen.top(), screen.bottom() - size.height()))};
}

bool isOnScreen(const QPoint& corner) {
    const QList<QScreen*> screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
        return screen->availableGeometry().adjusted(0, 0, -gripped, -gripped).contains(corner);
    });
}

}  // namespace

void placeClear(QWidget& floating, const QWidget& mainWindow) {
    const Surroundings around = surroundingsOf(mainWindow);
    const QSize size = framed(floating);
    const QPoint wanted(around.window.right() - size.width() - inset, around.window.top() + inset);
    floating.move(freePlace(size, around, wanted));
}

void keepClear(QWidget& floating, const QWidget& mainWindow) {
    const Surroundings around = surroundingsOf(mainWindow);
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
    if (!panel.place() || !isOnScreen(*panel.place())) {
        const Surroundings around = surroundingsOf(mainWindow_);
        if (place_ == FirstPlace::clearSight)
            placeClear(panel, mainWindow_);
        else
            panel.move(centredOver(framed(panel), around.window, around.screen));
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
