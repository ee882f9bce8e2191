// Heads, rows, keys and the flight of the table of records.
#include "desktop/kit/record_table.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QClipboard>
#include <QFontMetricsF>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyle>
#include <QStyledItemDelegate>

#include "desktop/kit/copy_key.h"
#include "desktop/kit/icons.h"
#include "desktop/kit/number_text.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/selected_row.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

constexpr double SortSign = 12;
constexpr double SortSpace = 4;
constexpr double DiamondSize = 9;
constexpr double DiamondLine = 1.4;
constexpr int FlightTime = 250;  ///< milliseconds

QRectF inner(const QRect& cell, int padding) { return QRectF(cell).adjusted(padding, 0, -padding, 0); }

bool isRightAligned(const QVariant& alignment) { return alignment.toInt() & Qt::AlignRight; }

/// The heads over their columns, with a sign at the one that sorts.
class RecordHead : public QHeaderView {
public:
    RecordHead(const RecordRoom& room, QWidget* parent)
        : QHeaderView(Qt::Horizontal, parent), padding_(room.cellPadding) {
        setSectionsClickable(true);
        setHighlightSections(false);
        setSortIndicatorClearable(true);
        setSortIndicator(-1, Qt::AscendingOrder);
        setFixedHeight(room.headHeight);
    }

protected:
    void paintSection(QPainter* painter, const QRect& area, int section) const override {
        const QRectF line(area.left(), area.bottom(), area.width(), 1);
        painter->fillRect(line, colour(Role::Line));
        painter->setFont(textFont(TextStyle::CaptionStrong));
        painter->setPen(colour(isHovered(section) ? Role::Text : Role::SecondText));
        const bool right =
            isRightAligned(model()->headerData(section, Qt::Horizontal, Qt::TextAlignmentRole));
        const QRectF room = inner(area.adjusted(0, 0, 0, -1), padding_);
        const QFontMetricsF metrics(painter->font());
        const QString title = metrics.elidedText(model()->headerData(section, Qt::Horizontal).toString(),
                                                 Qt::ElideRight, room.width());
        const double width = metrics.horizontalAdvance(title);
        const double left = right ? room.right() - width : room.left();
        painter->drawText(QPointF(left, centredBaseline(painter->font(), room)), title);
        if (section == sortIndicatorSection())
            paintSign(*painter, room, right ? left - SortSpace - SortSign : left + width + SortSpace);
    }

private:
    bool isHovered(int section) const {
        return underMouse() && logicalIndexAt(mapFromGlobal(QCursor::pos())) == section;
    }

    void paintSign(QPainter& painter, const QRectF& room, double left) const {
        const Icon sign = sortIndicatorOrder() == Qt::AscendingOrder ? Icon::ChevronUp : Icon::ChevronDown;
        const double top = room.center().y() - SortSign / 2;
        drawIcon(painter, sign, QRectF(left, top, SortSign, SortSign), colour(Role::SecondText));
    }

    int padding_;
};

/// The text of a cell; its row is painted by the table.
class RecordCell : public QStyledItemDelegate {
public:
    explicit RecordCell(RecordTable* table) : QStyledItemDelegate(table), table_(*table) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const bool selected = option.state & QStyle::State_Selected;
        const QString text = index.data().toString();
        const QRectF room = inner(option.rect, table_.room().cellPadding);
        painter->setFont(textFont(table_.isMarked(index) ? TextStyle::BodyStrong : TextStyle::Body));
        if (table_.hasSign(index))
            paintDiamond(*painter, room, text, selected);
        painter->setPen(colour(selected ? Role::OnAccent : Role::Text));
        if (isRightAligned(index.data(Qt::TextAlignmentRole)))
            return drawNumber(*painter, room, Qt::AlignRight, text);
        const QString fitting = QFontMetricsF(painter->font()).elidedText(text, Qt::ElideRight, room.width());
        painter->drawText(QPointF(room.left(), centredBaseline(painter->font(), room)), fitting);
    }

private:
    /// Before a number at the right of a room.
    static void paintDiamond(QPainter& painter, const QRectF& room, const QString& number, bool selected) {
        const double left = room.right() - numberWidth(painter.font(), number) - RecordTable::signSpace;
        drawDiamond(painter, QPointF(left + DiamondSize / 2, room.center().y()), DiamondSize,
                    selected ? QColor(Qt::transparent) : colour(Role::Card),
                    colour(selected ? Role::OnAccent : Role::Accent), DiamondLine);
    }

    const RecordTable& table_;
};

