// The strip of the effect.
#include "desktop/effect_strip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "desktop/kit/menu_button.h"
#include "desktop/kit/number_label.h"
#include "desktop/kit/text_style.h"
#include "desktop/menus.h"

namespace lorvane::desktop {

namespace {

struct CellRow {
    const char* panel;
    const char* caption;  ///< empty: the study words it
    bool large;
    int width;
};

constexpr CellRow cellRows[] = {{"pnlPrev", "", false, 94},
                                {"pnlD", "", true, 112},
                                {"pnlOR", "Odds ratio", true, 112},
                                {"pnlRR", "Risk ratio", true, 112},
                                {"pnlRD", "Risk difference", true, 112},
                                {"pnlP2", "", true, 112},
                                {"pnlMean", "Mean", false, 94},
                                {"pnlSD", "SD", false, 88}};

const StripCellName& namesOf(std::string_view panel) {
    for (const StripCellName& name : stripCells) {
        if (name.panel == panel)
            return name;
    }
    return stripCells[0];
}

// The heading that follows the study, for the cells that have one.
const Panel* headingOf(const MainScreen& screen, const std::string& panel) {
    if (panel == "pnlD")
        return &screen.lblD;
    if (panel == "pnlPrev")
        return &screen.lblPrev;
    return panel == "pnlP2" ? &screen.lblP2 : nullptr;
}

// The cells in which the effect is stated, the others being what it refers to.
bool statesEffect(std::string_view panel) {
    return panel != "pnlMean" && panel != "pnlSD" && panel != "pnlPrev";
}

bool isMarked(const MainScreen& screen, std::string_view field) {
    for (int number = 1; number <= screen.outlines.last; ++number) {
        if (screen.outlines(number).Visible && screen.outlines(number).from == field)
            return true;
    }
    return false;
}

QLabel* captionLabel(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
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
        addCell(row, cell.panel, QString::fromUtf8(cell.caption), cell.large, cell.width);
    addOtherForm(row);
    row->addStretch(1);
    row->addWidget(separator(this));
    addAlpha(row, menus);
    sync();
}

EffectStrip::Field EffectStrip::addField(QHBoxLayout* row, const QString& caption, QWidget* widget) {
    auto* box = new QWidget(this);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    auto* label = captionLabel(caption, box);
    column->addWidget(label);
    column->addWidget(widget, 0, Qt::AlignLeft);
    row->addWidget(box);
    return {box, label};
}

void EffectStrip::addCell(QHBoxLayout* row, const std::string& panel, const QString& caption, bool large,
                          int width) {
    const StripCellName& names = namesOf(panel);
    auto* widget = new ValueCell(ValueCell::Kind::Spin, this);
    widget->setLarge(large);
    widget->setFixedSize(width, 30);
    const Field field = addField(row, caption, widget);
    cells_.emplace_back(
        std::make_unique<CellBinding>(
            desk_, menus_,
            CellNames{panel, std::string(names.spin), std::string(names.field), std::string(names.popup)},
            desk_.design().screen().*names.cell, ValueCell::Kind::Spin, widget),
        field);
}

void EffectStrip::addOtherForm(QHBoxLayout* row) {
    otherFormValue_ = new NumberLabel(Qt::AlignLeft, this);
    otherFormValue_->setTextRole(Role::SecondText);
    otherFormValue_->setFixedHeight(30);
    otherForm_ = addField(row, QString(), otherFormValue_);
    derivedValue_ = new NumberLabel(Qt::AlignLeft, this);
    derivedValue_->setTextRole(Role::SecondText);
    derivedValue_->setFixedHeight(30);
    derived_ = addField(row, QString(), derivedValue_);
}

void EffectStrip::addAlpha(QHBoxLayout* row, Menus& menus) {
    alpha_ = new MenuButton(QString(), this);
    alpha_->setMenu(menus.menu("popAlpha"));
    alpha_->setAccessibleName(tr("Alpha and tails"));
    addField(row, tr("Alpha and tails"), alpha_);
}

void EffectStrip::sync() {
    const MainScreen& screen = desk_.design().screen();
    const bool effectIsMarked = isMarked(screen, "pnlEffectSize");
    for (auto& [cell, field] : cells_) {
        const StripCellName& names = namesOf(cell->names().panel);
        field.box->setVisible((screen.*names.cell).Visible);
        if (const Panel* heading = headingOf(screen, cell->names().panel))
            field.caption->setText(shownText(heading->Caption));
        cell->sync();
        const bool marked = effectIsMarked && statesEffect(cell->names().panel);
        cell->widget()->setProblem(marked ? ValueCell::Problem::Outlined : ValueCell::Problem::None);
    }
    const bool within = screen.pnldW.Visible;
    otherForm_.box->setVisible(within || screen.pnldT.Visible);
    otherForm_.caption->setText(within ? tr("d (within)") : tr("d (total)"));
    otherFormValue_->setText(shownText(within ? screen.pnldW.Caption : screen.pnldT.Caption));
    derived_.box->setVisible(screen.SSPanel10.Visible);
    derivedValue_->setText(shownText(screen.SSPanel10.Caption));
    alpha_->setText(shownText(screen.pnlAlphaTails.Caption));
}

ValueCell* EffectStrip::cell(const std::string& panel) const {
    for (const auto& [cell, field] : cells_) {
        if (cell->names().panel == panel)
            return cell->widget();
    }
    return nullptr;
}

}  // namespace lorvane::desktop
