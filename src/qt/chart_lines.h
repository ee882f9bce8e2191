// The points of a line as a plot draws them: in order, cut at the ends of the axis, with gaps. Knows numbers
// only.
#pragma once

#include <QVector>
#include <cstddef>
#include <vector>

#include "platform/chart.h"

namespace lorvane {

/// Not a number in `values` ends a run and begins the next.
struct LinePoints {
    QVector<double> keys;
    QVector<double> values;

    void add(double key, double value);
};

/// The value at a point, nothing in a gap or beyond the end of the line.
std::optional<double> valueAt(const ChartLine& line, std::size_t point);

/// The line with everything above and below the axis cut off.
LinePoints lineWithin(const std::vector<double>& x, const ChartLine& line, const ChartAxis& axis);

/// The points between two gaps, of which a line shows nothing.
LinePoints lonePoints(const LinePoints& line);

/// Some points of a line, at even distances: the first of `lines` begin at other points than the next, so
/// that what stands on them is seen where lines run together.
LinePoints somePoints(const LinePoints& line, std::size_t number, std::size_t lines);

}  // namespace lorvane
