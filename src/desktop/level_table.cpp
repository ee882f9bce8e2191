// The table of levels.
#include "desktop/level_table.h"

#include <QContextMenuEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>
#include <array>
#include <cmath>

#include "base/names.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/zoom.h"
#include "desktop/menus.h"

namespace lorvane::desktop {

namespace {

constexpr int railLeft = 10;
constexpr int railWidth = 50;
constexpr int barMargin = 5;
constexpr int barStep = 24;

enum class Line { upper, lower, middle };

// Where the cells of a level stand: the column, and the line of a pair or the middle of the row.
struct CellPlace {
    std::string_view stem;
    ColumnOf column;
    Line line;
};

constexpr CellPlace cellPlaces[] = {{"pnlNT", &TableColumns::units, Line::upper},
                                    {"pnlNC", &TableColumns::units, Line::lower},
                                    {"pnlNB", &TableColumns::units, Line::middle},
                                    {"pnlICC", &TableColumns::dispersion, Line::middle},
                                    {"pnlMRange", &TableColumns::dispersion, Line::middle},
                                    {"pnlTauSq", &TableColumns::effect, Line::middle},
                                    {"pnlDRange", &TableColumns::effect, Line::middle},
                                    {"pnlOmega", &TableColumns::effect, Line::middle},
                                    {"pnlModel", &TableColumns::model, Line::middle},
                                    {"pnlQ", &TableColumns::covariates, Line::middle},
                                    {"pnlRsq", &TableColumns::rsq, Line::middle},
                                    {"pnlCostT", &TableColumns::costs, Line::upper},
                                    {"pnlCostC", &TableColumns::costs, Line::lower},
                                    {"pnlCostB", &TableColumns::costs, Line::middle}};

// The columns of the heads behind that of the names.
constexpr ColumnOf headColumns[] = {&TableColumns::units, &TableColumns::dispersion, &TableColumns::effect,
                                    &TableColumns::model, &TableColumns::covariates, &TableColumns::rsq,
                                    &TableColumns::costs};

// Null for a cell that is never shown.
const CellPlace* placeOf(const CellBinding& cell) {
    const auto* found = std::find_if(std::begin(cellPlaces), std::end(cellPlaces), [&](const CellPlace& row) {
        return row.stem == cell.field()->cell.stem;
    });
    return found == std::end(cellPlaces) ? nullptr : found;
}

LevelRail::Stop stopOf(LevelRole role) {
    switch (role) {
    case LevelRole::randomized:
        return LevelRail::Stop::Randomized;
    case LevelRole::blocked:
        return LevelRail::Stop::Blocked;
    case LevelRole::nested:
        break;
    }
    return LevelRail::Stop::Nested;
}

}  // namespace

LevelTable::LevelTable(Desk& desk, Menus& menus, QWidget* parent)
    : Card(CardTone::Plain, parent), desk_(desk), menus_(menus), rail_(new LevelRail(this)),
      fields_(new QWidget(this)), bar_(new QScrollBar(Qt::Horizontal, this)), overlay_(nullptr) {
    setAccessibleName(tr("Levels of the study"));
    connect(bar_, &QScrollBar::valueChanged, this, &LevelTable::scrollTo);
    addHeads();
    for (int level = highestLevel; level >= lowestLevel; --level)
        addLevel(menus, level);
    overlay_ = new OutlineOverlay(this);
    sync();
}

void LevelTable::addHeads() {
    for (std::size_t head = 0; head < headCount; ++head) {
        auto* label = new QLabel(head == 0 ? this : fields_);
        setTextStyle(*label, TextStyle::CaptionStrong);
        label->setProperty("second", true);
        label->installEventFilter(this);
        heads_.push_back(label);
    }
}

// A click on a head or a name asks for the details of its column, a right click on a head opens its menu.
bool LevelTable::eventFilter(QObject* watched, QEvent* event) {
    const bool clicked = event->type() == QEvent::MouseButtonPress &&
                         static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    for (int level = lowestLevel; clicked && level <= highestLevel; ++level) {
        if (watched == names_(level))
            desk_.click(indexedName("pnlName", level));
    }
    const auto head = std::find(heads_.begin(), heads_.end(), watched);
    if (head == heads_.end())
        return Card::eventFilter(watched, event);
    const Head& model = desk_.design().screen().heads[static_cast<std::size_t>(head - heads_.begin())];
    if (clicked)
        desk_.click(model.column);
    if (event->type() == QEvent::ContextMenu)
        menus_.popup(model.menu, static_cast<QContextMenuEvent*>(event)->globalPos());
    return false;
}

void LevelTable::addLevel(Menus& menus, int level) {
    names_(level) = new LevelName(this);
    names_(level)->setObjectName(QString::fromStdString(indexedName("pnlName", level)));
    names_(level)->installEventFilter(this);
    names_(level)->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(names_(level), &QWidget::customContextMenuRequested, this,
            [this, &menus, level](const QPoint& at) {
                menus.popup("popRandomize", names_(level)->mapToGlobal(at));
            });
    for (const FieldCells& cells : desk_.design().screen().fields) {
        if (cells.field->index != FieldIndex::level)
            continue;
        auto* widget = new ValueCell(ValueCell::Kind::Spin, fields_);
        cells_.push_back(
            std::make_unique<CellBinding>(desk_, menus, FieldRef{cells.field, level}, cells(level), widget));
        connect(widget, &ValueCell::focused, this,
                [this, cell = cells_.back().get()] { bringInSight(*cell); });
    }
    for (int arm = 0; arm < 2; ++arm) {
        unitArms_[arm](level) = new ArmLabel(fields_);
        costArms_[arm](level) = new ArmLabel(fields_);
    }
}

CellBinding* LevelTable::binding(std::string_view stem, int level) const {
    const std::string name = indexedName(stem, level);
    for (const auto& cell : cells_) {
        if (cell->panel() == name)
            return cell.get();
    }
    return nullptr;
}

ValueCell* LevelTable::cell(const std::string& panel) const {
    const IndexedName name = splitName(panel);
    CellBinding* found = name.index ? binding(name.stem, *name.index) : nullptr;
    return found == nullptr ? nullptr : found->widget();
}

QSize LevelTable::sizeHint() const { return {zoomed(*this, 1240), zoomed(*this, sizes_.table)}; }

QSize LevelTable::minimumSizeHint() const { return {0, zoomed(*this, sizes_.table)}; }

TableShape LevelTable::shape() const {
    const MainScreen& screen = desk_.design().screen();
    TableShape shape;
    shape.span = screen.column(ColumnId::mSpan).heading.Visible;
    shape.effect = screen.head(HeadId::effect).Visible;
    const double zoom = zoomOf(*this);
    const auto longest = [zoom](int so, const QWidget& words) {
        return std::max(so, static_cast<int>(std::ceil(words.sizeHint().width() / zoom)));
    };
    for (int level = lowestLevel; level <= rowCount(); ++level) {
        shape.name = longest(shape.name, *names_(level));
        for (const auto& arm : unitArms_)
            shape.arm = longest(shape.arm, *arm(level));
    }
    return shape;
}

QRect LevelTable::inPixels(int left, int top, int width, int height) const {
    return {zoomed(*this, left), zoomed(*this, top), zoomed(*this, width), zoomed(*this, height)};
}

void LevelTable::placeRail() {
    QList<LevelRail::Stop> stops;
    QList<int> centres;
    for (int level = rowCount(); level >= 1; --level) {
        stops.append(stopOf(desk_.design().screen().roles(level)));
        centres.append(rowTop(level) + sizes_.row / 2);
    }
    rail_->setGeometry(inPixels(railLeft, 0, railWidth, sizes_.table));
    rail_->setStops(stops, centres);
}

// The top of the field of an arm: 0 for the upper, 1 for the lower one.
int LevelTable::topOf(int level, int arm) const {
    const int middle = rowTop(level) + sizes_.row / 2;
    return arm == 0 ? middle - sizes_.pairGap / 2 - sizes_.field : middle + sizes_.pairGap / 2;
}

void LevelTable::placeCells() {
    for (const auto& cell : cells_) {
        const CellPlace* place = placeOf(*cell);
        if (place == nullptr)
            continue;
        const ColumnPlace& column = shifted_.*(place->column);
        const int level = cell->field().index;
        const int middle = rowTop(level) + sizes_.row / 2 - sizes_.field / 2;
        const int top =
            place->line == Line::middle ? middle : topOf(level, place->line == Line::upper ? 0 : 1);
        cell->widget()->setGeometry(inPixels(column.left, top, column.width, sizes_.field));
    }
}

void LevelTable::placeArms(int level) {
    const bool blocked = desk_.design().screen().roles(level) == LevelRole::blocked;
    const int middle = rowTop(level) + sizes_.row / 2 - sizes_.field / 2;
    for (int arm = 0; arm < 2; ++arm) {
        const int top = blocked ? middle : topOf(level, arm);
        const auto behind = [&](const ColumnPlace& column, int width) {
            return inPixels(column.left + column.width + shifted_.armGap, top, width, sizes_.field);
        };
        unitArms_[arm](level)->setGeometry(behind(shifted_.units, shifted_.unitArm));
        costArms_[arm](level)->setGeometry(behind(shifted_.costs, shifted_.costArm));
    }
}

void LevelTable::placeLevel(int level) {
    names_(level)->setGeometry(
        inPixels(columns_.name, rowTop(level) + 1, columns_.nameWidth, sizes_.row - 2));
    placeArms(level);
}

void LevelTable::placeHeads() {
    const auto place = [&](QLabel* head, int left) {
        head->setGeometry(zoomed(*this, left), 1, head->sizeHint().width(), zoomed(*this, sizes_.head) - 1);
    };
    place(heads_[0], columns_.name);
    for (std::size_t column = 0; column < std::size(headColumns); ++column)
        place(heads_[column + 1], (shifted_.*headColumns[column]).left);
}

void LevelTable::placeAll() {
    const double zoom = zoomOf(*this);
    const TableColumns before = columns_;
    columns_ = tableColumns(shape(), static_cast<int>(width() / zoom));
    if (columns_ != before)
        update();
    const int left = zoomed(*this, columns_.fields);
    fields_->setGeometry(left, 0, width() - left - 1, height());
    shift_ = nearestShift(columns_, shift_, fieldsWidth());
    shifted_ = scrolledColumns(columns_, shift_, fieldsWidth());
    placeBar();
    placeHeads();
    placeCells();
    for (int level = lowestLevel; level <= rowCount(); ++level)
        placeLevel(level);
    placeRail();
    syncOutlines();
}

int LevelTable::fieldsWidth() const { return static_cast<int>(fields_->width() / zoomOf(*this)); }

void LevelTable::placeBar() {
    const QSignalBlocker blocker(bar_);
    const int room = fieldsWidth();
    bar_->setVisible(columns_.sideways);
    bar_->setGeometry(inPixels(columns_.fields, rowTop(0) - 1, room - barMargin, tableBarHeight));
    bar_->setRange(0, lastShift(columns_, room));
    bar_->setPageStep(room);
    bar_->setSingleStep(barStep);
    if (!bar_->isSliderDown())
        bar_->setValue(shift_);
}

// The bar moves by pixels, the columns from one to the next.
void LevelTable::scrollTo(int position) {
    const int shift = nearestShift(columns_, position, fieldsWidth());
    if (shift == shift_)
        return;
    shift_ = shift;
    placeAll();
}

QWidget* LevelTable::armBeside(const std::string& panel) const {
    const IndexedName name = splitName(panel);
    const int level = name.index.value_or(0);
    if (level < lowestLevel || level > highestLevel)
        return nullptr;
    const std::pair<std::string_view, ArmLabel*> arms[] = {
        {"pnlNT", unitArms_[0](level)},    {"pnlNB", unitArms_[0](level)},
        {"pnlNC", unitArms_[1](level)},    {"pnlCostT", costArms_[0](level)},
        {"pnlCostB", costArms_[0](level)}, {"pnlCostC", costArms_[1](level)}};
    for (const auto& [stem, label] : arms) {
        if (stem == name.stem)
            return label;
    }
    return nullptr;
}

void LevelTable::reveal(const std::string& panel) {
    for (const auto& cell : cells_) {
        if (cell->panel() == panel)
            bringInSight(*cell);
    }
}

void LevelTable::bringInSight(const CellBinding& cell) {
    const int shift = shiftToShow(columns_, placeOf(cell)->column, shift_, fieldsWidth());
    if (shift == shift_)
        return;
    shift_ = shift;
    placeAll();
}

void LevelTable::sync() {
    const MainScreen& screen = desk_.design().screen();
    for (std::size_t head = 0; head < headCount; ++head) {
        heads_[head]->setText(shownText(screen.heads[head].Caption));
        heads_[head]->setVisible(screen.heads[head].Visible);
    }
    for (const auto& cell : cells_)
        cell->sync();
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        const bool used = screen.BpnlLevel(level).Visible;
        const bool blocked = screen.roles(level) == LevelRole::blocked;
        names_(level)->setVisible(used);
        names_(level)->setLevel(shownText(screen.pnlName(level).Caption),
                                QString::fromLatin1(roleWord(screen.roles(level))),
                                screen.roles(level) == LevelRole::randomized);
        const auto armOf = [&](const Cell& cell, ArmLabel* label, ArmLabel::Dot dot) {
            label->setVisible(used && cell.Visible);
            label->setArm(dot, shownText(cell.arm));
        };
        using Dot = ArmLabel::Dot;
        armOf(screen.cell(blocked ? "pnlNB" : "pnlNT", level), unitArms_[0](level),
              blocked ? Dot::None : Dot::Treated);
        armOf(screen.cell("pnlNC", level), unitArms_[1](level), Dot::Control);
        armOf(screen.cell(blocked ? "pnlCostB" : "pnlCostT", level), costArms_[0](level),
              blocked ? Dot::None : Dot::Treated);
        armOf(screen.cell("pnlCostC", level), costArms_[1](level), Dot::Control);
    }
    updateGeometry();
    placeAll();
}

