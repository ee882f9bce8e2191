// The table of levels.
#include "desktop/level_table.h"

#include <QContextMenuEvent>
#include <QLabel>
#include <QPainter>
#include <algorithm>
#include <array>

#include "base/names.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "desktop/menus.h"
#include "desktop/role_word.h"
#include "screen/tool_table.h"

namespace lorvane::desktop {

namespace {

constexpr int railWidth = 50;
constexpr int leftMargin = 10;
constexpr int rightMargin = 14;
constexpr int armWidth = 88;
constexpr int armGap = 9;

// Widths of the fields; the spare width goes to the name and the gaps.
constexpr int unitsWidth = 94, iccWidth = 82, effectWidth = 98, modelWidth = 98, covariatesWidth = 78,
              rsqWidth = 82, costsWidth = 110;
constexpr int nameWidth = 150;
constexpr int smallestGap = 18;
constexpr int pairGap = 14;  // between covariates and R-sq

enum Head {
    levelHead,
    unitsHead,
    dispersionHead,
    effectHead,
    modelHead,
    covariatesHead,
    rsqHead,
    costsHead,
    headCount
};

// The cells that an outline goes around, by the kind of cell that it starts at.
struct OutlinedCells {
    std::string_view from;
    std::array<const char*, 5> cells;
};
constexpr OutlinedCells outlinedCells[] = {{"pnlLevel", {"pnlQ", "pnlRsq", "pnlNT", "pnlNC", "pnlNB"}},
                                           {"pnlQ", {"pnlQ", "pnlRsq"}},
                                           {"pnlModel", {"pnlModel"}},
                                           {"pnlICC", {"pnlICC", "pnlMRange"}},
                                           {"pnlTauSq", {"pnlTauSq", "pnlDRange", "pnlOmega"}},
                                           {"pnlCostT", {"pnlCostT", "pnlCostC", "pnlCostB"}}};

std::string popupOf(std::string_view pattern, int level) {
    if (pattern.find("{}") == std::string_view::npos)
        return std::string(pattern);
    return levelTool(pattern, level);
}

LevelRail::Stop stopOf(const Study& s, int level) {
    if (level == s.RandomizedLevel)
        return LevelRail::Stop::Randomized;
    return s.isBlocked(level) ? LevelRail::Stop::Blocked : LevelRail::Stop::Nested;
}

// A head stands on one line; its caption may have two.
QString onOneLine(const std::string& heading) { return shownText(heading).replace('\n', ' ').trimmed(); }

const std::string& headingOf(const MainScreen& screen, ColumnId first, ColumnId second, ColumnId third) {
    for (const ColumnId id : {first, second}) {
        if (screen.column(id).heading.Visible)
            return screen.column(id).heading.Caption;
    }
    return screen.column(third).heading.Caption;
}

}  // namespace

LevelTable::LevelTable(Desk& desk, Menus& menus, QWidget* parent)
    : Card(CardTone::Plain, parent), desk_(desk), menus_(menus), rail_(new LevelRail(this)),
      overlay_(nullptr) {
    setAccessibleName(tr("Levels of the study"));
    addHeads();
    for (int level = highestLevel; level >= lowestLevel; --level)
        addLevel(menus, level);
    overlay_ = new OutlineOverlay(this);
    sync();
}

void LevelTable::addHeads() {
    for (int head = 0; head < headCount; ++head) {
        auto* label = new QLabel(this);
        label->setFont(textFont(TextStyle::CaptionStrong));
        label->setProperty("second", true);
        label->installEventFilter(this);
        heads_.push_back(label);
    }
}

// The column that a head stands for, as the study shows it.
std::string LevelTable::columnOf(int head) const {
    const MainScreen& screen = desk_.design().screen();
    const auto shown = [&](ColumnId id) { return screen.column(id).heading.Visible; };
    switch (head) {
    case levelHead:
        return "colLevels";
    case unitsHead:
        return "colUnits";
    case dispersionHead:
        return shown(ColumnId::icc) ? "colICC" : "colMSpan";
    case effectHead:
        return shown(ColumnId::tauSq) ? "colTauSq" : shown(ColumnId::dSpan) ? "colDSpan" : "colOmega";
    case modelHead:
        return "colModel";
    case costsHead:
        return "colCost";
    default:
        return "colRsq";
    }
}

// A click on a head asks for its details, a right click opens the menu of its dispersion.
bool LevelTable::eventFilter(QObject* watched, QEvent* event) {
    const auto head = std::find(heads_.begin(), heads_.end(), watched);
    if (head == heads_.end())
        return Card::eventFilter(watched, event);
    const int number = static_cast<int>(head - heads_.begin());
    if (event->type() == QEvent::MouseButtonPress)
        desk_.click(columnOf(number));
    if (event->type() == QEvent::ContextMenu && number == dispersionHead)
        menus_.popup("popICCView", static_cast<QContextMenuEvent*>(event)->globalPos());
    if (event->type() == QEvent::ContextMenu && number == effectHead)
        menus_.popup("popTauSqView", static_cast<QContextMenuEvent*>(event)->globalPos());
    return false;
}

void LevelTable::addLevel(Menus& menus, int level) {
    names_(level) = new LevelName(this);
    names_(level)->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(names_(level), &QWidget::customContextMenuRequested, this,
            [this, &menus, level](const QPoint& at) {
                menus.popup("popRandomize", names_(level)->mapToGlobal(at));
            });
    for (const LevelCellName& name : levelCells) {
        const bool choice = name.panel == "pnlModel";
        auto* widget = new ValueCell(choice ? ValueCell::Kind::Choice : ValueCell::Kind::Spin, this);
        cells_.push_back(std::make_unique<CellBinding>(
            desk_, menus,
            CellNames{indexedName(name.panel, level), indexedName(name.spin, level),
                      indexedName(name.field, level), popupOf(name.popup, level)},
            (desk_.design().screen().*name.cells)(level),
            choice ? ValueCell::Kind::Choice : ValueCell::Kind::Spin, widget));
    }
    for (int arm = 0; arm < 2; ++arm) {
        unitArms_[arm](level) = new ArmLabel(this);
        costArms_[arm](level) = new ArmLabel(this);
    }
}

CellBinding* LevelTable::binding(std::string_view stem, int level) const {
    const std::string name = indexedName(stem, level);
    for (const auto& cell : cells_) {
        if (cell->names().panel == name)
            return cell.get();
    }
    return nullptr;
}

ValueCell* LevelTable::cell(const std::string& panel) const {
    const IndexedName name = splitName(panel);
    CellBinding* found = name.index ? binding(name.stem, *name.index) : nullptr;
    return found == nullptr ? nullptr : found->widget();
}

LevelTable::Metrics LevelTable::metrics(bool compact) const {
    if (compact)
        return {34, 66, 26, 2};
    return {38, rowCount() == 4 ? 78 : 86, 28, 4};
}

int LevelTable::heightOf(bool compact) const {
    const Metrics m = metrics(compact);
    return m.head + rowCount() * m.row + 2;
}

QSize LevelTable::sizeHint() const { return {1240, heightOf(compact_)}; }

QSize LevelTable::minimumSizeHint() const {
    const Widths widths = this->widths();
    return {widths.fixed + widths.gaps * smallestGap, heightOf(compact_)};
}

// The columns that every study shows, and that of the effect where there are blocks.
LevelTable::Widths LevelTable::widths() const {
    const int effect = desk_.study().isHierarchical() ? 0 : effectWidth;
    return {leftMargin + railWidth + nameWidth + 2 * (armGap + armWidth) + pairGap + rightMargin +
                unitsWidth + dispersionWidth() + effect + modelWidth + covariatesWidth + rsqWidth +
                costsWidth,
            effect > 0 ? 6 : 5};
}

// A span takes more digits than an ICC.
int LevelTable::dispersionWidth() const {
    return desk_.design().screen().column(ColumnId::mSpan).heading.Visible ? effectWidth : iccWidth;
}

int LevelTable::rowTop(int level) const {
    const Metrics m = metrics(compact_);
    return m.head + (rowCount() - level) * m.row;
}

// Columns from left to right: the spare width is shared 5 to 2 by the name and the gaps between columns.
LevelTable::Places LevelTable::places() const {
    Places p;
    p.units = {0, unitsWidth, true};
    p.dispersion = {0, dispersionWidth(), true};
    p.effect = {0, effectWidth, !desk_.study().isHierarchical()};
    p.model = {0, modelWidth, true};
    p.covariates = {0, covariatesWidth, true};
    p.rsq = {0, rsqWidth, true};
    p.costs = {0, costsWidth, true};
    ColumnPlace* const columns[] = {&p.units, &p.dispersion, &p.effect, &p.model, &p.covariates, &p.costs};
    const Widths widths = this->widths();
    const int spare = std::max(width() - widths.fixed, widths.gaps * smallestGap);
    const int part = std::max((spare - widths.gaps * smallestGap) / (5 + 2 * widths.gaps), 0);
    p.name = leftMargin + railWidth + 1;
    int left = p.name + nameWidth + 5 * part;
    for (ColumnPlace* column : columns) {
        if (!column->shown)
            continue;
        column->left = left;
        left += column->width + smallestGap + 2 * part;
        if (column == &p.units)
            left += armGap + armWidth;
        if (column == &p.covariates) {
            p.rsq.left = column->left + column->width + pairGap;
            left += pairGap + rsqWidth;
        }
    }
    p.costs.left = width() - rightMargin - armWidth - armGap - costsWidth;
    return p;
}

void LevelTable::placeSingle(CellBinding* cell, int left, int width, int middle) {
    const int height = metrics(compact_).field;
    cell->widget()->setGeometry(left, middle - height / 2, width, height);
}

void LevelTable::placePair(CellBinding* upper, CellBinding* lower, CellBinding* single, int left, int width,
                           int middle) {
    const Metrics m = metrics(compact_);
    upper->widget()->setGeometry(left, middle - m.gap / 2 - m.field, width, m.field);
    lower->widget()->setGeometry(left, middle + m.gap / 2, width, m.field);
    placeSingle(single, left, width, middle);
}

void LevelTable::placeRow(int level) {
    const Places p = places();
    const Metrics m = metrics(compact_);
    const int middle = rowTop(level) + m.row / 2;
    const bool blocked = desk_.study().isBlocked(level);
    names_(level)->setGeometry(p.name, middle - m.row / 2 + 1, p.units.left - p.name - 8, m.row - 2);
    placePair(binding("pnlNT", level), binding("pnlNC", level), binding("pnlNB", level), p.units.left,
              p.units.width, middle);
    placePair(binding("pnlCostT", level), binding("pnlCostC", level), binding("pnlCostB", level),
              p.costs.left, p.costs.width, middle);
    placeSingle(binding("pnlICC", level), p.dispersion.left, p.dispersion.width, middle);
    placeSingle(binding("pnlMRange", level), p.dispersion.left, p.dispersion.width, middle);
    for (const char* stem : {"pnlTauSq", "pnlDRange", "pnlOmega"})
        placeSingle(binding(stem, level), p.effect.left, p.effect.width, middle);
    placeSingle(binding("pnlModel", level), p.model.left, p.model.width, middle);
    placeSingle(binding("pnlQ", level), p.covariates.left, p.covariates.width, middle);
    placeSingle(binding("pnlRsq", level), p.rsq.left, p.rsq.width, middle);
    for (int arm = 0; arm < 2; ++arm) {
        const int top =
            blocked ? middle - m.field / 2 : (arm == 0 ? middle - m.gap / 2 - m.field : middle + m.gap / 2);
        unitArms_[arm](level)->setGeometry(p.units.left + p.units.width + armGap, top, armWidth, m.field);
        costArms_[arm](level)->setGeometry(p.costs.left + p.costs.width + armGap, top, armWidth, m.field);
    }
}

void LevelTable::placeRail() {
    const Metrics m = metrics(compact_);
    QList<LevelRail::Stop> stops;
    QList<int> centres;
    for (int level = rowCount(); level >= 1; --level) {
        stops.append(stopOf(desk_.study(), level));
        centres.append(rowTop(level) + m.row / 2);
    }
    rail_->setGeometry(leftMargin, 0, railWidth, height());
    rail_->setStops(stops, centres);
}

void LevelTable::placeAll() {
    const Places p = places();
    const int lefts[headCount] = {p.name,       p.units.left,      p.dispersion.left, p.effect.left,
                                  p.model.left, p.covariates.left, p.rsq.left,        p.costs.left};
    for (int head = 0; head < headCount; ++head)
        heads_[static_cast<std::size_t>(head)]->setGeometry(lefts[head], 1, 150, metrics(compact_).head - 1);
    for (int level = lowestLevel; level <= rowCount(); ++level)
        placeRow(level);
    placeRail();
    syncOutlines();
}

void LevelTable::sync() {
    const MainScreen& screen = desk_.design().screen();
    const QString texts[headCount] = {
        shownText(screen.column(ColumnId::levels).heading.Caption),
        shownText(screen.column(ColumnId::units).heading.Caption),
        onOneLine(headingOf(screen, ColumnId::icc, ColumnId::mSpan, ColumnId::mSpan)),
        onOneLine(headingOf(screen, ColumnId::tauSq, ColumnId::dSpan, ColumnId::omega)),
        shownText(screen.column(ColumnId::model).heading.Caption),
        tr("# Covariates"),
        tr("R-sq"),
        shownText(screen.column(ColumnId::cost).heading.Caption)};
    for (int head = 0; head < headCount; ++head)
        heads_[static_cast<std::size_t>(head)]->setText(texts[head]);
    heads_[effectHead]->setVisible(!desk_.study().isHierarchical());
    for (const auto& cell : cells_)
        cell->sync();
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        const bool used = screen.BpnlLevel(level).Visible;
        const bool blocked = desk_.study().isBlocked(level);
        names_(level)->setVisible(used);
        names_(level)->setLevel(shownText(screen.pnlName(level).Caption),
                                roleWord(screen.pnlLevel(level).Caption),
                                level == desk_.study().RandomizedLevel);
        const auto armOf = [&](const Cell& cell, ArmLabel* label, ArmLabel::Dot dot) {
            label->setVisible(used && cell.Visible);
            label->setArm(dot, shownText(cell.arm));
        };
        using Dot = ArmLabel::Dot;
        armOf(blocked ? screen.pnlNB(level) : screen.pnlNT(level), unitArms_[0](level),
              blocked ? Dot::None : Dot::Treated);
        armOf(screen.pnlNC(level), unitArms_[1](level), Dot::Control);
        armOf(blocked ? screen.pnlCostB(level) : screen.pnlCostT(level), costArms_[0](level),
              blocked ? Dot::None : Dot::Treated);
        armOf(screen.pnlCostC(level), costArms_[1](level), Dot::Control);
    }
    updateGeometry();
    placeAll();
}

