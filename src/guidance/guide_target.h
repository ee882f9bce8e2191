// What a frame of the guide points at on the screen.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "screen/main_screen.h"

namespace lorvane {

struct GuideTarget {
    std::string name;                 ///< "colUnits", "pnlPower", "tool:Graph"; empty for nothing
    std::string column;               ///< the column whose details tell more; empty for none
    std::vector<std::string> around;  ///< the controls that are shown of it; an outline goes around them
};

/// The menu that the texts name. "popEffect" is that of a right click on the effect, whatever its metric.
std::string menuOf(std::string_view name, const MainScreen& screen);

/// The target of the name that the texts have for it. What the study does not show is left out.
GuideTarget targetOf(std::string_view name, const MainScreen& screen);

}  // namespace lorvane
