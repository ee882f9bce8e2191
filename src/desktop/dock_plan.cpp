// Stacking and tabs.
#include "desktop/dock_plan.h"

#include <algorithm>
#include <cmath>

namespace lorvane::desktop {

namespace {

constexpr double mostOfColumn = 0.6;

int scaled(int length, double zoom) { return static_cast<int>(std::lround(length * zoom)); }

// A group shows one of its docks at a time, so the highest tells.
int heightOf(const DockGroup& group, const std::vector<DockHeight>& docks, int column, double zoom) {
    int highest = 0;
    for (const std::size_t dock : group.docks)
        highest = std::max(highest, docks[dock].takesRest ? scaled(leastDockHeight, zoom) : docks[dock].own);
    if (group.docks.size() > 1)
        highest += scaled(dockTabsHeight, zoom);
    return std::min(highest, static_cast<int>(mostOfColumn * column));
}

}  // namespace

std::vector<DockGroup> planDocks(const std::vector<DockHeight>& docks, int column, double zoom) {
    std::vector<DockGroup> groups;
    int used = 0;  // by the groups so far
    for (std::size_t dock = 0; dock < docks.size(); ++dock) {
        if (groups.empty() || used + scaled(leastDockHeight, zoom) <= column)
            groups.push_back({{dock}});
        else
            groups.back().docks.push_back(dock);
        used = 0;
        for (DockGroup& group : groups) {
            group.height = heightOf(group, docks, column, zoom);
            used += group.height;
        }
    }
    if (!groups.empty())
        groups.back().height = 0;
    return groups;
}

}  // namespace lorvane::desktop
