// The menus: a row a menu with the keys of its commands.
#pragma once

#include <vector>

#include "screen/command_book.h"

namespace lorvane {

/// The menus, popups and the tool bar.
std::vector<Band> bandRows();

}  // namespace lorvane
