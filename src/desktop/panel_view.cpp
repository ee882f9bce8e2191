// The base of the windows that accompany the main one.
#include "desktop/panel_view.h"

#include <QApplication>
#include <QScreen>
#include <QVBoxLayout>
#include <utility>

namespace lorvane::desktop {

namespace {

constexpr int titledFrame = 60;  // of the window system, on a screen as high as it can be

}  // namespace

PanelView::PanelView(Desk& desk, ToolPanel* panel, const std::string& name)
    : QObject(panel), desk_(desk), panel_(panel), name_(name), window_(windowNamed(name)) {
    panel->setObjectName(QString::fromStdString(name));
    // A window that opens by itself leaves the keyboard where it is, and a held arrow held.
    panel->setAttribute(Qt::WA_ShowWithoutActivating);
    connect(panel, &ToolPanel::closeRequested, this, &PanelView::requestClose);
}

void PanelView::requestClose() {
    prepareClose();
    desk_.close(name_);
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

bool PanelView::wasAskedAgain() {
    const int asked = window_ ? desk_.design().windows().asked(*window_) : 0;
    return asked > std::exchange(asked_, asked);
}

void PanelView::hide() {
    const QWidget* focus = QApplication::focusWidget();
    const bool hadKeyboard = focus == nullptr || focus->window() == panel_ || panel_->isAncestorOf(focus);
    stage_->hide(*this);
    emit gone(hadKeyboard);
}

// A docked panel is in nobody's way while the program has the floating ones away.
bool PanelView::isWanted() const {
    const Design& design = desk_.design();
    const bool isAway =
        window_ && design.formsAreAway() && design.windows().state(*window_) == WindowStates::withdrawn;
    return isOpen() || (isAway && stage_->standsAside(*this));
}

void PanelView::follow() {
    const bool open = isWanted();
    const bool shown = stage_->isShown(*this);
    const bool again = wasAskedAgain();
    if (open || shown)
        sync();
    if (!open && shown)
        hide();
    if (open && !shown)
        stage_->show(*this);
    else if (open && again)
        stage_->raise(*this);
    if (open && !shown)
        sync();
}

}  // namespace lorvane::desktop
