#include "manual/manual_table.h"

#include <QTextBlock>
#include <algorithm>
#include <numeric>
#include <utility>

namespace lorvane {

namespace {

constexpr double letterWidth = 0.071;  ///< inches, of a letter of the usual width
constexpr double padding = 0.2;
constexpr Colour headShade{232, 238, 245};

struct ColumnNeeds {
    double least = 0;  ///< inches of the longest word
    double most = 0;   ///< inches of the longest line
};

double widthOf(qsizetype letters) { return static_cast<double>(letters) * letterWidth + padding; }

QString textOf(const QTextTable& table, int row, int column) {
    const QTextTableCell cell = table.cellAt(row, column);
    QStringList lines;
    for (auto place = cell.begin(); place != cell.end(); ++place)
        lines << place.currentBlock().text().trimmed();
    lines.removeAll(QString());  // Qt begins some cells with an empty one
    return lines.join(QLatin1Char(' '));
}

TextSides sideOf(const QTextTable& table, int row, int column) {
    const Qt::Alignment side = table.cellAt(row, column).lastCursorPosition().blockFormat().alignment();
    if (side & Qt::AlignRight)
        return TextSides::right;
    return side & Qt::AlignHCenter ? TextSides::centre : TextSides::left;
}

ColumnNeeds needsOf(const QTextTable& table, int column) {
    ColumnNeeds needs;
    for (int row = 0; row < table.rows(); ++row) {
        const QString text = textOf(table, row, column);
        needs.most = std::max(needs.most, widthOf(text.size()));
        for (const QString& word : text.split(QLatin1Char(' ')))
            needs.least = std::max(needs.least, widthOf(word.size()));
    }
    return needs;
}

// Where not all lines fit, each column has its words, and shares the rest by what it lacks.
std::vector<double> widthsOf(const QTextTable& table, double width) {
    std::vector<ColumnNeeds> columns;
    ColumnNeeds all;
    for (int column = 0; column < table.columns(); ++column) {
        columns.push_back(needsOf(table, column));
        all.least += columns.back().least;
        all.most += columns.back().most;
    }
    const double lacking = all.most - all.least;
    const double share = lacking > 0 ? std::clamp((width - all.least) / lacking, 0.0, 1.0) : 1.0;
    std::vector<double> widths;
    for (const ColumnNeeds& column : columns)
        widths.push_back(column.least + share * (column.most - column.least));
    return widths;
}

std::vector<TableCell> rowOf(const QTextTable& table, int row) {
    std::vector<TableCell> cells;
    for (int column = 0; column < table.columns(); ++column) {
        TableCell& cell = cells.emplace_back();
        cell.text = textOf(table, row, column).toStdString();
        cell.side = sideOf(table, row, column);
        cell.firstLineBold = row == 0;
        if (row == 0)
            cell.shade = headShade;
    }
    return cells;
}

double heightOfRow(const DocumentTable& table, std::size_t row, DocumentSurface& surface) {
    DocumentTable alone{"", "", table.columnWidths, {table.rows[row]}};
    return surface.heightOf(alone);
}

}  // namespace

DocumentTable manualTable(const QTextTable& table, double width) {
    DocumentTable made{"", "", widthsOf(table, width), {}, 1};
    for (int row = 0; row < table.rows(); ++row)
        made.rows.push_back(rowOf(table, row));
    return made;
}

double fullHeight(const DocumentTable& table, DocumentSurface& surface) {
    double height = 0;
    for (std::size_t row = 0; row < table.rows.size(); ++row)
        height += heightOfRow(table, row, surface);
    return height;
}

DocumentTable takeRows(DocumentTable& table, double height, DocumentSurface& surface) {
    std::size_t end = 0;
    for (double used = 0; end < table.rows.size(); ++end) {
        used += heightOfRow(table, end, surface);
        if (used > height && end > table.headRows)
            break;
    }
    DocumentTable taken = table;
    taken.rows.resize(end);
    const auto from = table.rows.begin() + static_cast<std::ptrdiff_t>(table.headRows);
    table.rows.erase(from, table.rows.begin() + static_cast<std::ptrdiff_t>(end));
    return taken;
}

}  // namespace lorvane
