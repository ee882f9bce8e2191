// The rows of a table of records and their order. Knows texts only, not what they mean or how they look.
#pragma once

#include <functional>
#include <utility>
#include <vector>

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>
#include <QStringList>

namespace lorvane::desktop {

/// A column of the table.
struct RecordColumn {
    QString title;
    int width = 0;           ///< in pixels
    bool isNumber = false;   ///< right-aligned, and sorted by value
    bool stretches = false;  ///< takes the spare width

    friend bool operator==(const RecordColumn&, const RecordColumn&) = default;
};

/// The texts as they were given, by row and column from 0.
class RecordModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// The columns from left to right. Views lose selection and current cell.
    void setColumns(std::vector<RecordColumn> columns);
    const std::vector<RecordColumn>& columns() const { return columns_; }

    /// The rows from top to bottom, a text for each column. Views lose selection and current cell.
    void setRows(std::vector<QStringList> rows);
    const std::vector<QStringList>& rows() const { return rows_; }

    /// Where the tip of a row comes from, by its number; asked for when it is shown. Plain text.
    void setTips(std::function<QString(int row)> tips) { tips_ = std::move(tips); }

    /// Says that a row has a sign before its first text, which the words stand for where it cannot be seen. A
    /// number below 0 takes it away.
    void setSign(int row, const QString& words);
    bool hasSign(int row) const { return row == signRow_; }

    /// The text of a cell of an existing row; empty where the row has no text for the column.
    QString text(int row, int column) const;

    /// The values of a column of numbers, one for each row; NaN where the text is no number. Currency,
    /// thousands' commas and per cent signs do not count. The values of the last column that was asked for
    /// are kept; asking for another one, or new rows, overwrites them.
    const std::vector<double>& values(int column) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QVariant alignment(int column) const;
    QVariant tip(int row) const;
    QVariant spoken(const QModelIndex& index) const;

    std::vector<RecordColumn> columns_;
    std::vector<QStringList> rows_;
    std::function<QString(int)> tips_;
    QString signWords_;
    int signRow_ = -1;
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
