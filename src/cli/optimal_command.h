// The command for the cheapest design, and for the most power that a budget pays.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/command_words.h"

namespace lorvane {

struct OptimalRequest {
    std::string study;
    std::vector<std::string> settings;  ///< FIELD=VALUE
    std::optional<double> power;        ///< required; the study's own where it is not given
    std::optional<double> budget;       ///< asks for the most power at most at this cost
    bool told = false;                  ///< the quick search alone, without a proof
    std::vector<std::string> fixes;     ///< LEVEL=N
    std::optional<int> iterations;      ///< larger top levels that are tried; the study's own
    std::string out;                    ///< a file for the study with the sizes found; empty for none
    bool json = false;
    bool force = false;  ///< writes over a file that is there
};

/// Prints the sizes, the cost, the power and the notes, and returns the exit code. Throws UseProblem,
/// FileProblem and ArithmeticFault.
int printOptimal(const OptimalRequest& request, const CommandLine& line);

}  // namespace lorvane
