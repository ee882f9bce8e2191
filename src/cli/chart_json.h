// A chart as JSON, for scripts.
#pragma once

#include <nlohmann/json.hpp>

#include "graphs/graph_intervals.h"
#include "platform/chart.h"

namespace lorvane {

/// Axes, titles, groups, series and points, legend, header, footer, mark. A gap is null.
nlohmann::ordered_json chartJson(const ChartContent& chart, const Intervals& axis);

}  // namespace lorvane
