// The words for the smallest detectable effect.
#pragma once

#include <string>

#include "search/mdes_search.h"

namespace lorvane {

/// Two lines of the panel.
struct MdesLines {
    std::string first;
    std::string second;
};

/// The effect as a figure: its name and its number, set apart.
struct MdesFigure {
    std::string name;
    std::string number;
};

/// What the panel searches for.
std::string mdesPrompt(double requiredPower);

/// How a search ended, in the words of the study's metric.
MdesLines mdesLines(const Study& study, const MdesResult& result);

/// The effect of a search that found one; empty for any other.
MdesFigure mdesFigure(const Study& study, const MdesResult& result);

inline constexpr const char* problemLines[] = {"There is a problem with the design",
                                               "Please correct the error and try again"};
inline constexpr const char* changedLines[] = {"Parameters have been changed.",
                                               "Click <Compute minimum effect size> below."};
/// After a change of the required power. The spelling is the program's own.
inline constexpr const char* changedPowerLine =
    "Parameters have been changed. Click <Ccompute minimum effect size> below.";

}  // namespace lorvane
