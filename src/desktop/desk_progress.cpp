// Taking events in the middle of a search. A timer marks its end: while the search takes events timers are
// held off like all else, so it can only fire after it.
#include "desktop/desk_progress.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QTimerEvent>
#include <QWindow>

namespace lorvane::desktop {

namespace {

constexpr qint64 lookInterval = 30;  // milliseconds
constexpr qint64 waitAfter = 200;

constexpr QEvent::Type heldTypes[] = {QEvent::MouseButtonPress,
                                      QEvent::MouseButtonRelease,
                                      QEvent::MouseButtonDblClick,
                                      QEvent::MouseMove,
                                      QEvent::Wheel,
                                      QEvent::ContextMenu,
                                      QEvent::KeyPress,
                                      QEvent::KeyRelease,
                                      QEvent::ShortcutOverride,
                                      QEvent::Shortcut,
                                      QEvent::InputMethod,
                                      QEvent::DragEnter,
                                      QEvent::DragMove,
                                      QEvent::Drop,
                                      QEvent::TabletPress,
                                      QEvent::TabletMove,
                                      QEvent::TabletRelease,
                                      QEvent::TouchBegin,
                                      QEvent::TouchUpdate,
                                      QEvent::TouchEnd,
                                      QEvent::NativeGesture,
                                      QEvent::Close,
                                      QEvent::Quit,
                                      QEvent::FileOpen};

// Timers of the program would act on a study in the middle of a trial. A timer that is held off comes again.
// Those of windows belong to their painting.
bool isHeld(const QObject& watched, const QEvent& event) {
    if (event.type() == QEvent::Timer)
        return qobject_cast<const QWindow*>(&watched) == nullptr;
    return std::find(std::begin(heldTypes), std::end(heldTypes), event.type()) != std::end(heldTypes);
}

bool isEscape(const QEvent& event) {
    const bool isKey = event.type() == QEvent::KeyPress || event.type() == QEvent::ShortcutOverride;
    return isKey && static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

}  // namespace

bool DeskProgress::goOn() {
    if (looking_)
        return !stopped_;
    if (!sinceStart_.isValid())
        begin();
    if (sinceLook_.elapsed() >= lookInterval)
        look();
    return !stopped_;
}

void DeskProgress::begin() {
    sinceStart_.start();
    sinceLook_.start();
    end_.start(0, this);
}

void DeskProgress::look() {
    const QScopedValueRollback looking(looking_, true);
    if (sinceStart_.elapsed() >= waitAfter)
        showWaiting();
    redraw_();
    qApp->installEventFilter(this);
    QCoreApplication::processEvents();
    qApp->removeEventFilter(this);
    sinceLook_.start();
}

void DeskProgress::showWaiting() {
    if (!std::exchange(waiting_, true))
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

void DeskProgress::finish() {
    end_.stop();
    sinceStart_.invalidate();
    stopped_ = false;
    if (std::exchange(waiting_, false))
        QGuiApplication::restoreOverrideCursor();
    QWidget* focused = std::exchange(focused_, nullptr);
    if (focused == nullptr || !focused->hasFocus())
        return;
    QFocusEvent told(QEvent::FocusIn);
    QCoreApplication::sendEvent(focused, &told);
}

void DeskProgress::timerEvent(QTimerEvent*) { finish(); }

bool DeskProgress::eventFilter(QObject* watched, QEvent* event) {
    stopped_ = stopped_ || isEscape(*event);
    if (isHeld(*watched, *event)) {
        // An override that is taken starts no shortcut; a window that is not closed says so.
        event->setAccepted(event->type() == QEvent::ShortcutOverride);
        return true;
    }
    // A cell that gets the keyboard asks the program for its details.
    auto* widget = event->type() == QEvent::FocusIn ? qobject_cast<QWidget*>(watched) : nullptr;
    if (widget != nullptr)
        focused_ = widget;
    return widget != nullptr;
}

}  // namespace lorvane::desktop
