// The sheet of a picture: header, plot, a line and the footer. Knows no format of files. Heavy to include.
#pragma once

#include "qt/chart_drawing.h"

namespace lorvane {

class ChartSheet {
public:
    /// Lays a content out on a sheet of so many pixels. The footer is scaled, and smaller still where it
    /// would leave too little to the plot.
    ChartSheet(const ChartContent& content, const QSize& size, double footerScale);

    /// Paints in these pixels; a scale of the painter makes them larger.
    void paint(QCPPainter& painter);

private:
    double headerHeight() const;
    double footerHeight() const;
    void addFooter(const ChartContent& content, int pixels);
    double paintHeader(QCPPainter& painter) const;
    void paintFooter(QCPPainter& painter, double top) const;

    ChartLook look_;
    QSize size_;
    ChartDrawing plot_;
    QList<TextBlock> header_;
    QList<TextBlock> footer_;
};

}  // namespace lorvane
