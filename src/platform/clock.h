// The time that passes, for what depends on how quickly one click follows another, and the time of day.
#pragma once

#include <chrono>
#include <string>

namespace lorvane {

class Clock {
public:
    using Time = std::chrono::steady_clock::time_point;

    virtual ~Clock() = default;

    /// A time that never goes back. Only differences have a meaning.
    virtual Time now() const = 0;

    /// Day and time where the machine stands, "2026-11-23 14:05".
    virtual std::string dayAndTime() const = 0;
};

/// The clock of the machine.
class SteadyClock final : public Clock {
public:
    Time now() const override { return std::chrono::steady_clock::now(); }
    std::string dayAndTime() const override;
};

}  // namespace lorvane
