// The study in words: its title, its levels in one sentence, and the quiet lines under power and cost.
#pragma once

#include <string>
#include <vector>

#include "engine/study.h"

namespace lorvane {

/// "Three-level hierarchical design", "Two-level randomized-block design".
std::string designTitle(const Study& study);

/// "Students within classes within schools. Schools are randomized."
std::string designSentence(const Study& study);

/// Whether the study's power reaches the required one; empty without a power.
std::string powerNote(const Study& study);

/// What stands there without a power, where cells at fault are outlined.
inline constexpr const char* outlinedValuesNote =
    "Power is shown again as soon as the outlined values fit together.";

/// The units of every level in the whole study, the top level first: "30 schools, 90 classes".
std::string unitsNote(const Study& study);

/// Names joined as in a sentence: "a", "a and b", "a, b and c".
std::string joinedNames(const std::vector<std::string>& names);

}  // namespace lorvane
