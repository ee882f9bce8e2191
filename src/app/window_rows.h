// The windows of the registry as a menu: every one with the command that opens it, in the order of their
// numbers.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lorvane {

/// The keys of the menu of all windows.
std::vector<std::string> formKeys();

/// The window that a command of that menu closes while it is open, "frmScenarios"; empty where it closes
/// none.
std::string windowOfForm(std::string_view tool);

}  // namespace lorvane
