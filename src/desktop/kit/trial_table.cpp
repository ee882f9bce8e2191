// Columns of the table of trials.
#include "desktop/kit/trial_table.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QHeaderView>
#include <QScrollBar>
#include <QVBoxLayout>

#include "desktop/kit/number_text.h"
#include "desktop/kit/text_style.h"

namespace lorvane::desktop {

namespace {

constexpr RecordRoom Room{30, 37, 9};
constexpr double WidestHead = 72;  ///< longer heads are cut, or few columns would fill the table

double widestText(const RecordModel& records, int column) {
    const QString& title = records.columns()[static_cast<std::size_t>(column)].title;
    double widest =
        std::min(WidestHead, QFontMetricsF(textFont(TextStyle::CaptionStrong)).horizontalAdvance(title));
    const QFont font = textFont(TextStyle::BodyStrong);
    for (int row = 0; row < records.rowCount(); ++row)
        widest = std::max(widest, numberWidth(font, records.text(row, column)));
    return std::ceil(widest);
}

}  // namespace

TrialTable::TrialTable(QWidget* parent) : Card(CardTone::Plain, parent), table_(new RecordTable(this, Room)) {
    auto* box = new QVBoxLayout(this);
    box->setContentsMargins(2, 1, 2, 5);
    box->addWidget(table_);
    table_->horizontalHeader()->setMinimumSectionSize(0);
    table_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

void TrialTable::setTrials(const QStringList& heads, const std::vector<QStringList>& rows, int marked) {
    std::vector<RecordColumn> columns;
    for (const QString& head : heads)
        columns.push_back({head, 0, true, false});
    table_->setColumns(columns);
    table_->setRows(rows);
    table_->setMarkedRow(marked);
    fitColumns();
}

/// Spare width is shared alike.
void TrialTable::fitColumns() {
    const RecordModel& records = table_->records();
    std::vector<int> widths;
    int spare = table_->viewport()->width();
    for (int i = 0; i < records.columnCount(); ++i) {
        widths.push_back(static_cast<int>(widestText(records, i)) + 2 * Room.cellPadding);
        spare -= widths.back();
    }
    for (int i = 0; i < records.columnCount(); ++i) {
        const int share = std::max(0, spare) / (records.columnCount() - i);
        table_->horizontalHeader()->resizeSection(i, widths[static_cast<std::size_t>(i)] + share);
        spare -= share;
    }
}

void TrialTable::resizeEvent(QResizeEvent* event) {
    Card::resizeEvent(event);
    layout()->activate();
    fitColumns();
}

}  // namespace lorvane::desktop
