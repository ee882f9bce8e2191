// Long work that a face can watch: it repaints meanwhile, and the user may stop the work.
#pragma once

namespace lorvane {

class Progress {
public:
    virtual ~Progress() = default;

    /// Called again and again during long work, when everything on display is right; false when the user asks
    /// to stop.
    virtual bool goOn() = 0;

    /// How much is done, 0 to 1. Work that knows tells it before it asks to go on.
    virtual void tell(double /*share*/) {}
};

/// Work that nobody watches.
class NoProgress final : public Progress {
public:
    bool goOn() override { return true; }
};

}  // namespace lorvane
