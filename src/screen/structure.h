// The operations that change the shape of a study: number of levels and level of randomization.
#pragma once

#include "engine/study.h"
#include "screen/main_screen.h"

namespace lorvane {

/// Randomizes a level, 1 to NumLevels: levels above it are blocked, levels below it nested.
void DoRandomize(Study& study, MainScreen& screen, int level);

/// Sets the number of levels, held to 2 to 4. The randomization moves to the new top level; the values of
/// levels that fall away stay in the record.
void ApplyNumLevels(Study& study, MainScreen& screen, int levels);

}  // namespace lorvane
