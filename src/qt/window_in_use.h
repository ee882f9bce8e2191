// Which window of the program a person is at: over it dialogs come up, and to it the keyboard goes back.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace lorvane {

/// Follows the keyboard through a main window and its floating windows.
class WindowInUse final : public QObject {
public:
    explicit WindowInUse(QWidget* main);

    /// The window that had the keyboard last, or the main one where that is no longer shown.
    QWidget* window() const;

private:
    QPointer<QWidget> main_;
    QPointer<QWidget> last_;
};

/// Gives the keyboard to a window once its dialog is gone: window systems give that of a floating window to
/// the main one. Nothing for a window that is gone too.
void giveKeyboard(QWidget* window);

}  // namespace lorvane
