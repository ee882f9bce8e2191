// The base of the floating windows.
#include "desktop/panel_view.h"

#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

namespace lorvane::desktop {

namespace {

constexpr int frameRoom = 50;    // for the frame of the window system
constexpr int titledFrame = 60;  // the same of a screen as high as it can be

}  // namespace

PanelView::PanelView(Desk& desk, ToolPanel* panel, const std::string& name)
    : QObject(panel), desk_(desk), panel_(panel) {
    panel->setObjectName(QString::fromStdString(name));
    // A window that opens by itself leaves the keyboard where it is, and a held arrow held.
    panel->setAttribute(Qt::WA_ShowWithoutActivating);
    connect(panel, &ToolPanel::closeRequested, this, [this, name] {
        prepareClose();
        desk_.close(name);
    });
}

QVBoxLayout* PanelView::makeScreen(QSize firstSize, QSize smallestSize) {
    panel_->setAttribute(Qt::WA_ShowWithoutActivating, false);
    QVBoxLayout* column = panel_->content();
    column->setSizeConstraint(QLayout::SetDefaultConstraint);
    column->setContentsMargins(0, 0, 0, 0);
    panel_->setMinimumSize(smallestSize);
    const QSize room = panel_->screen()->availableGeometry().size() - QSize(0, titledFrame);
    panel_->resize(firstSize.boundedTo(room).expandedTo(smallestSize));
    return column;
}

void PanelView::setFirstPlace(double x, double y) {
    x_ = x;
    y_ = y;
}

// The first place of a window is a share of the screen or its middle; later it comes back where it was.
void PanelView::follow() {
    const bool open = isOpen();
    if (open || panel_->isVisible())
        sync();
    if (open == panel_->isVisible())
        return;
    if (open && !panel_->place()) {
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        if (panel_->content()->sizeConstraint() == QLayout::SetFixedSize)
            panel_->adjustSize();
        const QSize room = screen.size() - panel_->size();
        const auto at = [](double share, int size, int space) {
            const int wanted = share < 0 ? space / 2 : static_cast<int>(share * size);
            return std::max(0, std::min(wanted, space - frameRoom));
        };
        panel_->setPlace(screen.topLeft() + QPoint(at(x_, screen.width(), room.width()),
                                                   at(y_, screen.height(), room.height())));
    }
    panel_->setVisible(open);
    if (!open)
        return;
    sync();
    // A window that is there to be answered takes the keyboard.
    if (!panel_->testAttribute(Qt::WA_ShowWithoutActivating))
        panel_->activateWindow();
}

}  // namespace lorvane::desktop
