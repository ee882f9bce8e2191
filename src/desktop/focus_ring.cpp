// The keyboard's way round the windows.
#include "desktop/focus_ring.h"

#include <QApplication>
#include <QMainWindow>
#include <QShortcut>
#include <algorithm>

#include "desktop/kit/panel_dock.h"
#include "desktop/panel_view.h"

namespace lorvane::desktop {

FocusRing::FocusRing(QMainWindow& window) : window_(window) {
    const auto addKey = [&](const QKeySequence& key, int direction) {
        auto* shortcut = new QShortcut(key, &window);
        shortcut->setContext(Qt::ApplicationShortcut);
        connect(shortcut, &QShortcut::activated, this, [this, direction] { go(direction); });
    };
    addKey(Qt::Key_F6, 1);
    addKey(Qt::SHIFT | Qt::Key_F6, -1);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, QWidget* now) { noteFocus(now); });
}

void FocusRing::add(PanelView& view, PanelDock* dock) {
    stops_.push_back({&view, dock});
    connect(&view, &PanelView::gone, this, [this, &view, dock](bool hadKeyboard) {
        if (hadKeyboard)
            giveBackAfter(view, dock);
    });
}

void FocusRing::noteFocus(QWidget* now) {
    if (now == nullptr || window_.centralWidget() == nullptr)
        return;
    const bool isInMiddle = window_.centralWidget()->isAncestorOf(now);
    if (isInMiddle || std::any_of(stops_.begin(), stops_.end(), [&](const Stop& stop) {
            return stop.dock != nullptr && stop.dock->isAncestorOf(now);
        }))
        recent_ = now;
    if (!isInMiddle)
        return;
    last_ = now;
    emit movedInMainWindow();
}

QWidget* FocusRing::frameOf(const Stop& stop) const {
    return stop.dock == nullptr ? static_cast<QWidget*>(stop.view->panel()) : stop.dock;
}

std::vector<FocusRing::Stop> FocusRing::open() const {
    std::vector<Stop> list;
    std::copy_if(stops_.begin(), stops_.end(), std::back_inserter(list),
                 [this](const Stop& stop) { return !frameOf(stop)->isHidden(); });
    return list;
}

// The main window is stop 0; the others follow.
void FocusRing::go(int direction) {
    const std::vector<Stop> list = open();
    const QWidget* focus = QApplication::focusWidget();
    const auto here = std::find_if(list.begin(), list.end(), [&](const Stop& stop) {
        const QWidget* frame = frameOf(stop);
        return focus != nullptr && (focus == frame || frame->isAncestorOf(focus));
    });
    const int count = static_cast<int>(list.size()) + 1;
    const int at = here == list.end() ? 0 : static_cast<int>(here - list.begin()) + 1;
    const int next = (at + direction + count) % count;
    if (next == 0)
        giveBack();
    else
        enter(list[static_cast<std::size_t>(next) - 1]);
}

void FocusRing::enter(const Stop& stop) {
    if (stop.dock != nullptr) {
        stop.dock->raise();
        stop.dock->takeKeyboard();
        return;
    }
    stop.view->panel()->raise();
    stop.view->panel()->activateWindow();
}

// A window that floats goes back to the value that it came from, in the main window or in a dock; a dock goes
// back to a dialog that still waits for its answer, or to the main window.
void FocusRing::giveBackAfter(const PanelView& view, const PanelDock* dock) {
    if (dock == nullptr && recent_ && recent_->isVisible() && !view.panel()->isAncestorOf(recent_)) {
        recent_->activateWindow();
        return recent_->setFocus(Qt::OtherFocusReason);
    }
    const std::vector<Stop> list = open();
    const auto floating = std::find_if(list.rbegin(), list.rend(), [&](const Stop& stop) {
        return stop.dock == nullptr && stop.view != &view;
    });
    if (dock != nullptr && floating != list.rend())
        return enter(*floating);
    giveBack();
}

void FocusRing::giveBack() {
    window_.activateWindow();
    if (last_ && last_->isVisible())
        last_->setFocus(Qt::OtherFocusReason);
}

}  // namespace lorvane::desktop
