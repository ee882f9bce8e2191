// Pens and signs of the lines of a chart.
#include "qt/chart_strokes.h"

namespace lorvane {

namespace {

// A dash of nearly no length with round ends is a dot.
const QList<qreal> dots = {0.01, 2.49};

constexpr double powerSign = 8;
constexpr double costSign = 5.5;
constexpr double powerDot = 6;
constexpr double costDot = 3;
constexpr double signLine = 1.3;
constexpr double crossLine = 2;

QCPScatterStyle::ScatterShape shapeOf(ChartSigns sign) {
    switch (sign) {
    case ChartSigns::disc:
        return QCPScatterStyle::ssCircle;
    case ChartSigns::square:
        return QCPScatterStyle::ssSquare;
    case ChartSigns::diamond:
        return QCPScatterStyle::ssDiamond;
    case ChartSigns::triangle:
        return QCPScatterStyle::ssTriangle;
    case ChartSigns::cross:
        return QCPScatterStyle::ssCross;
    case ChartSigns::none:
        break;
    }
    return QCPScatterStyle::ssNone;
}

}  // namespace

QPen linePen(const ChartLook& look, const ChartStroke& stroke, ChartScales scale) {
    const bool cost = scale == ChartScales::cost;
    const double width = cost ? look.costWidth : look.powerWidth;
    QPen pen(stroke.colour, width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    if (cost && look.dottedCost) {
        pen.setDashPattern(dots);
        pen.setCapStyle(Qt::RoundCap);
    } else if (!stroke.dashes.isEmpty()) {
        QList<qreal> inWidths;
        for (const qreal length : stroke.dashes)
            inWidths << length / width;
        pen.setDashPattern(inWidths);
    }
    return pen;
}

QCPScatterStyle lineSign(const ChartLook& look, const ChartStroke& stroke, ChartScales scale) {
    const bool power = scale == ChartScales::power;
    const bool cross = stroke.sign == ChartSigns::cross;
    const QPen pen(stroke.colour, power && cross ? crossLine : signLine);
    return {shapeOf(stroke.sign), pen, power ? stroke.colour : look.ground, power ? powerSign : costSign};
}

QCPScatterStyle loneSign(const ChartLook& look, const ChartStroke& stroke, ChartScales scale) {
    if (stroke.sign != ChartSigns::none)
        return lineSign(look, stroke, scale);
    const double size = scale == ChartScales::power ? powerDot : costDot;
    return {QCPScatterStyle::ssCircle, QPen(stroke.colour, 1), stroke.colour, size};
}

}  // namespace lorvane
