// Pens and signs of the lines of a chart. Heavy to include.
#pragma once

#include <qcustomplot.h>

#include "qt/chart_look.h"

namespace lorvane {

enum class ChartScales { power, cost };

QPen linePen(const ChartLook& look, const ChartStroke& stroke, ChartScales scale);

/// The sign of a line: filled on power, hollow on cost. A line without one has none.
QCPScatterStyle lineSign(const ChartLook& look, const ChartStroke& stroke, ChartScales scale);

/// What a single point between two gaps shows.
QCPScatterStyle loneSign(const ChartLook& look, const ChartStroke& stroke, ChartScales scale);

}  // namespace lorvane
