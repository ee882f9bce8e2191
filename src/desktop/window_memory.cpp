// The place of a window as text.
#include "desktop/window_memory.h"

#include <QWidget>

namespace lorvane::desktop {

namespace {

constexpr const char* application = "Lorvane";
constexpr const char* section = "Window";
constexpr const char* place = "Place";

}  // namespace

QByteArray WindowMemory::state(const char* name) const {
    return QByteArray::fromBase64(
        QByteArray::fromStdString(settings_.GetSetting(application, section, name, "")));
}

void WindowMemory::setState(const char* name, const QByteArray& state) {
    settings_.SaveSetting(application, section, name, state.toBase64().toStdString());
}

void WindowMemory::restore(QWidget& window) const {
    const QByteArray known = state(place);
    if (!known.isEmpty())
        window.restoreGeometry(known);
}

void WindowMemory::save(const QWidget& window) { setState(place, window.saveGeometry()); }

}  // namespace lorvane::desktop
