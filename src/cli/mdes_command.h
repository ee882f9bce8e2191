// The command for the smallest detectable effect.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/command_words.h"

namespace lorvane {

struct MdesRequest {
    std::string study;
    std::optional<double> power;        ///< required, 0.01 to 0.999; the study's own where it is not given
    std::vector<std::string> settings;  ///< FIELD=VALUE
    bool json = false;
};

/// Prints the effect in numbers and words and returns the exit code. Throws UseProblem, FileProblem and
/// ArithmeticFault.
int printMdes(const MdesRequest& request, const CommandLine& line);

}  // namespace lorvane
