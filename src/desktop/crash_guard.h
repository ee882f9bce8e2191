// Keeps a picture of unsaved work aside while the program runs, off the road of a click: at most one every
// few seconds, written by another thread.
#pragma once

#include <optional>

#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include "desktop/desk.h"
#include "platform/unsaved_store.h"

namespace lorvane::desktop {

/// Begins with the first unsaved change and ends with finish; the store is written by another thread. The
/// picture of a study that was brought back goes only when that study is saved.
class CrashGuard : public QObject {
    Q_OBJECT

public:
    /// Follows the desk. The time between two pictures is in milliseconds.
    CrashGuard(Desk& desk, UnsavedStore& store, int interval = 5000);

    /// The normal end of the program: nothing is left behind.
    void finish();

private:
    void follow();
    void keepPicture();
    void forget();
    void leavePicture();

    Desk& desk_;
    UnsavedStore& store_;
    QTimer timer_;
    QThreadPool writer_;  ///< one thread, so that pictures keep their order
    std::optional<UnsavedStudy> kept_;
    BroughtBack broughtBack_ = BroughtBack::none;
    bool mayHold_ = true;  ///< there may be a picture, at first one that was taken over
};

}  // namespace lorvane::desktop