/// A text that keeps to its cell when it is pasted into a sheet.
QString pasteable(const QString& text) { return text.simplified(); }

bool motionIsWelcome(const QWidget& widget) {
    return widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &widget) > 0;
}

}  // namespace

RecordTable::RecordTable(QWidget* parent, const RecordRoom& room)
    : QTableView(parent), room_(room), records_(new RecordModel(this)),
      order_(new RecordOrder(*records_, this)) {
    setUpView();
    setUpFlight();
    new CopyKey(this, [this] { copySelection(); });
    connect(this, &QTableView::doubleClicked, this, &RecordTable::activate);
}

/// The rows paint their own plate, so the style gets no colour for its own.
void RecordTable::setUpView() {
    QPalette withoutPlate;
    withoutPlate.setColor(QPalette::Highlight, Qt::transparent);
    setPalette(withoutPlate);
    setHorizontalHeader(new RecordHead(room_, this));
    setItemDelegate(new RecordCell(this));
    setModel(order_);
    setFrameShape(NoFrame);
    setShowGrid(false);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setSortingEnabled(true);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(room_.rowHeight);
}

void RecordTable::setUpFlight() {
    flight_.setStartValue(0.0);
    flight_.setEndValue(1.0);
    flight_.setDuration(FlightTime);
    const auto repaint = [this] { viewport()->update(); };
    connect(&flight_, &QVariantAnimation::valueChanged, this, repaint);
    connect(&flight_, &QVariantAnimation::stateChanged, this, repaint);
}

void RecordTable::setColumns(const std::vector<RecordColumn>& columns) {
    if (columns == records_->columns())
        return;
    const QScopedValueRollback quiet(byCode_, true);
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    records_->setColumns(columns);
    for (int i = 0; i < records_->columnCount(); ++i) {
        const RecordColumn& column = columns[static_cast<std::size_t>(i)];
        horizontalHeader()->setSectionResizeMode(i, column.stretches ? QHeaderView::Stretch
                                                                     : QHeaderView::Interactive);
        horizontalHeader()->resizeSection(i, column.width);
    }
}

void RecordTable::setRows(std::vector<QStringList> rows) {
    if (rows == records_->rows())
        return;
    const QScopedValueRollback quiet(byCode_, true);
    const QList<int> selected = selectedRows();
    const int current = numberOf(currentIndex());
    const int scrolled = verticalScrollBar()->value();
    records_->setRows(std::move(rows));
    selectionModel()->setCurrentIndex(indexOf(current), QItemSelectionModel::NoUpdate);
    select(selected);
    doItemsLayout();
    verticalScrollBar()->setValue(scrolled);
}

void RecordTable::setSelectedRows(const QList<int>& rows) {
    const QScopedValueRollback quiet(byCode_, true);
    select(rows);
    const QList<int> selected = selectedRows();
    if (!selected.isEmpty() && !selected.contains(numberOf(currentIndex())))
        selectionModel()->setCurrentIndex(indexOf(selected.first()), QItemSelectionModel::NoUpdate);
}

void RecordTable::setCurrentRow(int row) {
    if (const QModelIndex index = indexOf(row); index.isValid())
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
}

void RecordTable::setMarkedRow(int row) {
    if (row == markedRow_)
        return;
    markedRow_ = row;
    viewport()->update();
}

void RecordTable::setSign(int row, const QString& words) {
    records_->setSign(row, words);
    viewport()->update();
}

bool RecordTable::hasSign(const QModelIndex& index) const {
    return index.column() == 0 && records_->hasSign(numberOf(index));
}

