// What the program knows of itself.
#pragma once

#include "platform/program_facts.h"

namespace lorvane::desktop {

/// Its version and those of all libraries: as they run, where they can be asked.
ProgramFacts programFacts();

}  // namespace lorvane::desktop
