// Texts of records, and their order by text or by value.
#include "desktop/kit/record_model.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <utility>

#include <QByteArray>

namespace lorvane::desktop {

namespace {

/// The value of a shown number, without its currency, its thousands' commas and its per cent.
double valueOf(const QString& shown) {
    QByteArray plain;
    for (const QChar character : shown)
        if (const char sign = character.toLatin1(); sign != 0 && std::strchr("0123456789.-+eE", sign))
            plain += sign;
    bool isNumber = false;
    const double value = plain.toDouble(&isNumber);
    return isNumber ? value : std::numeric_limits<double>::quiet_NaN();
}

}  // namespace

void RecordModel::setColumns(std::vector<RecordColumn> columns) {
    beginResetModel();
    columns_ = std::move(columns);
    valuesColumn_ = -1;
    endResetModel();
}

void RecordModel::setRows(std::vector<QStringList> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    valuesColumn_ = -1;
    endResetModel();
}

void RecordModel::setSign(int row, const QString& words) {
    signRow_ = row;
    signWords_ = words;
}

QString RecordModel::text(int row, int column) const {
    return rows_[static_cast<std::size_t>(row)].value(column);
}

const std::vector<double>& RecordModel::values(int column) const {
    if (std::exchange(valuesColumn_, column) == column)
        return values_;
    values_.clear();
    std::transform(rows_.begin(), rows_.end(), std::back_inserter(values_),
                   [column](const QStringList& row) { return valueOf(row.value(column)); });
    return values_;
}

int RecordModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int RecordModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant RecordModel::alignment(int column) const {
    const bool isNumber = columns_[static_cast<std::size_t>(column)].isNumber;
    return static_cast<int>((isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

// A tip wraps its lines only as rich text.
QVariant RecordModel::tip(int row) const {
    const QString text = tips_ ? tips_(row) : QString();
    return text.isEmpty() ? QVariant() : QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
}

QVariant RecordModel::spoken(const QModelIndex& index) const {
    const QString shown = text(index.row(), index.column());
    const bool withSign = index.column() == 0 && hasSign(index.row());
    return withSign ? QStringLiteral("%1, %2").arg(signWords_, shown) : shown;
}

QVariant RecordModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::DisplayRole)
        return text(index.row(), index.column());
    if (role == Qt::ToolTipRole)
        return tip(index.row());
    if (role == Qt::AccessibleTextRole)
        return spoken(index);
    return role == Qt::TextAlignmentRole ? alignment(index.column()) : QVariant();
}

QVariant RecordModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical)
        return {};
    if (role == Qt::DisplayRole)
        return columns_[static_cast<std::size_t>(section)].title;
    return role == Qt::TextAlignmentRole ? alignment(section) : QVariant();
}

RecordOrder::RecordOrder(RecordModel& records, QObject* parent)
    : QSortFilterProxyModel(parent), records_(records) {
    setSourceModel(&records);
}

/// Sorting downwards swaps the sides, so the empty ones are then the lesser.
bool RecordOrder::lessThan(const QModelIndex& left, const QModelIndex& right) const {
    const auto inOrder = [this](bool leftEmpty, bool rightEmpty) {
        return sortOrder() == Qt::AscendingOrder ? rightEmpty && !leftEmpty : leftEmpty && !rightEmpty;
    };
    const int column = left.column();
    if (records_.columns()[static_cast<std::size_t>(column)].isNumber) {
        const std::vector<double>& values = records_.values(column);
        const double one = values[static_cast<std::size_t>(left.row())];
        const double other = values[static_cast<std::size_t>(right.row())];
        const bool anyEmpty = std::isnan(one) || std::isnan(other);
        return anyEmpty ? inOrder(std::isnan(one), std::isnan(other)) : one < other;
    }
    const QString one = records_.text(left.row(), column);
    const QString other = records_.text(right.row(), column);
    const bool anyEmpty = one.isEmpty() || other.isEmpty();
    return anyEmpty ? inOrder(one.isEmpty(), other.isEmpty()) : one.localeAwareCompare(other) < 0;
}

}  // namespace lorvane::desktop
