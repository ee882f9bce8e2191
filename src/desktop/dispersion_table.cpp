// The table of a dispersion panel. All lengths are those of 100 %.
#include "desktop/dispersion_table.h"

#include <QContextMenuEvent>
#include <QLabel>
#include <QPainter>
#include <algorithm>

#include "desktop/kit/elided_label.h"
#include "desktop/kit/fitted_line.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/zoom.h"
#include "desktop/menus.h"

namespace lorvane::desktop {

namespace {

constexpr int preferredWidth = 364;
constexpr int narrowWidth = 348;
constexpr int smallestWidth = 324;
constexpr int headHeight = 34;
constexpr int rowPitch = 39;  // a row of 38 and its line
constexpr int fieldHeight = 28;
constexpr int arrowsWidth = 24;  // of a field, right of its number
constexpr int nameGap = 6;

}  // namespace

DispersionTable::DispersionTable(Desk& desk, Menus& menus, DispersionRows rows, QWidget* parent)
    : QWidget(parent), desk_(desk), menus_(menus), model_(std::move(rows)), overlay_(nullptr) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    for (std::size_t head = 0; head <= model_.columns.size(); ++head) {
        heads_.push_back(new QLabel(this));
        setTextStyle(*heads_.back(), TextStyle::CaptionStrong);
        heads_.back()->setProperty("second", true);
        heads_.back()->setAlignment(Qt::AlignVCenter | (head == 0 ? Qt::AlignLeft : Qt::AlignRight));
    }
    for (int level = highestLevel; level >= lowestLevel; --level)
        addRow(level);
    overlay_ = new OutlineOverlay(this);
}

DispersionTable::Value DispersionTable::makeValue(const PanelColumn& column, int level) {
    const Role role = column.cells == nullptr ? Role::Text : Role::SecondText;
    Value value{nullptr, new FittedLine({.numberRole = role}, this)};
    if (column.cells == nullptr)
        return value;
    const FieldRef field{&fieldOf(column.field), level};
    value.field = std::make_unique<CellBinding>(desk_, menus_, field, (*column.cells)(level),
                                                new ValueCell(ValueCell::Kind::Spin, this));
    value.line->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(value.line, &QWidget::customContextMenuRequested, this,
            [this, line = value.line, menu = std::string(field->cell.menu)](const QPoint& at) {
                menus_.popup(menu, line->mapToGlobal(at));
            });
    return value;
}

void DispersionTable::addRow(int level) {
    Row row{level, new ElidedLabel(QWIDGETSIZE_MAX, this), {}};
    setTextStyle(*row.name, TextStyle::BodyStrong);
    for (const PanelColumn& column : model_.columns)
        row.values.push_back(makeValue(column, level));
    rows_.push_back(std::move(row));
}

const Panel& DispersionTable::modelOf(const PanelColumn& column, int level) const {
    return column.cells == nullptr ? (*model_.ranges)(level) : (*column.cells)(level);
}

bool DispersionTable::isEntered(const PanelColumn& column, int level) const {
    return column.cells != nullptr && (*column.cells)(level).Visible &&
           (*column.cells)(level).state == CellState::changeable;
}

// Why a value that follows from another entry cannot be entered here.
QString DispersionTable::restOf(const PanelColumn& column, int level) const {
    return column.cells == nullptr ? QString() : shownText((*column.cells)(level).rest);
}

bool DispersionTable::hasFields(const PanelColumn& column) const {
    return std::any_of(rows_.begin(), rows_.end(),
                       [&](const Row& row) { return isEntered(column, row.level); });
}

void DispersionTable::syncRow(const Row& row) {
    const Panel& unit = (*model_.units)(row.level);
    row.name->setVisible(unit.Visible);
    row.name->setText(shownText(unit.Caption));
    for (std::size_t i = 0; i < row.values.size(); ++i) {
        const PanelColumn& column = model_.columns[i];
        const Panel& model = modelOf(column, row.level);
        const bool shown = unit.Visible && model.Visible && column.head->Visible;
        const bool entered = shown && isEntered(column, row.level);
        FittedLine* line = row.values[i].line;
        line->setText(QString(), shownText(model.Caption));
        line->setVisible(shown && !entered);
        line->setToolTip(restOf(column, row.level));
        line->setAccessibleName(row.name->text() + QStringLiteral(", ") + shownText(column.head->Caption) +
                                QStringLiteral(", ") + shownText(model.Caption));
        if (CellBinding* field = row.values[i].field.get()) {
            field->sync();
            field->widget()->setVisible(entered);
            field->widget()->setProblem(entered && model.trouble ? ValueCell::Problem::Tinted
                                                                 : ValueCell::Problem::None);
        }
    }
}

