// A raw table of the program.
#include "desktop/table_view.h"

#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>

namespace lorvane::desktop {

namespace {

constexpr QSize largest{900, 260};

}  // namespace

TableView::TableView(Desk& desk, ToolPanel* panel, const SmallDialogs::RawTable& model, const Grid& grid)
    : PanelView(desk, panel, model.name), model_(model), grid_(grid), table_(new QTableWidget) {
    panel->setWindowTitle(QString::fromUtf8(model.title));
    table_->setAccessibleName(panel->windowTitle());
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setFrameShape(QFrame::NoFrame);
    table_->horizontalHeader()->hide();
    table_->verticalHeader()->hide();
    table_->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    table_->setMaximumSize(largest);
    panel->content()->addWidget(table_);
}

void TableView::sync() {
    table_->setRowCount(static_cast<int>(grid_.rows.size()));
    table_->setColumnCount(grid_.rows.empty() ? 0 : static_cast<int>(grid_.rows.front().size()));
    for (int row = 0; row < table_->rowCount(); ++row) {
        const Grid::Row& cells = grid_.rows[static_cast<std::size_t>(row)];
        for (int column = 0; column < static_cast<int>(cells.size()); ++column)
            table_->setItem(row, column,
                            new QTableWidgetItem(shownText(cells[static_cast<std::size_t>(column)])));
    }
    table_->resizeColumnsToContents();
}

}  // namespace lorvane::desktop
