// What an item of the study screen means for the study at hand, in full sentences.
#pragma once

#include <string>
#include <vector>

#include "engine/study.h"

namespace lorvane {

struct DetailText {
    std::string title;
    std::vector<std::string> paragraphs;
};

/// The levels of the study.
DetailText levelsText(const Study& study);

/// The number of units of a level, 1 to NumLevels; of all levels for level 0.
DetailText unitsText(const Study& study, int level);

/// The effect size.
DetailText GetTextES(const Study& study);

}  // namespace lorvane