// The shown cells of an outline that starts at a kind of cell, over some levels.
QList<QWidget*> LevelTable::tint(std::string_view from, int lowest, int highest) {
    QList<QWidget*> around;
    for (const OutlinedCells& row : outlinedCells) {
        if (row.from != from)
            continue;
        for (int level = lowest; level <= std::min(highest, rowCount()); ++level) {
            for (const char* stem : row.cells) {
                ValueCell* cell = stem == nullptr ? nullptr : binding(stem, level)->widget();
                if (cell == nullptr || cell->isHidden())
                    continue;
                cell->setProblem(ValueCell::Problem::Tinted);
                around.append(cell);
            }
        }
    }
    return around;
}

// The model names the controls between which an outline runs; the cells between them are tinted.
void LevelTable::syncOutlines() {
    QList<Outline> outlines;
    for (const auto& cell : cells_)
        cell->widget()->setProblem(ValueCell::Problem::None);
    const auto& models = desk_.design().screen().outlines;
    for (int number = 1; number <= models.last; ++number) {
        const lorvane::Outline& model = models(number);
        const IndexedName from = splitName(model.from);
        const int to = splitName(model.to).index.value_or(0);
        if (!model.Visible || !from.index)
            continue;
        const QList<QWidget*> around = tint(from.stem, std::min(*from.index, to), std::max(*from.index, to));
        if (!around.isEmpty())
            outlines.append({overlay_->rectangleAround(around), 5});
    }
    overlay_->setOutlines(outlines);
}

void LevelTable::setCompact(bool compact) {
    if (compact_ == compact)
        return;
    compact_ = compact;
    updateGeometry();
    placeAll();
}

void LevelTable::resizeEvent(QResizeEvent* event) {
    Card::resizeEvent(event);
    placeAll();
}

void LevelTable::paintEvent(QPaintEvent* event) {
    Card::paintEvent(event);
    QPainter painter(this);
    const Metrics m = metrics(compact_);
    const int nameLeft = places().name;
    painter.fillRect(QRect(1, m.head - 1, width() - 2, 1), colour(Role::Line));
    for (int level = rowCount() - 1; level >= 1; --level)
        painter.fillRect(QRect(nameLeft, rowTop(level), width() - nameLeft - rightMargin, 1),
                         colour(Role::Line));
}

}  // namespace lorvane::desktop
