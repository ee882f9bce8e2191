// The strip of the effect.
#include "desktop/effect_strip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/kit/elided_label.h"
#include "desktop/kit/menu_button.h"
#include "desktop/kit/number_label.h"
#include "desktop/kit/text_style.h"
#include "desktop/menus.h"

namespace lorvane::desktop {

namespace {

constexpr int widestCaption = 240;

struct CellRow {
    const char* panel;
    bool large;
    int width;
};

constexpr CellRow cellRows[] = {{"pnlPrev", false, 94}, {"pnlD", true, 112},  {"pnlOR", true, 112},
                                {"pnlRR", true, 112},   {"pnlRD", true, 112}, {"pnlP2", true, 112},
                                {"pnlMean", false, 94}, {"pnlSD", false, 88}};

bool isMarked(const MainScreen& screen, const std::string& panel) {
    for (int number = 1; number <= screen.outlines.last; ++number) {
        const std::vector<std::string>& around = screen.outlines(number).around;
        if (screen.outlines(number).Visible && std::find(around.begin(), around.end(), panel) != around.end())
            return true;
    }
    return false;
}

const lorvane::Field& fieldOfCell(const MainScreen& screen, std::string_view panel) {
    const auto found = std::find_if(screen.fields.begin(), screen.fields.end(),
                                    [&](const FieldCells& cells) { return cells.field->cell.stem == panel; });
    return *found->field;
}

QLabel* captionLabel(QWidget* parent) {
    auto* label = new ElidedLabel(widestCaption, parent);
    label->setFont(textFont(TextStyle::Caption));
    label->setProperty("second", true);
    return label;
}

QFrame* separator(QWidget* parent) {
    auto* line = new QFrame(parent);
    line->setFixedWidth(1);
    line->setObjectName(QStringLiteral("separator"));
    line->setFrameShape(QFrame::NoFrame);
    return line;
}

}  // namespace

EffectStrip::EffectStrip(Desk& desk, Menus& menus, QWidget* parent)
    : Card(CardTone::Plain, parent), desk_(desk), menus_(menus) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(18, 9, 18, 9);
    row->setSpacing(22);
    cells_.reserve(std::size(cellRows));
    for (const CellRow& cell : cellRows)
        addCell(row, cell.panel, cell.large, cell.width);
    addOtherForm(row);
    row->addStretch(1);
    row->addWidget(separator(this));
    addAlpha(row, menus);
    sync();
}

EffectStrip::Field EffectStrip::addField(QHBoxLayout* row, QWidget* widget) {
    auto* box = new QWidget(this);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    auto* label = captionLabel(box);
    column->addWidget(label);
    column->addWidget(widget, 0, Qt::AlignLeft);
    row->addWidget(box);
    return {box, label};
}

void EffectStrip::addCell(QHBoxLayout* row, const std::string& panel, bool large, int width) {
    const MainScreen& screen = desk_.design().screen();
    auto* widget = new ValueCell(ValueCell::Kind::Spin, this);
    widget->setLarge(large);
    widget->setFixedSize(width, 30);
    const lorvane::Field& names = fieldOfCell(screen, panel);
    const Field field = addField(row, widget);
    cells_.emplace_back(
        std::make_unique<CellBinding>(desk_, menus_, FieldRef{&names, 0}, screen.cell(panel), widget), field);
}

void EffectStrip::addOtherForm(QHBoxLayout* row) {
    otherFormValue_ = makeNumber();
    otherForm_ = addField(row, otherFormValue_);
    derivedValue_ = makeNumber();
    derived_ = addField(row, derivedValue_);
}

NumberLabel* EffectStrip::makeNumber() {
    auto* label = new NumberLabel(Qt::AlignLeft, this);
    label->setTextRole(Role::SecondText);
    label->setFixedHeight(30);
    return label;
}

void EffectStrip::addAlpha(QHBoxLayout* row, Menus& menus) {
    alpha_ = new MenuButton(QString(), this);
    alpha_->setMenu(menus.menu("popAlpha"));
    alphaField_ = addField(row, alpha_);
}

void EffectStrip::sync() {
    const MainScreen& screen = desk_.design().screen();
    for (auto& [cell, field] : cells_) {
        const Cell& model = screen.cell(cell->panel());
        field.box->setVisible(model.Visible);
        field.caption->setText(shownText(model.heading));
        cell->sync();
        cell->widget()->setProblem(isMarked(screen, cell->panel()) ? ValueCell::Problem::Outlined
                                                                   : ValueCell::Problem::None);
    }
    otherForm_.box->setVisible(screen.lblOther.Visible);
    otherForm_.caption->setText(shownText(screen.lblOther.Caption));
    otherFormValue_->setText(shownText(screen.pnlOther.Caption));
    derived_.box->setVisible(screen.SSPanel10.Visible);
    derivedValue_->setText(shownText(screen.SSPanel10.Caption));
    alphaField_.caption->setText(shownText(screen.lblAlpha.Caption));
    alpha_->setAccessibleName(alphaField_.caption->text());
    alpha_->setText(shownText(screen.pnlAlphaTails.Caption));
}

ValueCell* EffectStrip::firstCell() const {
    const auto shown = std::find_if(cells_.begin(), cells_.end(),
                                    [](const auto& entry) { return !entry.second.box->isHidden(); });
    return shown == cells_.end() ? nullptr : shown->first->widget();
}

ValueCell* EffectStrip::cell(const std::string& panel) const {
    for (const auto& [cell, field] : cells_) {
        if (cell->panel() == panel)
            return cell->widget();
    }
    return nullptr;
}

}  // namespace lorvane::desktop
