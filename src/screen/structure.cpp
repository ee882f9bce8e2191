// The operations that change the shape of a study.
#include "screen/structure.h"

#include <algorithm>

namespace lorvane {

namespace {

constexpr int fewestLevels = 2;

const char* roleText(int level, int randomized) {
    if (level == randomized)
        return "(Randomized)";
    return level < randomized ? "(Nested)" : "(Blocked)";
}

}  // namespace

void DoRandomize(Study& study, MainScreen& screen, int level) {
    study.RandomizedLevel = level;
    for (int i = lowestLevel; i <= highestLevel; ++i) {
        study.chkMatch(i) = i > level ? 1 : 0;
        screen.pnlLevel(i).Caption = roleText(i, level);
    }
}

void ApplyNumLevels(Study& study, MainScreen& screen, int levels) {
    study.NumLevels = std::clamp(levels, fewestLevels, highestLevel);
    DoRandomize(study, screen, study.NumLevels);
}

}  // namespace lorvane
