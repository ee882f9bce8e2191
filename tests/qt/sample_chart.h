// A chart with straight lines, so that a test knows where everything is.
#pragma once

#include "platform/chart.h"

namespace lorvane {

/// Power runs from 0.1 to 0.6, each line a tenth above the one before; cost from 100 to 300.
inline ChartContent sampleChart(int lines = 2, int points = 11) {
    ChartContent chart;
    chart.x = {"Number of schools", true, 2, 2.0 + points - 1};
    chart.y = {"Power (solid line)", true, 0, 1};
    chart.y2 = {"Cost (dotted line)", true, 0, 500};
    chart.groups.resize(2);
    for (int point = 0; point < points; ++point)
        for (ChartGroup& group : chart.groups)
            group.x.push_back(2 + point);
    for (int line = 0; line < lines; ++line) {
        ChartLine power{"line " + std::to_string(line + 1), {}};
        ChartLine cost;
        for (int point = 0; point < points; ++point) {
            const double share = static_cast<double>(point) / (points - 1);
            power.y.emplace_back(0.1 + 0.1 * line + 0.5 * share);
            cost.y.emplace_back(100 + 200 * share);
        }
        chart.groups[0].lines.push_back(power);
        chart.groups[1].lines.push_back(cost);
    }
    return chart;
}

}  // namespace lorvane
