// How a chart looks: its colours, its font, and how its lines are told apart. Draws nothing.
#pragma once

#include <QColor>
#include <QFont>
#include <QList>
#include <array>
#include <cstddef>

#include "platform/chart.h"

namespace lorvane {

inline constexpr std::size_t chartLines = 5;  ///< of a group, at most

/// The sign that a line carries here and there, so that it is known without its colour.
enum class ChartSigns { none, disc, square, diamond, triangle, cross };

/// What the power and the cost of a line share.
struct ChartStroke {
    QColor colour;
    ChartSigns sign = ChartSigns::none;
    QList<qreal> dashes;  ///< lengths in pixels of a dash and of the space behind it; solid without any

    bool operator==(const ChartStroke&) const = default;
};

/// All lengths are in pixels at 100 %.
struct ChartLook {
    std::array<ChartStroke, chartLines> strokes;
    double powerWidth = 2.4;
    double costWidth = 2.1;
    bool dottedCost = true;  ///< round dots; else cost has the dashes of its line
    QColor text;             ///< titles, the details, the ring at the marked point
    QColor secondText;       ///< what stands at the axes and in the legend
    QColor grid;
    QColor axis;  ///< also the lines of the boxes
    QColor ground;
    QColor focus;  ///< the ring of a chart that has the keyboard
    QFont font;    ///< the family; sizes and weights are the chart's own

    /// The look of a set on a light or on a dark ground.
    static ChartLook of(ColourSets set, bool dark);

    /// The look on white paper.
    static ChartLook paper(ColourSets set);

    /// Everything in one colour, for systems of high contrast. Dashes and signs tell lines apart.
    static ChartLook plain(const QColor& text, const QColor& ground);

    /// The font in a size and a weight.
    QFont sized(int pixels, QFont::Weight weight = QFont::Normal) const;

    bool operator==(const ChartLook&) const = default;
};

/// The size of a footer in pixels.
int footerPixels(TextSizes size);

}  // namespace lorvane
