// Ctrl+C in a part of a window that has something of its own to copy.
#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace lorvane::desktop {

/// While the keyboard is in the part, the key copies what the part holds, not what the main window would
/// copy. A text that is selected inside the part goes first. The part owns it.
class CopyKey : public QObject {
public:
    CopyKey(QWidget* part, std::function<void()> copy);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> copy_;
};

}  // namespace lorvane::desktop
