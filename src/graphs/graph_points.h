// Walking from point to point of a graph. Gaps are skipped, and both ends stop the walk.
#pragma once

#include <optional>

#include "graphs/graph_chart.h"

namespace lorvane {

/// A point of a line, both counted from 1.
struct GraphPoint {
    int Series = 1;
    int Point = 1;
};

/// As they look on the picture: on a reversed axis left leads to the larger value; down leads to the next
/// line of the legend.
enum class Directions { left = 1, right = 2, up = 3, down = 4 };

/// The point to mark first: the one that was marked before, where the graph has it, else the first one with a
/// power; nothing where none has.
std::optional<GraphPoint> GetInitialPoint(const DrawnGraph& graph, const GraphPoint& before);

/// The next point in a direction; the same one where there is none.
GraphPoint FindPoint(const DrawnGraph& graph, const GraphPoint& from, Directions direction);

}  // namespace lorvane
