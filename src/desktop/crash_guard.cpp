// Keeps a picture of unsaved work aside.
#include "desktop/crash_guard.h"

#include <utility>

namespace lorvane::desktop {

CrashGuard::CrashGuard(Desk& desk, UnsavedStore& store, int interval) : desk_(desk), store_(store) {
    timer_.setSingleShot(true);
    timer_.setInterval(interval);
    writer_.setMaxThreadCount(1);
    connect(&timer_, &QTimer::timeout, this, &CrashGuard::keepPicture);
    connect(&desk_, &Desk::shown, this, &CrashGuard::follow);
}

// A saved study needs no picture; a changed one gets one when the time has come.
void CrashGuard::follow() {
    const BroughtBack before = std::exchange(broughtBack_, desk_.application().broughtBack());
    if (broughtBack_ == BroughtBack::letGo && before != BroughtBack::letGo)
        leavePicture();
    if (desk_.session().isAsSaved())
        forget();
    else if (!timer_.isActive())
        timer_.start();
}

void CrashGuard::keepPicture() {
    std::optional<UnsavedStudy> study = desk_.application().unsavedStudy();
    if (!study)
        forget();
    if (!study || study == kept_)
        return;
    kept_ = std::move(study);
    mayHold_ = true;
    writer_.start([this, picture = *kept_] {
        try {
            store_.keep(picture);
        } catch (...) {
            // The program works without a picture; the next change brings another.
        }
    });
}

void CrashGuard::forget() {
    timer_.stop();
    if (!mayHold_)
        return;
    mayHold_ = false;
    kept_.reset();
    writer_.start([this] { store_.drop(); });
}

// The study on the screen needs a picture of its own then.
void CrashGuard::leavePicture() {
    timer_.stop();
    mayHold_ = false;
    kept_.reset();
    writer_.start([this] { store_.leave(); });
}

void CrashGuard::finish() {
    disconnect(&desk_, nullptr, this, nullptr);
    if (desk_.application().broughtBack() == BroughtBack::onScreen)
        leavePicture();
    else
        forget();
    writer_.waitForDone();
}

}  // namespace lorvane::desktop
