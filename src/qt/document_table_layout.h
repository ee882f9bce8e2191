// A table of a document, laid out. Knows nothing of pages. Lengths are in twips.
#pragma once

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <vector>

#include "platform/document.h"
#include "qt/document_text.h"

namespace lorvane {

class DocumentTableLayout {
public:
    /// A table that would be larger than the room gets smaller columns or letters.
    DocumentTableLayout(const DocumentTable& table, const DocumentFonts& fonts, double points, QSizeF room);

    double height() const;

    /// Draws the table below and to the right of a corner.
    void paint(QPainter& painter, QPointF corner) const;

    /// Where a stretch of the text of a cell stands, seen from the corner.
    std::vector<QRectF> spots(const TextPlace& place) const;

private:
    struct Cell {
        std::size_t row;
        std::size_t column;
        std::size_t endRow;
        std::size_t endColumn;
        QColor shade;  ///< none: the paper
        QColor ink;
        DocumentText text;
    };

    void setColumns(const std::vector<double>& inches, double most);
    void setPadding(double points);
    void place(const DocumentTable& table, const DocumentFonts& fonts, double points);
    void placeCell(const DocumentTable& table, std::size_t row, std::size_t column,
                   const DocumentFonts& fonts, double points);
    void setRows(std::size_t rows);
    double neededHeight(const Cell& cell) const;
    QRectF placeOf(const Cell& cell) const;
    QPointF textCorner(const Cell& cell) const;
    void paintGrid(QPainter& painter, QPointF corner) const;

    std::vector<double> lefts_;  ///< of the columns and of the line at their right
    std::vector<double> tops_;   ///< of the rows and of the line below
    double sidePadding_ = 0;
    double padding_ = 0;  ///< above and below
    std::vector<Cell> cells_;
};

}  // namespace lorvane
