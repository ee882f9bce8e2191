// The texts of the guide of the graph, as one table.
#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace lorvane {

/// How a graph stands that a text is told of.
enum class GraphCase { any, byHand, automatic, series, noSeries, detailsOn, detailsOff };

/// One paragraph. "{axis}", "{series}" and "{corner}" are filled in.
struct GraphTip {
    GraphCase when;
    std::string_view text;
};

struct GraphTipFrame {
    std::string_view part;  ///< "Part 2"
    std::string_view title;
    std::string_view menu;  ///< empty for none
    std::string_view tool;  ///< by its word in the tool bar or its key; empty for none
    std::vector<GraphTip> tips;
};

/// The frames in their order.
std::span<const GraphTipFrame> graphTipFrames();

}  // namespace lorvane
