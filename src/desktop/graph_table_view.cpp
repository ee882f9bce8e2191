// The numbers of the graph as a table.
#include "desktop/graph_table_view.h"

#include <QAbstractTableModel>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>

#include "desktop/kit/plain_text.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "graphs/graph_sheet.h"

namespace lorvane::desktop {

namespace {

constexpr const char* windowName = "frmTable";
constexpr int columnWidth = 74;
constexpr int rowHeight = 30;
constexpr int headHeight = 34;
constexpr int widestNames = 260;
constexpr QSize firstSize(900, 330);

// Rows of each of the two blocks: the title, which the window has, and the heading of the block.
constexpr int rowsOfBlock = GraphRows::cost - GraphRows::power;
bool isTitle(int row) { return row % rowsOfBlock == 0; }
bool isHead(int row) { return row % rowsOfBlock <= GraphRows::powerX; }
bool isBand(int row) { return row % rowsOfBlock == GraphRows::powerHead; }

}  // namespace

/// The cells. What names a row stands in its head, so that it stays in sight.
class GraphTableModel : public QAbstractTableModel {
public:
    GraphTableModel(const GraphScreen& graph, QObject* parent) : QAbstractTableModel(parent), graph_(graph) {}

    /// Brings in other numbers; the same ones leave the current cell alone.
    bool refresh() {
        if (rows_ == graph_.vsTable().rows)
            return false;
        beginResetModel();
        rows_ = graph_.vsTable().rows;
        endResetModel();
        return true;
    }

    int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(rows_.size());
    }

    int columnCount(const QModelIndex& parent) const override {
        return parent.isValid() || rows_.empty() ? 0 : static_cast<int>(rows_.front().size()) - 1;
    }

    QVariant data(const QModelIndex& index, int role) const override {
        const bool marked = isMarked(index);
        switch (role) {
        case Qt::DisplayRole:
            return isBand(index.row()) ? QString() : cell(index.row(), index.column() + 1);
        case Qt::TextAlignmentRole:
            return int(Qt::AlignRight | Qt::AlignVCenter);
        case Qt::FontRole:
            return textFont(isHead(index.row()) || marked ? TextStyle::BodyStrong : TextStyle::Body);
        case Qt::BackgroundRole:
            return marked ? QVariant(colour(Role::AccentTint)) : QVariant();
        case Qt::ForegroundRole:
            return colour(marked ? Role::Accent : isHead(index.row()) ? Role::SecondText : Role::Text);
        default:
            return {};
        }
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (orientation == Qt::Vertical && role == Qt::DisplayRole)
            return shownText(rowHead(graph_.vsTable(), section));
        if (orientation == Qt::Vertical && role == Qt::FontRole)
            return textFont(isBand(section) ? TextStyle::BodyStrong : TextStyle::CaptionStrong);
        return {};
    }

private:
    QString cell(int row, int column) const {
        return shownText(rows_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]);
    }

    bool isMarked(const QModelIndex& index) const {
        const GraphScreen::Cell marked = graph_.markedCell();
        return marked.row == index.row() && marked.column == index.column() + 1;
    }

    const GraphScreen& graph_;
    std::vector<Grid::Row> rows_;
};

GraphTableView::GraphTableView(Desk& desk, ToolPanel* panel)
    : PanelView(desk, panel, windowName), cells_(new GraphTableModel(desk.application().graph(), this)),
      table_(new QTableView) {
    QVBoxLayout* column = panel->content();
    column->setSizeConstraint(QLayout::SetDefaultConstraint);
    column->setContentsMargins(8, 8, 8, 0);
    panel->resize(firstSize);
    panel->setMinimumSize(420, 220);
    table_->setModel(cells_);
    table_->setFrameShape(QFrame::NoFrame);
    table_->setShowGrid(false);
    table_->setSelectionMode(QAbstractItemView::NoSelection);
    table_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table_->horizontalHeader()->hide();
    table_->horizontalHeader()->setDefaultSectionSize(columnWidth);
    table_->verticalHeader()->setDefaultSectionSize(rowHeight);
    table_->verticalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table_->verticalHeader()->setMaximumWidth(widestNames);
    column->addWidget(table_, 1);
    column->addWidget(makeButtons());
    connect(new QShortcut(Qt::Key_Escape, panel), &QShortcut::activated, this,
            [this] { desk_.close(windowName); });
}

QWidget* GraphTableView::makeButtons() {
    auto* line = new QWidget;
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(14, 10, 14, 14);
    row->setSpacing(8);
    row->addStretch(1);
    for (const GraphScreen::TableButton& model : GraphScreen::tableButtons) {
        PushButton* button = plainButton(QString::fromUtf8(model.caption));
        button->setObjectName(QString::fromLatin1("frmTable.%1").arg(QLatin1String(model.tool)));
        connect(button, &PushButton::clicked, this, [this, &model] { desk_.tool(model.tool); });
        row->addWidget(button);
    }
    return line;
}

bool GraphTableView::isOpen() const { return desk_.design().isOpen(WindowId::frmTable); }

void GraphTableView::syncRows() {
    for (int row = 0; row < cells_->rowCount({}); ++row) {
        table_->setRowHidden(row, isTitle(row) || !desk_.application().graph().isRowShown(row));
        table_->setRowHeight(row, isBand(row) ? headHeight : rowHeight);
    }
}

void GraphTableView::sync() {
    const GraphScreen& graph = desk_.application().graph();
    panel()->setWindowTitle(literalTitle(shownText(graph.tableTitle())));
    table_->setAccessibleName(panel()->windowTitle());
    const bool isNew = cells_->refresh();
    syncRows();
    table_->viewport()->update();
    const GraphScreen::Cell marked = graph.markedCell();
    if (marked.column > 0 && (isNew || marked.column != marked_))
        table_->setCurrentIndex(cells_->index(marked.row, marked.column - 1));
    marked_ = marked.column;
}

}  // namespace lorvane::desktop
