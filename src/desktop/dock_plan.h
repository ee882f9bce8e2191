// How docks share the column at the right edge. Knows heights only.
#pragma once

#include <cstddef>
#include <vector>

namespace lorvane::desktop {

/// A dock as the plan sees it, in pixels as shown.
struct DockHeight {
    int own;         ///< of its title row and content
    bool takesRest;  ///< it has no height of its own and takes what is left
};

/// Docks that stand at one place, as tabs where there are several; by number.
struct DockGroup {
    std::vector<std::size_t> docks;
    int height = 0;  ///< 0 takes what is left
};

/// What a dock has at least, and the row of tabs over several, at 100 %.
inline constexpr int leastDockHeight = 180;
inline constexpr int dockTabsHeight = 32;

/// Stacks docks in their order in a column. One that would get less than the least height becomes a tab of
/// the one above it; a dock of its own height gets at most 60 % of the column; the last group takes what is
/// left.
std::vector<DockGroup> planDocks(const std::vector<DockHeight>& docks, int column, double zoom);

}  // namespace lorvane::desktop
