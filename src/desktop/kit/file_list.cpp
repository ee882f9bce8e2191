// Rows of the list of files: their painting, and how the pointer and the keys go over them.
#include "desktop/kit/file_list.h"

#include <QAbstractItemDelegate>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include "desktop/kit/icons.h"
#include "desktop/kit/number_text.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/selected_row.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

constexpr int RowHeight = 46;
constexpr int PlateHeight = 44;
constexpr double SignLeft = 12;
constexpr double SignSize = 18;
constexpr double WordsLeft = 42;
constexpr double WordsRight = 10;
constexpr double TitleBaseline = 19;
constexpr double PathBaseline = 34;
constexpr double FadedOpacity = 0.8;    ///< of the second line on the selected plate
constexpr double MissingOpacity = 0.6;  ///< of a missing file there
constexpr int HeadingLeft = 12;
constexpr int HeadingHeight = 24;
constexpr int HeadingSpace = 6;

constexpr int PathRole = Qt::AccessibleDescriptionRole;
constexpr int MissingRole = Qt::UserRole;

QColor faded(Role role, double opacity) {
    QColor result = colour(role);
    result.setAlphaF(static_cast<float>(opacity));
    return result;
}

/// The colours of a row by its state.
struct Inks {
    QColor sign;
    QColor title;
    QColor path;
};

Inks inksOf(bool selected, bool missing) {
    if (selected && missing) {
        const QColor quiet = faded(Role::OnAccent, MissingOpacity);
        return {quiet, quiet, quiet};
    }
    if (selected)
        return {colour(Role::OnAccent), colour(Role::OnAccent), faded(Role::OnAccent, FadedOpacity)};
    if (missing)
        return {colour(Role::Quiet), colour(Role::Quiet), colour(Role::Quiet)};
    return {colour(Role::SecondText), colour(Role::Text), colour(Role::SecondText)};
}

void paintLine(QPainter& painter, const QPointF& baseline, const QString& text, double room) {
    painter.drawText(baseline, QFontMetricsF(painter.font()).elidedText(text, Qt::ElideMiddle, room));
}

void paintWords(QPainter& painter, const QRectF& row, const QModelIndex& index, const Inks& inks) {
    const double left = row.left() + WordsLeft;
    const double room = row.width() - WordsLeft - WordsRight;
    const QString title = index.data().toString();
    const QString path = index.data(PathRole).toString();
    painter.setFont(textFont(TextStyle::BodyMedium));
    painter.setPen(inks.title);
    const QRectF plate(row.left(), row.top(), row.width(), PlateHeight);
    const double alone = centredBaseline(painter.font(), plate);
    paintLine(painter, QPointF(left, path.isEmpty() ? alone : row.top() + TitleBaseline), title, room);
    painter.setFont(textFont(TextStyle::Caption));
    painter.setPen(inks.path);
    paintLine(painter, QPointF(left, row.top() + PathBaseline), path, room);
}

class FileRow : public QAbstractItemDelegate {
public:
    using QAbstractItemDelegate::QAbstractItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override { return {0, RowHeight}; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const QRectF row(option.rect);
        const QRectF plate(row.left(), row.top(), row.width(), PlateHeight);
        const bool selected = option.state & QStyle::State_Selected;
        if (selected)
            paintSelectedRow(*painter, plate, option.widget && showsKeyboardFocus(*option.widget));
        else if (hasLineBelow(option, index))
            painter->fillRect(
                QRectF(row.left() + WordsLeft, row.bottom() - 1, row.width() - WordsLeft - WordsRight, 1),
                colour(Role::Line));
        const Inks inks = inksOf(selected, index.data(MissingRole).toBool());
        const QRectF sign(row.left() + SignLeft, plate.center().y() - SignSize / 2, SignSize, SignSize);
        drawIcon(*painter, index.row() == 0 ? Icon::More : Icon::New, sign, inks.sign);
        paintWords(*painter, row, index, inks);
    }

private:
    /// Neither below the last row nor at the selected one.
    static bool hasLineBelow(const QStyleOptionViewItem& option, const QModelIndex& index) {
        const auto* view = static_cast<const QAbstractItemView*>(option.widget);
        const QModelIndex below = index.siblingAtRow(index.row() + 1);
        return below.isValid() && view->currentIndex() != below;
    }
};

/// The rows go with the pointer, and Enter is a double click. A row that is only partly seen does not scroll
/// under the pointer, or the list would run away from it.
class FileRows : public QListView {
public:
    using QListView::QListView;

protected:
    void mouseMoveEvent(QMouseEvent* event) override {
        const QModelIndex under = indexAt(event->pos());
        setAutoScroll(false);
        if (under.isValid())
            setCurrentIndex(under);
        setAutoScroll(true);
    }

    void keyPressEvent(QKeyEvent* event) override {
        const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (isEnter && currentIndex().isValid())
            emit doubleClicked(currentIndex());
        else
            QListView::keyPressEvent(event);
    }

    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override {
        QListView::currentChanged(current, previous);
        viewport()->update();
    }
};

QStandardItem* itemOf(const FileEntry& entry) {
    auto* item = new QStandardItem(entry.title);
    item->setData(entry.path, PathRole);
    item->setData(entry.path, Qt::ToolTipRole);
    item->setData(entry.missing, MissingRole);
    return item;
}

}  // namespace

FileList::FileList(QWidget* parent)
    : QWidget(parent), heading_(new QLabel(this)), view_(new FileRows(this)),
      rows_(new QStandardItemModel(this)) {
    rows_->appendRow(new QStandardItem);
    heading_->setFont(textFont(TextStyle::CaptionStrong));
    heading_->setProperty("second", true);
    heading_->setIndent(HeadingLeft);
    heading_->setFixedHeight(HeadingHeight);
    view_->setModel(rows_);
    view_->setItemDelegate(new FileRow(view_));
    view_->setFrameShape(QFrame::NoFrame);
    view_->setMouseTracking(true);
    view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view_->viewport()->setAutoFillBackground(false);
    view_->setCurrentIndex(rows_->index(0, 0));
    setFocusProxy(view_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(HeadingSpace);
    column->addWidget(heading_);
    column->addWidget(view_);
    connect(view_->selectionModel(), &QItemSelectionModel::currentChanged, this, &FileList::tellCurrent);
    connect(view_, &QListView::doubleClicked, this,
            [this](const QModelIndex& index) { emit activated(index.row() + More); });
}

void FileList::setTexts(const QString& heading, const QString& more) {
    heading_->setText(heading);
    view_->setAccessibleName(heading);
    rows_->item(0)->setText(more);
}

void FileList::setEntries(const std::vector<FileEntry>& entries) {
    if (entries == entries_)
        return;
    const QScopedValueRollback quiet(byCode_, true);
    const int before = current();
    entries_ = entries;
    rows_->setRowCount(1);
    for (const FileEntry& entry : entries_)
        rows_->appendRow(itemOf(entry));
    setCurrent(before < static_cast<int>(entries_.size()) ? before : More);
}

void FileList::setCurrent(int file) {
    const QScopedValueRollback quiet(byCode_, true);
    view_->setCurrentIndex(rows_->index(file - More, 0));
}

int FileList::current() const { return view_->currentIndex().row() + More; }

void FileList::tellCurrent(const QModelIndex& index) {
    if (!byCode_ && index.isValid())
        emit currentChanged(index.row() + More);
}

}  // namespace lorvane::desktop
