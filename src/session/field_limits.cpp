// The range of numbers that a field takes.
#include "session/field_limits.h"

#include "base/number_text.h"

namespace lorvane {

bool FieldLimits::holds(double value) const {
    const bool aboveLow = lowInclusive ? value >= low : value > low;
    const bool belowHigh = highInclusive ? value <= high : value < high;
    return aboveLow && belowHigh;
}

std::string FieldLimits::words() const {
    return std::string(lowInclusive ? "from " : "above ") + shortestText(low) +
           (highInclusive ? " to " : (lowInclusive ? " to below " : " and below ")) + shortestText(high);
}

}  // namespace lorvane
