// A table of records to look through, sort and select from. Its owner gives rows in an order of its own; a
// row goes by its number in that order, from 0, however the user has sorted the table. Knows texts only.
#pragma once

#include <functional>
#include <utility>
#include <vector>

#include <QList>
#include <QStringList>
#include <QTableView>
#include <QVariantAnimation>

#include "desktop/kit/record_model.h"

namespace lorvane::desktop {

/// How much room rows and texts get, in pixels.
struct RecordRoom {
    int rowHeight = 34;
    int headHeight = 34;
    int cellPadding = 14;  ///< at the left and the right of each text
};

/// A table that is only read. The user sorts by a click on a head, and selects one row or several.
class RecordTable : public QTableView {
    Q_OBJECT

public:
    /// Whether a row comes into the table or goes out of it.
    enum class Flight { In, Out };

    explicit RecordTable(QWidget* parent = nullptr, const RecordRoom& room = {});

    /// The columns from left to right. Columns other than before end the sorting.
    void setColumns(const std::vector<RecordColumn>& columns);

    /// The rows in the owner's order. The sorting, the numbers that are selected and the place scrolled to
    /// stay, and no signal is sent. Nothing happens when the rows are those already shown.
    void setRows(std::vector<QStringList> rows);

    /// Where the tip of a row comes from, by its number in the owner's order; asked for when it is shown.
    void setTips(std::function<QString(int row)> tips) { records_->setTips(std::move(tips)); }

    /// Selects these rows and no others, without a signal. Numbers without a row are left out.
    void setSelectedRows(const QList<int>& rows);

    /// Where the keys go on from; nothing is selected by it. Nothing when there is no such row.
    void setCurrentRow(int row);

    /// Sets one row off from the others by a tint and stronger text, whatever is selected; a number below 0
    /// sets off none.
    void setMarkedRow(int row);
    /// Whether the row of a cell is the one set off; for the painting of cells.
    bool isMarked(const QModelIndex& index) const { return numberOf(index) == markedRow_; }

    /// Sets a diamond before the number in the first column of a row, which screen readers hear as words; a
    /// row below 0 sets none. It takes so much of the width of the column.
    void setSign(int row, const QString& words);
    bool hasSign(const QModelIndex& index) const;
    static constexpr int signSpace = 14;

    /// The numbers of the selected rows, rising.
    QList<int> selectedRows() const;

    /// Scrolls to a row, no further than it takes to see it. Nothing when there is no such row.
    void bringIntoView(int row);

    /// Floods a row with the colour of selection, from empty to full for In and back for Out. This decoration
    /// lasts a quarter of a second, and is left out while the table is hidden or the system asks for less
    /// motion.
    void fly(int row, Flight direction);
    bool isFlying() const { return flight_.state() == QAbstractAnimation::Running; }

    /// Puts the heads and the selected rows on the clipboard, as lines of texts with tabs between them, in
    /// the order on the screen. Without a selection the clipboard stays.
    void copySelection() const;

    /// The room that the table was made with, and its columns and rows in the owner's order.
    const RecordRoom& room() const { return room_; }
    const RecordModel& records() const { return *records_; }

signals:
    /// The user selected other rows; their numbers, rising.
    void selectionChangedByUser(const QList<int>& rows);
    /// Double click on a row, or Enter.
    void activated(int row);
    /// The user pressed Delete. No row goes by itself.
    void deletePressed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    void setUpView();
    void setUpFlight();
    void select(const QList<int>& rows);
    void activate(const QModelIndex& index);
    void paintRow(QPainter& painter, int position) const;
    void paintFlight(QPainter& painter) const;
    bool isSelected(int position) const;
    QRectF rowArea(int position) const;
    QList<int> selectedPositions() const;
    QModelIndex indexOf(int row) const;
    int numberOf(const QModelIndex& index) const;

    RecordRoom room_;
    RecordModel* records_;
    RecordOrder* order_;
    QVariantAnimation flight_;
    int flownRow_ = -1;
    int markedRow_ = -1;
    bool byCode_ = false;
};

}  // namespace lorvane::desktop
