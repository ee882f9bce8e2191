// Ctrl+C in a part of a window.
#include "desktop/kit/copy_key.h"

#include <QKeyEvent>
#include <QWidget>

#include <utility>

namespace lorvane::desktop {

CopyKey::CopyKey(QWidget* part, std::function<void()> copy) : QObject(part), copy_(std::move(copy)) {
    part->installEventFilter(this);
}

// A key is offered to the part before it is a shortcut of the main window.
bool CopyKey::eventFilter(QObject* watched, QEvent* event) {
    const bool isOffer = event->type() == QEvent::ShortcutOverride;
    const bool isKey = isOffer || event->type() == QEvent::KeyPress;
    if (!isKey || !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy))
        return QObject::eventFilter(watched, event);
    if (isOffer)
        event->accept();
    else
        copy_();
    return true;
}

}  // namespace lorvane::desktop
