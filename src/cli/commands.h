// The commands for people: what they print, and nothing of how options are read.
#pragma once

#include <string>
#include <vector>

#include "cli/command_words.h"

namespace lorvane {

struct PowerRequest {
    std::string study;
    std::vector<std::string> settings;  ///< FIELD=VALUE
    std::string scenario;               ///< empty: the state of the screen
    bool json = false;
};

struct NewRequest {
    std::string out;
    std::vector<std::string> settings;
    bool force = false;  ///< writes over a file that is there
};

struct ScenariosRequest {
    std::string study;
    bool json = false;
};

/// Each prints its answer and returns the exit code. Throws UseProblem, FileProblem and ArithmeticFault.
int printPower(const PowerRequest& request, const CommandLine& line);
int makeNew(const NewRequest& request, const CommandLine& line);
int printScenarios(const ScenariosRequest& request, const CommandLine& line);

}  // namespace lorvane
