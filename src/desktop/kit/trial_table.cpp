// Columns of the table of trials.
#include "desktop/kit/trial_table.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include <QFontMetricsF>
#include <QHeaderView>
#include <QScrollBar>
#include <QVBoxLayout>

#include "desktop/kit/number_text.h"
#include "desktop/kit/text_style.h"

namespace lorvane::desktop {

namespace {

constexpr RecordRoom Room{TrialTable::rowHeight, 35, 7};
/// Within the round corners of the card.
constexpr QMargins Edges{2, 3, 2, 4};
/// Longer heads are cut, and even shorter ones where the table would be too wide.
constexpr double WidestHead = 72;
constexpr double NarrowHead = 44;

int widthOf(const RecordModel& records, int column, double widestHead) {
    const QString& title = records.columns()[static_cast<std::size_t>(column)].title;
    double widest =
        std::min(widestHead, QFontMetricsF(textFont(TextStyle::CaptionStrong)).horizontalAdvance(title));
    const QFont font = textFont(TextStyle::BodyStrong);
    for (int row = 0; row < records.rowCount(); ++row) {
        const int sign = column == 0 && records.hasSign(row) ? RecordTable::signSpace : 0;
        widest = std::max(widest, sign + numberWidth(font, records.text(row, column)));
    }
    return static_cast<int>(std::ceil(widest)) + 2 * Room.cellPadding;
}

std::vector<int> widthsOf(const RecordModel& records, double widestHead) {
    std::vector<int> widths;
    for (int i = 0; i < records.columnCount(); ++i)
        widths.push_back(widthOf(records, i, widestHead));
    return widths;
}

}  // namespace

TrialTable::TrialTable(QWidget* parent) : Card(CardTone::Plain, parent), table_(new RecordTable(this, Room)) {
    auto* box = new QVBoxLayout(this);
    box->setContentsMargins(Edges);
    box->addWidget(table_);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->horizontalHeader()->setMinimumSectionSize(0);
    table_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

void TrialTable::setTrials(const QStringList& heads, const std::vector<QStringList>& rows, int marked,
                           int proven, const QString& provenWords) {
    std::vector<RecordColumn> columns;
    for (const QString& head : heads)
        columns.push_back({head, 0, true, false});
    const bool anew = rows != table_->records().rows();
    table_->setColumns(columns);
    table_->setRows(rows);
    table_->setMarkedRow(marked);
    table_->setSign(proven, provenWords);
    marked_ = marked;
    fitColumns();
    if (!anew)
        return;
    table_->setCurrentRow(marked);
    table_->bringIntoView(marked);
}

void TrialTable::setShown(int row) {
    table_->setSelectedRows(row < 0 ? QList<int>() : QList<int>{row});
    if (row == std::exchange(shown_, row))
        return;
    const int looked = row < 0 ? marked_ : row;
    table_->setCurrentRow(looked);
    table_->bringIntoView(looked);
}

int TrialTable::heightOf(int rows) {
    return Edges.top() + Room.headHeight + rows * Room.rowHeight + Edges.bottom();
}

/// Spare width is shared alike.
void TrialTable::fitColumns() {
    const auto spareBeside = [this](const std::vector<int>& widths) {
        return table_->viewport()->width() - std::accumulate(widths.begin(), widths.end(), 0);
    };
    std::vector<int> widths = widthsOf(table_->records(), WidestHead);
    if (spareBeside(widths) < 0)
        widths = widthsOf(table_->records(), NarrowHead);
    int spare = std::max(0, spareBeside(widths));
    int left = static_cast<int>(widths.size());
    for (int i = 0; i < static_cast<int>(widths.size()); ++i, --left) {
        const int share = spare / left;
        table_->horizontalHeader()->resizeSection(i, widths[static_cast<std::size_t>(i)] + share);
        spare -= share;
    }
}

void TrialTable::resizeEvent(QResizeEvent* event) {
    Card::resizeEvent(event);
    layout()->activate();
    fitColumns();
    table_->bringIntoView(shown_ < 0 ? marked_ : shown_);
}

}  // namespace lorvane::desktop
