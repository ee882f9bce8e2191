// The table of tools and bands: names, captions, tips and their order. Data only.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/tools.h"
#include "platform/window_id.h"

namespace lorvane {

std::vector<Tool> makeTools();
std::vector<Band> makeBands();

/// The tool that opens a window and is checked while it is open; empty where there is none.
std::string_view windowTool(WindowId window);

/// The tool that shows a field with a number of decimals, 1 to 4; the field by its word in the menu, "odds
/// ratio".
std::string decimalToolName(std::string_view field, int decimals);

/// The tool that sets the step of a field, "Change SD by .01".
std::string stepToolName(std::string_view field, std::string_view step);

/// The name of a tool that there is one of for every level: "{}" in the pattern stands for the level.
std::string levelTool(std::string_view pattern, int level);

}  // namespace lorvane