/// Positions that follow each other are selected as one range, or many would be slow.
void RecordTable::select(const QList<int>& rows) {
    std::vector<int> positions;
    for (const int row : rows)
        if (const QModelIndex index = indexOf(row); index.isValid())
            positions.push_back(index.row());
    std::sort(positions.begin(), positions.end());
    positions.erase(std::unique(positions.begin(), positions.end()), positions.end());
    QItemSelection selection;
    for (std::size_t first = 0, next = 0; first < positions.size(); first = next) {
        while (next < positions.size() &&
               positions[next] - positions[first] == static_cast<int>(next - first))
            ++next;
        selection.select(order_->index(positions[first], 0),
                         order_->index(positions[next - 1], order_->columnCount() - 1));
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

QList<int> RecordTable::selectedPositions() const {
    QList<int> positions;
    const QItemSelection selection = selectionModel()->selection();
    for (const QItemSelectionRange& range : selection)
        for (int position = range.top(); position <= range.bottom(); ++position)
            positions << position;
    std::sort(positions.begin(), positions.end());
    return positions;
}

QList<int> RecordTable::selectedRows() const {
    QList<int> rows = selectedPositions();
    std::transform(rows.begin(), rows.end(), rows.begin(),
                   [this](int position) { return numberOf(order_->index(position, 0)); });
    std::sort(rows.begin(), rows.end());
    return rows;
}

void RecordTable::bringIntoView(int row) { scrollTo(indexOf(row), EnsureVisible); }

void RecordTable::fly(int row, Flight direction) {
    flight_.stop();
    if (!isVisible() || !motionIsWelcome(*this))
        return;
    flownRow_ = row;
    flight_.setDirection(direction == Flight::In ? QAbstractAnimation::Forward
                                                 : QAbstractAnimation::Backward);
    flight_.start();
}

void RecordTable::copySelection() const {
    QStringList heads;
    for (const RecordColumn& column : records_->columns())
        heads << pasteable(column.title);
    QStringList lines = {heads.join(QLatin1Char('\t'))};
    const QList<int> positions = selectedPositions();
    for (const int position : positions) {
        QStringList cells;
        for (int column = 0; column < order_->columnCount(); ++column)
            cells << pasteable(order_->index(position, column).data().toString());
        lines << cells.join(QLatin1Char('\t'));
    }
    if (!positions.isEmpty())
        QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')) + QLatin1Char('\n'));
}

void RecordTable::activate(const QModelIndex& index) {
    if (index.isValid())
        emit activated(numberOf(index));
}

void RecordTable::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete)
        emit deletePressed();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        activate(currentIndex());
    else
        QTableView::keyPressEvent(event);
}

void RecordTable::hideEvent(QHideEvent* event) {
    flight_.stop();
    QTableView::hideEvent(event);
}

/// Home and End go to the first and the last row, not to the ends of the row as in a sheet.
QModelIndex RecordTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    const int column = std::max(0, currentIndex().column());
    if (action == MoveHome)
        return order_->index(0, column);
    if (action == MoveEnd)
        return order_->index(order_->rowCount() - 1, column);
    return QTableView::moveCursor(action, modifiers);
}

/// The line above a selected row goes with it, so all is painted again.
void RecordTable::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTableView::selectionChanged(selected, deselected);
    viewport()->update();
    if (!byCode_)
        emit selectionChangedByUser(selectedRows());
}

QModelIndex RecordTable::indexOf(int row) const { return order_->mapFromSource(records_->index(row, 0)); }

int RecordTable::numberOf(const QModelIndex& index) const { return order_->mapToSource(index).row(); }

bool RecordTable::isSelected(int position) const {
    return selectionModel()->isSelected(order_->index(position, 0));
}

QRectF RecordTable::rowArea(int position) const {
    return QRectF(0, rowViewportPosition(position), viewport()->width(), room_.rowHeight);
}

void RecordTable::paintRow(QPainter& painter, int position) const {
    const QRectF area = rowArea(position);
    const bool focused = position == currentIndex().row() && showsKeyboardFocus(*this);
    const bool isLast = position + 1 == order_->rowCount();
    if (isSelected(position))
        return paintSelectedRow(painter, area, focused);
    if (isMarked(order_->index(position, 0)))
        painter.fillRect(area, colour(Role::AccentTint));
    if (!isLast && !isSelected(position + 1))
        painter.fillRect(QRectF(area.left(), area.bottom() - 1, area.width(), 1), colour(Role::Line));
    if (focused)
        strokePlate(painter, area, FieldRadius, colour(Role::Accent), RingWidth);
}

void RecordTable::paintFlight(QPainter& painter) const {
    const QModelIndex index = indexOf(flownRow_);
    if (!isFlying() || !index.isValid())
        return;
    QRectF area = rowArea(index.row());
    area.setWidth(area.width() * flight_.currentValue().toDouble());
    fillPlate(painter, area, FieldRadius, colour(Role::SelectedRow));
}

void RecordTable::paintEvent(QPaintEvent* event) {
    const int first = std::max(0, rowAt(0));
    const int below = rowAt(viewport()->height() - 1);
    const int last = below < 0 ? order_->rowCount() - 1 : below;
    {
        QPainter painter(viewport());
        for (int position = first; position <= last; ++position)
            paintRow(painter, position);
    }
    QTableView::paintEvent(event);
    QPainter painter(viewport());
    paintFlight(painter);
}

}  // namespace lorvane::desktop
