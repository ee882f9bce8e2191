// Work that may take so long and no longer.
#pragma once

#include "platform/clock.h"
#include "platform/progress.h"

namespace lorvane {

/// Asks the work to stop when the time is over, or when the progress behind it does.
class TimeLimit final : public Progress {
public:
    /// The time runs from here on.
    TimeLimit(Progress& inner, const Clock& clock, std::chrono::milliseconds limit)
        : inner_(inner), clock_(clock), end_(clock.now() + limit) {}

    bool goOn() override { return clock_.now() < end_ && inner_.goOn(); }
    void tell(double share) override { inner_.tell(share); }

private:
    Progress& inner_;
    const Clock& clock_;
    const Clock::Time end_;
};

}  // namespace lorvane
