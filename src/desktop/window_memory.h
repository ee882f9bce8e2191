// Where the main window was when the program ended. Kept with the user's other settings.
#pragma once

#include <QByteArray>

#include "platform/settings_store.h"

class QWidget;

namespace lorvane::desktop {

/// Reads and writes the place of a window: where it stands, how large it is, whether it is maximised.
class WindowMemory {
public:
    explicit WindowMemory(SettingsStore& settings) : settings_(settings) {}

    /// Brings a window that is not shown yet to the place it had, within the screens that there are now.
    /// Leaves it alone where none is known.
    void restore(QWidget& window) const;
    void save(const QWidget& window);

    /// A state of the window that only the window itself can read, by a name of its own.
    QByteArray state(const char* name) const;
    void setState(const char* name, const QByteArray& state);

private:
    SettingsStore& settings_;
};

}  // namespace lorvane::desktop
