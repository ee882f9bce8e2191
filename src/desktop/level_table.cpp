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
      overlay_(nullptr) {
    setAccessibleName(tr("Levels of the study"));
    addHeads();
    for (int level = highestLevel; level >= lowestLevel; --level)
        addLevel(menus, level);
    overlay_ = new OutlineOverlay(this);
    sync();
}

void LevelTable::addHeads() {
    for (std::size_t head = 0; head < headCount; ++head) {
        auto* label = new QLabel(this);
        label->setFont(textFont(TextStyle::CaptionStrong));
        label->setProperty("second", true);
        label->installEventFilter(this);
        heads_.push_back(label);
    }
}

// A click on a head asks for the details of its column, a right click opens its menu.
bool LevelTable::eventFilter(QObject* watched, QEvent* event) {
    const auto head = std::find(heads_.begin(), heads_.end(), watched);
    if (head == heads_.end())
        return Card::eventFilter(watched, event);
    const Head& model = desk_.design().screen().heads[static_cast<std::size_t>(head - heads_.begin())];
    if (event->type() == QEvent::MouseButtonPress)
        desk_.click(model.column);
    if (event->type() == QEvent::ContextMenu)
        menus_.popup(model.menu, static_cast<QContextMenuEvent*>(event)->globalPos());
    return false;
}

void LevelTable::addLevel(Menus& menus, int level) {
    names_(level) = new LevelName(this);
    names_(level)->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(names_(level), &QWidget::customContextMenuRequested, this,
            [this, &menus, level](const QPoint& at) {
                menus.popup("popRandomize", names_(level)->mapToGlobal(at));
            });
    for (const FieldCells& cells : desk_.design().screen().fields) {
        if (cells.field->index != FieldIndex::level)
            continue;
        auto* widget = new ValueCell(ValueCell::Kind::Spin, this);
        cells_.push_back(
            std::make_unique<CellBinding>(desk_, menus, FieldRef{cells.field, level}, cells(level), widget));
    }
    for (int arm = 0; arm < 2; ++arm) {
        unitArms_[arm](level) = new ArmLabel(this);
        costArms_[arm](level) = new ArmLabel(this);
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

// The columns that every study shows, and that of the effect where it is shown.
LevelTable::Widths LevelTable::widths() const {
    const int effect = hasEffect() ? effectWidth : 0;
    return {leftMargin + railWidth + nameWidth + 2 * (armGap + armWidth) + pairGap + rightMargin +
                unitsWidth + dispersionWidth() + effect + modelWidth + covariatesWidth + rsqWidth +
                costsWidth,
            effect > 0 ? 6 : 5};
}

bool LevelTable::hasEffect() const { return desk_.design().screen().head(HeadId::effect).Visible; }

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
    p.effect = {0, effectWidth, hasEffect()};
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
    const bool blocked = desk_.design().screen().roles(level) == LevelRole::blocked;
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
        stops.append(stopOf(desk_.design().screen().roles(level)));
        centres.append(rowTop(level) + m.row / 2);
    }
    rail_->setGeometry(leftMargin, 0, railWidth, height());
    rail_->setStops(stops, centres);
}

void LevelTable::placeAll() {
    const Places p = places();
    const int lefts[headCount] = {p.name,       p.units.left,      p.dispersion.left, p.effect.left,
                                  p.model.left, p.covariates.left, p.rsq.left,        p.costs.left};
    for (std::size_t head = 0; head < headCount; ++head)
        heads_[head]->setGeometry(lefts[head], 1, 150, metrics(compact_).head - 1);
    for (int level = lowestLevel; level <= rowCount(); ++level)
        placeRow(level);
    placeRail();
    syncOutlines();
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

// The shown cells that an outline goes around.
QList<QWidget*> LevelTable::tint(const std::vector<std::string>& panels) {
    QList<QWidget*> around;
    for (const std::string& panel : panels) {
        ValueCell* found = cell(panel);
        if (found == nullptr || found->isHidden())
            continue;
        found->setProblem(ValueCell::Problem::Tinted);
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
