// The one failure that a computation can raise: arithmetic that cannot go on.
// Knows nothing of studies; carries the name of the routine that stopped, which no person is shown.
#pragma once

#include <cmath>
#include <initializer_list>
#include <stdexcept>
#include <string>

namespace lorvane {

/// Thrown when a formula meets a square root of a negative number, a division by zero, a NaN or an
/// overflow. Searches and graphs put their study back and let it pass; the outermost handler tells the user.
class ArithmeticFault : public std::runtime_error {
public:
    explicit ArithmeticFault(const char* routine)
        : ArithmeticFault(routine, "the values entered last", false) {}

    /// The culprit is what most likely stopped it, in words.
    ArithmeticFault(const char* routine, const std::string& culprit)
        : ArithmeticFault(routine, culprit, true) {}

    /// Name of the routine that stopped, a string literal.
    const char* routine() const noexcept { return routine_; }

    /// Whether it tells a culprit of its own.
    bool tellsCulprit() const noexcept { return tellsCulprit_; }

private:
    ArithmeticFault(const char* routine, const std::string& culprit, bool tellsCulprit)
        : std::runtime_error("The arithmetic cannot go on with these values; please modify " + culprit + "."),
          routine_(routine), tellsCulprit_(tellsCulprit) {}

    const char* routine_;
    bool tellsCulprit_;
};

/// Passes when every value is finite, and throws ArithmeticFault for the routine otherwise.
/// A routine lists its intermediate results here: a division by zero or a root of a negative number
/// always leaves an infinity or a NaN in one of them.
inline void requireFinite(const char* routine, std::initializer_list<double> values) {
    for (const double value : values) {
        if (!std::isfinite(value))
            throw ArithmeticFault(routine);
    }
}

}  // namespace lorvane
