// Catching and telling what an event threw.
#include "desktop/desk_application.h"

#include <QScopeGuard>

#include "platform/failure_words.h"

namespace lorvane::desktop {

namespace {

constexpr qint64 quietAfter = 10000;  // milliseconds

}  // namespace

bool DeskApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        tellLater(failureWords());
        return false;
    }
}

void DeskApplication::tellLater(const std::string& words) {
    const bool justTold = words == told_ && sinceTold_.isValid() && sinceTold_.elapsed() < quietAfter;
    if (telling_ || justTold)
        return;
    telling_ = true;
    told_ = words;
    QMetaObject::invokeMethod(
        this,
        [this, words] {
            const auto over = qScopeGuard([this] {
                telling_ = false;
                sinceTold_.start();
            });
            tell_(words);
        },
        Qt::QueuedConnection);
}

}  // namespace lorvane::desktop
