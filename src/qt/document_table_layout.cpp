// Columns, rows and cells.
#include "qt/document_table_layout.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <numeric>

namespace lorvane {

namespace {

constexpr double lineFactor = 1.22;
constexpr double sidePadding = 4.5 * twipsPerPoint;
constexpr double padding = 3 * twipsPerPoint;
constexpr double fullPadding = 9.5;  ///< the size of letters that have all of it
constexpr double lineWidth = 0.75 * twipsPerPoint;
constexpr double shrinking = 0.9;
constexpr double smallerShares[] = {0.9, 0.8, 0.72, 0.65};  ///< of the letters of a cell beside the table's
constexpr double fewestPoints = 1;
const QColor lineColour(0x8C, 0x8C, 0x8C);

QColor colourOf(const Colour& colour) { return {colour.red, colour.green, colour.blue}; }

Qt::Alignment sideOf(TextSides side) {
    constexpr Qt::Alignment sides[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
    return sides[static_cast<std::size_t>(side)];
}

// Fills whole dots of the device, and at least one each way: lines are sharp and equally wide everywhere.
class DotPainter {
public:
    explicit DotPainter(QPainter& painter)
        : painter_(painter), toDots_(painter.deviceTransform()), fromDots_(toDots_.inverted()),
          line_(std::max(1.0, std::round(lineWidth * toDots_.m11()))) {}

    void fill(const QRectF& place, const QColor& colour) { fillDots(dotsOf(place), colour); }

    /// Lines lie inside a place, at its left and at its top, and are as long as it, corners included.
    void lineAtLeft(const QRectF& place) {
        const QRectF dots = dotsOf(place);
        fillDots({dots.left(), dots.top(), line_, dots.height() + line_}, lineColour);
    }

    void lineAtTop(const QRectF& place) {
        const QRectF dots = dotsOf(place);
        fillDots({dots.left(), dots.top(), dots.width() + line_, line_}, lineColour);
    }

private:
    QRectF dotsOf(const QRectF& place) const {
        const QRectF dots = toDots_.mapRect(place);
        const auto onDot = [](QPointF point) {
            return QPointF(std::round(point.x()), std::round(point.y()));
        };
        return {onDot(dots.topLeft()), onDot(dots.bottomRight())};
    }

    void fillDots(const QRectF& dots, const QColor& colour) {
        painter_.fillRect(fromDots_.mapRect(dots), colour);
    }

    QPainter& painter_;
    QTransform toDots_;
    QTransform fromDots_;
    double line_;
};

// Letters get smaller where that keeps a word or a number whole.
DocumentText textIn(const std::string& text, const DocumentFonts& fonts, const TextLook& look, double width) {
    DocumentText asTold(text, fonts, look, width);
    if (!asTold.breaksWord())
        return asTold;
    for (const double share : smallerShares) {
        TextLook smaller = look;
        smaller.points *= share;
        DocumentText tried(text, fonts, smaller, width);
        if (!tried.breaksWord())
            return tried;
    }
    return asTold;
}

using Covered = std::vector<std::vector<bool>>;

}  // namespace

DocumentTableLayout::DocumentTableLayout(const DocumentTable& table, const DocumentFonts& fonts,
                                         double points, QSizeF room) {
    setColumns(table.columnWidths, room.width());
    place(table, fonts, points);
    while (height() > room.height() && points > fewestPoints) {
        points *= shrinking;
        place(table, fonts, points);
    }
}

double DocumentTableLayout::height() const { return tops_.back() + lineWidth; }

void DocumentTableLayout::setColumns(const std::vector<double>& inches, double most) {
    const double all = std::accumulate(inches.begin(), inches.end(), 0.0) * twipsPerInch;
    const double share = all > 0 ? (std::min(all, most) - lineWidth) / all : 0;
    lefts_ = {0};
    for (const double width : inches)
        lefts_.push_back(lefts_.back() + width * twipsPerInch * share);
}

void DocumentTableLayout::setPadding(double points) {
    const double share = std::min(points / fullPadding, 1.0);
    sidePadding_ = share * sidePadding;
    padding_ = share * padding;
}

void DocumentTableLayout::place(const DocumentTable& table, const DocumentFonts& fonts, double points) {
    setPadding(points);
    cells_.clear();
    const std::size_t columns = table.columnWidths.size();
    Covered covered(table.rows.size(), std::vector<bool>(columns));
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        for (std::size_t column = 0; column < std::min(columns, table.rows[row].size()); ++column) {
            if (covered[row][column])
                continue;
            placeCell(table, row, column, fonts, points);
            const Cell& cell = cells_.back();
            for (std::size_t i = cell.row; i < cell.endRow; ++i)
                std::fill_n(covered[i].begin() + static_cast<std::ptrdiff_t>(column), cell.endColumn - column,
                            true);
            if (lefts_[cell.endColumn] <= lefts_[column])
                cells_.pop_back();  // hidden
        }
    }
    setRows(table.rows.size());
}

void DocumentTableLayout::placeCell(const DocumentTable& table, std::size_t row, std::size_t column,
                                    const DocumentFonts& fonts, double points) {
    const TableCell& cell = table.rows[row][column];
    const std::size_t endRow = std::min(row + static_cast<std::size_t>(cell.rows), table.rows.size());
    const std::size_t endColumn =
        std::min(column + static_cast<std::size_t>(cell.columns), table.columnWidths.size());
    const double width = std::max(lefts_[endColumn] - lefts_[column] - lineWidth - 2 * sidePadding_, 1.0);
    const TextLook look{points, lineFactor, false, cell.firstLineBold, sideOf(cell.side)};
    cells_.push_back({row, column, endRow, endColumn, cell.shade ? colourOf(*cell.shade) : QColor(),
                      colourOf(cell.ink.value_or(black)), textIn(cell.text, fonts, look, width)});
}

double DocumentTableLayout::neededHeight(const Cell& cell) const {
    return cell.text.height() + 2 * padding_ + lineWidth;
}

// Cells are in the order of their rows; one that covers several is looked at when its last one stands.
void DocumentTableLayout::setRows(std::size_t rows) {
    tops_ = {0};
    for (std::size_t row = 0; row < rows; ++row) {
        double bottom = tops_[row];
        for (const Cell& cell : cells_) {
            if (cell.endRow == row + 1)
                bottom = std::max(bottom, tops_[cell.row] + neededHeight(cell));
        }
        tops_.push_back(bottom);
    }
}

QRectF DocumentTableLayout::placeOf(const Cell& cell) const {
    return {QPointF(lefts_[cell.column], tops_[cell.row]),
            QPointF(lefts_[cell.endColumn], tops_[cell.endRow])};
}

QPointF DocumentTableLayout::textCorner(const Cell& cell) const {
    const QRectF place = placeOf(cell);
    return {place.left() + lineWidth + sidePadding_,
            place.top() + (place.height() + lineWidth - cell.text.height()) / 2};
}

void DocumentTableLayout::paintGrid(QPainter& painter, QPointF corner) const {
    DotPainter dots(painter);
    for (const Cell& cell : cells_) {
        if (cell.shade.isValid())
            dots.fill(placeOf(cell).translated(corner), cell.shade);
    }
    for (const Cell& cell : cells_) {
        dots.lineAtLeft(placeOf(cell).translated(corner));
        dots.lineAtTop(placeOf(cell).translated(corner));
    }
    const QRectF all = QRectF(0, 0, lefts_.back(), tops_.back()).translated(corner);
    dots.lineAtLeft({all.topRight(), all.bottomRight()});
    dots.lineAtTop({all.bottomLeft(), all.bottomRight()});
}

void DocumentTableLayout::paint(QPainter& painter, QPointF corner) const {
    if (cells_.empty())
        return;
    paintGrid(painter, corner);
    for (const Cell& cell : cells_) {
        painter.setPen(cell.ink);
        cell.text.paint(painter, corner + textCorner(cell), 0, cell.text.lines());
    }
}

std::vector<QRectF> DocumentTableLayout::spots(const TextPlace& place) const {
    for (const Cell& cell : cells_) {
        if (cell.row != place.row || cell.column != place.column)
            continue;
        std::vector<QRectF> found = cell.text.spots(place.from, place.length, 0, cell.text.lines());
        for (QRectF& spot : found)
            spot.translate(textCorner(cell));
        return found;
    }
    return {};
}

}  // namespace lorvane
