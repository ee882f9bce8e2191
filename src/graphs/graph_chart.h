// From the table of a graph to its chart: lines, axes, titles, legend, and the box that tells of a point.
#pragma once

#include "graphs/graph_state.h"
#include "session/session_state.h"

namespace lorvane {

/// A graph that was computed, with what it was asked for.
struct DrawnGraph {
    GraphRequest request;
    GraphTable table;

    GraphSubject subject() const {
        return {request.XVar, request.hasSeries() ? request.LVar : GraphVariable()};
    }
    bool hasPower(int series, int point) const;
};

/// By how much the costs of the chart are divided: 1, 1000 or 1000000, by the largest one of the table.
int costScaleOf(const GraphTable& table);

/// The end of a scale in five steps: a round number above a value.
double roundAbove(double value);

/// The chart in everything but its mark; the second line of the header is the user's own.
ChartContent chartOf(const DrawnGraph& graph, const GraphState& state, const SessionState& session,
                     const std::string& secondHeader);

/// What the box tells of a point with a power.
std::string pointDetails(const DrawnGraph& graph, const GraphState& state, const Study& study);

}  // namespace lorvane
