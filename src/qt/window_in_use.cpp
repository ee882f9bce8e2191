// Which window of the program a person is at.
#include "qt/window_in_use.h"

#include <QApplication>

namespace lorvane {

WindowInUse::WindowInUse(QWidget* main) : main_(main) {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        QWidget* window = now == nullptr ? nullptr : now->window();
        if (window != nullptr && window->windowType() == Qt::Tool && window->parentWidget() == main_)
            last_ = window;
        else if (window == main_)
            last_ = nullptr;
    });
}

QWidget* WindowInUse::window() const { return last_ && last_->isVisible() ? last_ : main_; }

void giveKeyboard(QWidget* window) {
    if (window != nullptr && window->isVisible())
        window->activateWindow();
}

}  // namespace lorvane
