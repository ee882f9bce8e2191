// A table of records to look through, sort and select from. Its owner speaks of rows by the numbers in which
// it gave them, whatever their order on the screen. Knows texts only.
#pragma once

#include <vector>

#include <QList>
#include <QStringList>
#include <QTableView>
#include <QVariantAnimation>

#include "desktop/kit/record_model.h"

namespace lorvane::desktop {

/// How much room rows and texts get.
struct RecordRoom {
    int rowHeight = 34;
    int headHeight = 34;
    int cellPadding = 14;
};

class RecordTable : public QTableView {
    Q_OBJECT

public:
    /// Whether a row comes into the table or goes out of it.
    enum class Flight { In, Out };

    explicit RecordTable(QWidget* parent = nullptr, const RecordRoom& room = {});

    /// The columns from left to right. Other columns than before take the sorting back.
    void setColumns(const std::vector<RecordColumn>& columns);

    /// The rows in their own order. Sorting, selection by number and place in the list stay; nothing happens
    /// when the rows are those already shown.
    void setRows(std::vector<QStringList> rows);

    /// Selects these rows and no others, without a signal. Numbers without a row are left out.
    void setSelectedRows(const QList<int>& rows);

    /// Sets one row off from the others, whatever is selected; below 0 none.
    void setMarkedRow(int row);
    bool isMarked(const QModelIndex& index) const { return numberOf(index) == markedRow_; }

    /// The selected rows by rising number.
    QList<int> selectedRows() const;

    /// Scrolls no further than it takes to see a row.
    void bringIntoView(int row);

    /// Floods a row in the colour of selection, from empty to full or back. A decoration that ends by itself;
    /// none while the table is hidden or the system asks for less motion.
    void fly(int row, Flight direction);
    bool isFlying() const { return flight_.state() == QAbstractAnimation::Running; }

    /// Puts the selected rows on the clipboard, in the order on the screen, as lines of tabbed texts below
    /// the heads.
    void copySelection() const;

    const RecordRoom& room() const { return room_; }
    const RecordModel& records() const { return *records_; }

signals:
    /// The user selected other rows; their numbers, rising.
    void selectionChangedByUser(const QList<int>& rows);
    /// Double click on a row, or Enter.
    void activated(int row);
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
