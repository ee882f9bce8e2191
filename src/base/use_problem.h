// Wrong use by a person or a script.
#pragma once

#include <stdexcept>

namespace lorvane {

/// A name or a value that the program does not take; one sentence that names it.
class UseProblem : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace lorvane
