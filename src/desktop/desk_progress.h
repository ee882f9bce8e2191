// Keeps the windows alive during a search: they repaint, Escape stops the search, and everything else that a
// user does is held off. Knows no window.
#pragma once

#include <functional>

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include "platform/progress.h"

namespace lorvane::desktop {

/// A search begins with the first call of goOn. It is over as soon as the program takes events again by
/// itself, be it for a message box, or with finish.
class DeskProgress final : public QObject, public Progress {
    Q_OBJECT

public:
    ~DeskProgress() override { finish(); }

    /// Brings the windows up to date; called before they repaint.
    void setRedraw(std::function<void()> redraw) { redraw_ = std::move(redraw); }

    /// False from Escape on until the search is over. Events are taken at most every 30 ms, so none are in a
    /// shorter search.
    bool goOn() override;

    /// The search is over: the pointer is as before, and Escape is forgotten.
    void finish();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void begin();
    void look();
    void showWaiting();

    std::function<void()> redraw_ = [] {};
    QElapsedTimer sinceStart_;
    QElapsedTimer sinceLook_;
    QBasicTimer end_;
    QPointer<QWidget> focused_;  ///< got the keyboard meanwhile and has not been told
    bool looking_ = false;
    bool waiting_ = false;
    bool stopped_ = false;
};

}  // namespace lorvane::desktop
