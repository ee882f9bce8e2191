// What every window of the program is to the rest of it.
#pragma once

#include "platform/control_registry.h"
#include "platform/event_registry.h"
#include "session/session.h"

namespace lorvane {

/// A part of the program with something on display. The application makes it known and tells it of changes.
class Part {
public:
    Part() = default;
    Part(const Part&) = delete;
    Part& operator=(const Part&) = delete;
    virtual ~Part() = default;

    /// Enters everything that can be read of it under its name.
    virtual void registerNames(ControlRegistry& registry) const = 0;

    /// Enters everything that can be done with it.
    virtual void registerEvents(EventRegistry& events) = 0;

    /// Brings it into step with a change of the session. A part that shows nothing of the study need not.
    virtual void follow(const Changed&) {}
};

}  // namespace lorvane