void DispersionTable::sync() {
    for (std::size_t i = 0; i < heads_.size(); ++i) {
        const ColumnHead& model = i == 0 ? *model_.unit : *model_.columns[i - 1].head;
        heads_[i]->setText(shownText(model.brief));
        heads_[i]->setAccessibleName(shownText(model.Caption));
        heads_[i]->setToolTip(model.brief == model.Caption ? QString() : shownText(model.Caption));
        heads_[i]->setVisible(model.Visible);
    }
    for (const Row& row : rows_)
        syncRow(row);
    QStringList ranges;
    for (const Row& row : rows_)
        ranges.append(shownText((*model_.ranges)(row.level).Caption));
    for (const Row& row : rows_)
        row.values.back().line->setCompanions(ranges);
    updateGeometry();
    placeAll();
    update();
}

int DispersionTable::rowCount() const {
    return static_cast<int>(std::count_if(
        rows_.begin(), rows_.end(), [&](const Row& row) { return (*model_.units)(row.level).Visible; }));
}

QSize DispersionTable::sizeHint() const {
    return {zoomed(*this, preferredWidth), zoomed(*this, headHeight + rowPitch * rowCount())};
}

QSize DispersionTable::minimumSizeHint() const { return {zoomed(*this, smallestWidth), sizeHint().height()}; }

// From the right: the columns keep their widths, and the names have the rest.
std::vector<DispersionTable::Place> DispersionTable::places() const {
    std::vector<Place> list(model_.columns.size());
    const int whole = static_cast<int>(figureRect(*this).width());
    int right = whole;
    for (std::size_t i = list.size(); i-- > 0;) {
        const PanelColumn& column = model_.columns[i];
        list[i].shown = column.head->Visible;
        if (!list[i].shown)
            continue;
        const int full = hasFields(column) ? column.entered : column.derived;
        list[i].right = right;
        right -= whole < narrowWidth ? full - column.givesWay : full;
        list[i].left = right + column.lead;
    }
    return list;
}

void DispersionTable::placeAll() {
    const std::vector<Place> list = places();
    const auto first = std::find_if(list.begin(), list.end(), [](const Place& place) { return place.shown; });
    const int nameWidth = first->left - nameGap;
    heads_[0]->setGeometry(0, 0, zoomed(*this, nameWidth), zoomed(*this, headHeight));
    for (std::size_t i = 0; i < list.size(); ++i) {
        const PanelColumn& column = model_.columns[i];
        const int right = list[i].right - (hasFields(column) ? arrowsWidth : column.inset);
        const int width = heads_[i + 1]->sizeHint().width();
        heads_[i + 1]->setGeometry(zoomed(*this, right) - width, 0, width, zoomed(*this, headHeight));
    }
    int top = headHeight;
    for (const Row& row : rows_) {
        if (!(*model_.units)(row.level).Visible)
            continue;
        row.name->setGeometry(0, zoomed(*this, top), zoomed(*this, nameWidth), zoomed(*this, rowPitch - 1));
        placeRow(row, list, top);
        top += rowPitch;
    }
    syncOutlines();
}

void DispersionTable::placeRow(const Row& row, const std::vector<Place>& places, int top) {
    const auto rectangle = [this](int left, int y, int right, int height) {
        return QRect(zoomed(*this, left), zoomed(*this, y), zoomed(*this, right - left),
                     zoomed(*this, height));
    };
    const int fieldTop = top + (rowPitch - 1 - fieldHeight) / 2;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const int inset = model_.columns[i].inset;
        row.values[i].line->setGeometry(
            rectangle(places[i].left, fieldTop, places[i].right - inset, fieldHeight));
        if (row.values[i].field)
            row.values[i].field->widget()->setGeometry(
                rectangle(places[i].left, fieldTop, places[i].right, fieldHeight));
    }
}

// One outline around fields at fault that stand below one another.
void DispersionTable::syncOutlines() {
    QList<Outline> outlines;
    for (std::size_t i = 0; i < model_.columns.size(); ++i) {
        QList<QWidget*> around;
        const auto close = [&] {
            if (!around.isEmpty())
                outlines.append({overlay_->rectangleAround(around), 5});
            around.clear();
        };
        for (const Row& row : rows_) {
            if (row.values[i].field && row.values[i].field->widget()->hasProblem())
                around.append(row.values[i].field->widget());
            else
                close();
        }
        close();
    }
    overlay_->setOutlines(outlines);
}

void DispersionTable::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    placeAll();
}

void DispersionTable::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange && overlay_ != nullptr)
        placeAll();
}

void DispersionTable::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (int line = 0; line <= rowCount(); ++line)
        painter.fillRect(0, zoomed(*this, headHeight + line * rowPitch) - 1, width(), 1, colour(Role::Line));
}

void DispersionTable::contextMenuEvent(QContextMenuEvent* event) {
    if (event->pos().y() < zoomed(*this, headHeight))
        menus_.popup(model_.menu, event->globalPos());
}

}  // namespace lorvane::desktop
