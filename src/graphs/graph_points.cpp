// Walking from point to point of a graph.
#include "graphs/graph_points.h"

namespace lorvane {

namespace {

struct Stride {
    int lines;
    int points;
};

Stride strideOf(Directions direction, bool reversed) {
    switch (direction) {
    case Directions::left:
        return {0, reversed ? 1 : -1};
    case Directions::right:
        return {0, reversed ? -1 : 1};
    case Directions::up:
        return {-1, 0};
    case Directions::down:
        break;
    }
    return {1, 0};
}

}  // namespace

std::optional<GraphPoint> GetInitialPoint(const DrawnGraph& graph, const GraphPoint& before) {
    if (graph.hasPower(before.Series, before.Point))
        return before;
    for (int series = 1; series <= graph.table.NumLines; ++series) {
        for (int point = 1; point <= graph.table.axis.Points; ++point) {
            if (graph.hasPower(series, point))
                return GraphPoint{series, point};
        }
    }
    return std::nullopt;
}

GraphPoint FindPoint(const DrawnGraph& graph, const GraphPoint& from, Directions direction) {
    const Stride stride = strideOf(direction, graph.table.axis.Reversed);
    GraphPoint to = from;
    const auto isInside = [&] {
        return to.Series >= 1 && to.Series <= graph.table.NumLines && to.Point >= 1 &&
               to.Point <= graph.table.axis.Points;
    };
    do {
        to.Series += stride.lines;
        to.Point += stride.points;
    } while (isInside() && !graph.hasPower(to.Series, to.Point));
    return isInside() ? to : from;
}

}  // namespace lorvane
