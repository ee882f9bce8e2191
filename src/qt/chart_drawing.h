// The drawing of a chart: axes, lines, marks, legend and details, on the screen and in pictures. Heavy to
// include; only what draws charts sees it.
#pragma once

#include <optional>

#include "qt/chart_legend.h"
#include "qt/chart_lines.h"

namespace lorvane {

/// A point of a line of power, both counted from 1, and how far it is from a place, in pixels.
struct NearPoint {
    int series = 0;
    int point = 0;
    double distance = 0;
};

class ChartDrawing final : public QCustomPlot {
public:
    explicit ChartDrawing(QWidget* parent = nullptr);

    /// Shows a content but for its header and footer. A change of the mark alone leaves the lines as they
    /// are.
    void setContent(const ChartContent& content);
    void setLook(const ChartLook& look);

    /// Where a point of the power is drawn, nothing in a gap.
    std::optional<QPointF> placeOf(int series, int point) const;

    /// The point of the power that is nearest to a place, nothing without any.
    std::optional<NearPoint> nearest(const QPointF& place) const;

    static constexpr int markPixels =
        12;  ///< of the numbers at the axes, their titles and what stands at a value
    static constexpr int tickLength = 5;
    static constexpr int tickPadding = 5;
    static constexpr double plateShare = 0.58;  ///< of the plot, at most a box's

protected:
    void updateLayout() override;

private:
    void build();
    void buildLine(const ChartGroup& group, std::size_t number, ChartScales scale);
    void addSigns(QCPAxis* values, const LinePoints& points, const QCPScatterStyle& style);

    bool legendIsBeside() const;
    bool legendIsWithin() const;
    void layOutLegend();
    void layOutBelow();
    void setTitle(QCPAxis& axis, const ChartAxis& content, double length);

    QRectF field() const;
    QRectF legendPlate() const;
    std::optional<QPointF> markPlace() const;
    bool detailsAreShown() const;
    TextBlock details() const;
    QRectF detailsPlate() const;
    QPointF requiredPlace(const QSizeF& size) const;
    int hiddenAt(const QRectF& plate) const;
    int linesWithin(const QRectF& area) const;

    void paintPlate(QCPPainter& painter, const QRectF& plate) const;
    void paintLegend(QCPPainter& painter) const;
    void paintRequiredLine(QCPPainter& painter) const;
    void paintRequiredText(QCPPainter& painter) const;
    void paintOwn(QCPPainter& painter) const;
    void paintMark(QCPPainter& painter) const;

    ChartContent content_;
    ChartLook look_ = ChartLook::paper(ColourSets::usual);
    ChartLegendBox legend_;
    QCPLayoutElement* column_;  ///< keeps room for a legend beside the plot
};

}  // namespace lorvane
