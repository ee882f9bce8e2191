// Power and cost over the values of one variable or two, computed by the one engine.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "graphs/graph_intervals.h"
#include "graphs/graph_variables.h"
#include "platform/controls.h"
#include "platform/progress.h"
#include "session/study_trial.h"

namespace lorvane {

/// The values of a series by slot: slot 0 holds how many there are, slots 1 to 5 hold them.
using LineValues = std::array<double, mostLines + 1>;

/// What a graph is to vary.
struct GraphRequest {
    GraphVariable XVar;
    GraphVariable LVar;  ///< none: one line
    XRange range;
    LineValues lines{};

    /// Lines of the graph: 1 where there are no two values for a series.
    int NumLines() const { return LVar && lines[0] >= 2 ? static_cast<int>(lines[0]) : 1; }
    bool hasSeries() const { return NumLines() >= 2; }
};

// Rows of the table. Line j stands in row powerRow + j and, with its cost, in row costRow + j.
namespace GraphRows {
inline constexpr int powerHead = 1;
inline constexpr int powerX = 2;
inline constexpr int power = 3;
inline constexpr int costHead = 11;
inline constexpr int costX = 12;
inline constexpr int cost = 13;
inline constexpr int count = 19;
}  // namespace GraphRows

/// The answer: a cell a point and line, in columns 1 to Points; column 0 names the rows.
struct GraphTable {
    Intervals axis;
    int NumLines = 1;
    std::int32_t GraphMaxCost = 0;  ///< the largest cost of a valid point
    Grid cells;
    bool stopped = false;        ///< the user asked to stop; the cells are not all there
    bool drawnByItself = false;  ///< nothing of the range by hand is valid, so it was chosen automatically

    /// The number in a cell; nothing where it is empty.
    std::optional<double> number(int row, int column) const;
};

/// The axis that a request gets: the series stands at the mean of its values meanwhile. Throws
/// ArithmeticFault.
Intervals axisOf(StudyTrial trial, const GraphRequest& request);

/// Fills the table. The watcher is asked after every point whether to go on. Throws ArithmeticFault.
GraphTable GraphCompute(StudyTrial trial, const GraphRequest& request, Progress& progress);

}  // namespace lorvane
