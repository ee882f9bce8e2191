// Which values most likely stopped the arithmetic.
#pragma once

#include <string>

#include "engine/study.h"

namespace lorvane {

/// The level, or the effect, with the most extreme value of a study whose arithmetic cannot go on: "the
/// values of Classes". Where nothing stands out: "the values entered last".
std::string likelyCause(const Study& study);

}  // namespace lorvane
