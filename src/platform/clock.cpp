// The clock of the machine.
#include "platform/clock.h"

#include <ctime>

namespace lorvane {

std::string SteadyClock::dayAndTime() const {
    const std::time_t now = std::time(nullptr);
    char text[32];
    const std::tm* local = std::localtime(&now);
    const std::size_t length =
        local == nullptr ? 0 : std::strftime(text, sizeof text, "%Y-%m-%d %H:%M", local);
    return {text, length};
}

}  // namespace lorvane
