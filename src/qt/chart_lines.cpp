// Order, gaps and ends of lines.
#include "qt/chart_lines.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace lorvane {

namespace {

constexpr double gap = std::numeric_limits<double>::quiet_NaN();
constexpr int mostSigns = 10;  ///< about so many on a line

struct Place {
    double x;
    double y;
};

std::vector<Place> inOrder(const std::vector<double>& x, const ChartLine& line) {
    std::vector<Place> places;
    for (std::size_t i = 0; i < x.size(); ++i)
        places.push_back({x[i], valueAt(line, i).value_or(gap)});
    std::stable_sort(places.begin(), places.end(),
                     [](const Place& one, const Place& other) { return one.x < other.x; });
    return places;
}

}  // namespace

void LinePoints::add(double key, double value) {
    keys << key;
    values << value;
}

std::optional<double> valueAt(const ChartLine& line, std::size_t point) {
    if (point >= line.y.size() || !line.y[point] || !std::isfinite(*line.y[point]))
        return std::nullopt;
    return line.y[point];
}

LinePoints lineWithin(const std::vector<double>& x, const ChartLine& line, const ChartAxis& axis) {
    const double hair = 1e-9 * (axis.high - axis.low);
    const auto inside = [&](double y) { return y >= axis.low - hair && y <= axis.high + hair; };
    LinePoints points;
    Place before{gap, gap};
    for (const Place& place : inOrder(x, line)) {
        const bool joined = std::isfinite(before.y) && std::isfinite(place.y);
        if (joined && inside(before.y) != inside(place.y)) {
            const double end = std::max(before.y, place.y) > axis.high + hair ? axis.high : axis.low;
            points.add(before.x + (place.x - before.x) * (end - before.y) / (place.y - before.y), end);
        }
        points.add(place.x, inside(place.y) ? place.y : gap);
        before = place;
    }
    return points;
}

LinePoints lonePoints(const LinePoints& line) {
    LinePoints lone;
    const auto missing = [&](qsizetype i) {
        return i < 0 || i == line.values.size() || std::isnan(line.values[i]);
    };
    for (qsizetype i = 0; i < line.values.size(); ++i)
        if (!missing(i) && missing(i - 1) && missing(i + 1))
            lone.add(line.keys[i], line.values[i]);
    return lone;
}

LinePoints somePoints(const LinePoints& line, std::size_t number, std::size_t lines) {
    LinePoints some;
    const qsizetype stride = (line.keys.size() + mostSigns - 1) / mostSigns;
    const auto start = static_cast<qsizetype>(number) * stride / static_cast<qsizetype>(lines);
    for (qsizetype i = start; i < line.keys.size(); i += std::max<qsizetype>(stride, 1))
        if (!std::isnan(line.values[i]))
            some.add(line.keys[i], line.values[i]);
    return some;
}

}  // namespace lorvane