// The shown cells that an outline goes around, without those that are scrolled out of sight.
QList<QWidget*> LevelTable::tint(const std::vector<std::string>& panels) {
    QList<QWidget*> around;
    for (const std::string& panel : panels) {
        ValueCell* found = cell(panel);
        if (found == nullptr || found->isHidden())
            continue;
        found->setProblem(ValueCell::Problem::Tinted);
        if (fields_->rect().contains(found->geometry()))
            around.append(found);
    }
    return around;
}

void LevelTable::syncOutlines() {
    QList<Outline> outlines;
    for (const auto& cell : cells_)
        cell->widget()->setProblem(ValueCell::Problem::None);
    const auto& models = desk_.design().screen().outlines;
    for (int number = 1; number <= models.last; ++number) {
        const QList<QWidget*> around =
            models(number).Visible ? tint(models(number).around) : QList<QWidget*>();
        if (!around.isEmpty())
            outlines.append({overlay_->rectangleAround(around), 5});
    }
    overlay_->setOutlines(outlines);
}

void LevelTable::setSizes(const PageSizes& sizes) {
    sizes_ = sizes;
    updateGeometry();
    placeAll();
    update();
}

void LevelTable::resizeEvent(QResizeEvent* event) {
    Card::resizeEvent(event);
    placeAll();
    for (const auto& cell : cells_) {
        if (cell->widget() == window()->focusWidget())
            bringInSight(*cell);
    }
}

void LevelTable::paintEvent(QPaintEvent* event) {
    Card::paintEvent(event);
    QPainter painter(this);
    const QColor line = colour(Role::Line);
    const int left = zoomed(*this, columns_.name);
    const int right = width() - zoomed(*this, columns_.rightMargin);
    painter.fillRect(QRect(1, zoomed(*this, sizes_.head), width() - 2, 1), line);
    for (int level = rowCount() - 1; level >= 1; --level)
        painter.fillRect(QRect(left, zoomed(*this, rowTop(level)), right - left, 1), line);
    if (columns_.sideways)
        painter.fillRect(inPixels(columns_.fields - 1, 0, 1, rowTop(0)), line);
}

}  // namespace lorvane::desktop
