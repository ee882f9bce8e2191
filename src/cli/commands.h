// The commands for people: what they print, and nothing of how options are read.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "app/application.h"

namespace lorvane {

// Exit codes of the command line.
namespace ExitCodes {
inline constexpr int done = 0;
inline constexpr int noAnswer = 1;
inline constexpr int wrongUse = 2;
inline constexpr int fileFailed = 3;
}  // namespace ExitCodes

struct PowerRequest {
    std::string study;
    std::vector<std::string> settings;  ///< FIELD=VALUE
    std::string scenario;               ///< empty: the state of the screen
    bool json = false;
};

struct NewRequest {
    std::string out;
    std::vector<std::string> settings;
};

struct ScenariosRequest {
    std::string study;
    bool json = false;
};

/// Each prints its answer and returns the exit code. Throws UseProblem, FileProblem and ArithmeticFault.
int printPower(const PowerRequest& request, Application& application, std::ostream& out,
               std::ostream& errors);
int makeNew(const NewRequest& request, Application& application, std::ostream& out);
int printScenarios(const ScenariosRequest& request, Application& application, std::ostream& out);

}  // namespace lorvane
