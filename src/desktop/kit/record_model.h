// The rows of a table of records and their order. Knows texts only; nothing of what they mean or how they
// look.
#pragma once

#include <vector>

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>
#include <QStringList>

namespace lorvane::desktop {

/// A column of the table.
struct RecordColumn {
    QString title;
    int width = 0;
    bool isNumber = false;   ///< right-aligned, and sorted by value
    bool stretches = false;  ///< takes the spare width

    friend bool operator==(const RecordColumn&, const RecordColumn&) = default;
};

/// The texts as they were given.
class RecordModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setColumns(std::vector<RecordColumn> columns);
    const std::vector<RecordColumn>& columns() const { return columns_; }

    void setRows(std::vector<QStringList> rows);
    const std::vector<QStringList>& rows() const { return rows_; }

    /// The text of a cell; empty where a row is short.
    QString text(int row, int column) const;

    /// The values of a column of numbers, NaN where the text is none. Read from the texts at the first call.
    const std::vector<double>& values(int column) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QVariant alignment(int column) const;

    std::vector<RecordColumn> columns_;
    std::vector<QStringList> rows_;
    mutable std::vector<double> values_;
    mutable int valuesColumn_ = -1;
};

/// The rows in the order of a column. Empty cells come last, whichever way the column is sorted.
class RecordOrder : public QSortFilterProxyModel {
    Q_OBJECT

public:
    explicit RecordOrder(RecordModel& records, QObject* parent = nullptr);

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    const RecordModel& records_;
};

}  // namespace lorvane::desktop
