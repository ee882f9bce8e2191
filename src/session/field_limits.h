// The range of numbers that a field takes.
#pragma once

#include <limits>
#include <string>

namespace lorvane {

/// A range of numbers; the default is all numbers.
struct FieldLimits {
    double low = -std::numeric_limits<double>::infinity();
    bool lowInclusive = true;
    double high = std::numeric_limits<double>::infinity();
    bool highInclusive = true;

    bool holds(double value) const;
    /// "from 0 to below 1", for messages.
    std::string words() const;
};

}  // namespace lorvane
