// The legend of a chart: its title, and a piece of each line with its name. Heavy to include.
#pragma once

#include <QList>
#include <QSizeF>

#include "platform/chart.h"
#include "qt/chart_strokes.h"
#include "qt/chart_text.h"

namespace lorvane {

class ChartLegendBox {
public:
    /// Without a legend.
    ChartLegendBox() = default;

    /// The legend of the lines of power; long names are broken at a width.
    ChartLegendBox(const ChartContent& content, const ChartLook& look, double width);

    /// The size that it takes, nothing without a legend.
    QSizeF size() const { return size_; }

    void paint(QCPPainter& painter, const QPointF& topLeft) const;

private:
    struct Row {
        TextBlock name;
        ChartStroke stroke;
    };

    void paintKey(QCPPainter& painter, const QPointF& left, const ChartStroke& stroke) const;

    ChartLook look_;
    TextBlock title_;
    QList<Row> rows_;
    double key_ = 0;
    QSizeF size_;
};

}  // namespace lorvane
