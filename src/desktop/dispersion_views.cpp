// The two panels of the dispersion.
#include "desktop/dispersion_views.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <cmath>

#include "base/names.h"
#include "base/number_text.h"
#include "desktop/kit/elided_label.h"
#include "desktop/kit/message_card.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/span_plot.h"
#include "desktop/kit/text_style.h"
#include "desktop/menus.h"
#include "session/field_words.h"

namespace lorvane::desktop {

namespace {

constexpr int panelWidth = 560;
constexpr int rowHeight = 42;
constexpr int widestUnit = 130;
constexpr int marks = 5;

QLabel* styled(TextStyle style) {
    auto* label = new QLabel;
    label->setFont(textFont(style));
    label->setWordWrap(true);
    label->setProperty("second", style == TextStyle::Caption || style == TextStyle::CaptionStrong);
    return label;
}

// Five marks from end to end of the scale, in as many decimals as tell them apart.
QList<SpanMark> marksOf(const Schematic& picture) {
    QList<SpanMark> list;
    const double step = (picture.high - picture.low) / (marks - 1);
    const int decimals = step >= 10 ? 0 : step >= 1 ? 1 : 2;
    for (int i = 0; i < marks; ++i) {
        const double at = picture.low + i * step;
        list.append({at, shownText(fixedText(at, decimals)), false});
    }
    return list;
}

}  // namespace

DispersionView::DispersionView(Desk& desk, ToolPanel* panel, Menus& menus, const std::string& name,
                               WindowId window, DispersionModel model)
    : PanelView(desk, panel, name), menus_(menus), window_(window), model_(std::move(model)),
      sentence_(styled(TextStyle::BodyMedium)), plot_(new SpanPlot), footer_(styled(TextStyle::Caption)),
      note_(styled(TextStyle::Caption)), message_(new MessageCard) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(18);
    grid->setVerticalSpacing(0);
    heads_.push_back(styled(TextStyle::CaptionStrong));
    grid->addWidget(heads_.back(), 0, 0);
    for (std::size_t column = 0; column < model_.columns.size(); ++column) {
        heads_.push_back(styled(TextStyle::CaptionStrong));
        grid->addWidget(heads_.back(), 0, static_cast<int>(column) + 1, Qt::AlignBottom);
    }
    for (int level = highestLevel; level >= lowestLevel; --level)
        addRow(grid, level);
    grid->setColumnStretch(0, 1);
    auto* box = panel->content();
    box->setSpacing(14);
    box->addLayout(grid);
    for (QWidget* widget :
         {static_cast<QWidget*>(sentence_), static_cast<QWidget*>(plot_), static_cast<QWidget*>(footer_),
          static_cast<QWidget*>(note_), static_cast<QWidget*>(message_)}) {
        widget->setFixedWidth(panelWidth);
        box->addWidget(widget);
    }
}

ValueCell* DispersionView::addCell(const PanelColumn& column, int level) {
    auto* cell = new ValueCell(ValueCell::Kind::ReadOnly);
    const bool range = column.spins == nullptr;
    cell->setFixedSize(range ? 170 : 96, 28);
    if (range)
        return cell;
    const std::string spin = indexedName(column.spin, level);
    const std::string field = indexedName(column.field, level);
    connect(cell, &ValueCell::stepped, this,
            [this, spin](int direction) { desk_.spin(spin, direction, ArrowHold::tick); });
    connect(cell, &ValueCell::focused, this,
            [this, cell, field] { cell->setAccessibleDescription(desk_.hintOf(*findField(field))); });
    connect(cell, &ValueCell::stepFinished, this, [this] { desk_.spinReleased(); });
    connect(cell, &ValueCell::activated, this, [this, field] { desk_.openValue(field); });
    const std::string popup = column.popup;
    connect(cell, &ValueCell::contextMenuRequested, this,
            [this, popup](const QPoint& place) { menus_.popup(popup, place); });
    return cell;
}

void DispersionView::addRow(QGridLayout* grid, int level) {
    const int line = highestLevel - level + 1;
    Row row{level, new ElidedLabel(widestUnit), {}};
    row.unit->setFont(textFont(TextStyle::BodyStrong));
    grid->addWidget(row.unit, line, 0);
    for (std::size_t column = 0; column < model_.columns.size(); ++column) {
        row.cells.push_back(addCell(model_.columns[column], level));
        grid->addWidget(row.cells.back(), line, static_cast<int>(column) + 1);
    }
    rows_.push_back(std::move(row));
}

void DispersionView::addButton(const Button& model, const std::string& control) {
    auto* button = plainButton(shownText(model.Caption));
    connect(button, &PushButton::clicked, this, [this, control] { desk_.click(control); });
    panel()->content()->addWidget(button, 0, Qt::AlignLeft);
    buttons_.emplace_back(button, &model);
}

bool DispersionView::isOpen() const { return desk_.design().isOpen(window_); }

void DispersionView::syncRow(const Row& row) {
    const Panel& unit = (*model_.units)(row.level);
    row.unit->setVisible(unit.Visible);
    row.unit->setText(shownText(unit.Caption));
    row.unit->setMinimumHeight(unit.Visible ? rowHeight : 0);
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
        const PanelColumn& column = model_.columns[i];
        const Panel& cell = (*column.cells)(row.level);
        row.cells[i]->setVisible(unit.Visible && cell.Visible && column.heading->Visible);
        row.cells[i]->setText(shownText(cell.Caption));
        const bool changeable = column.spins != nullptr && (*column.spins)(row.level);
        if (!changeable && row.cells[i]->hasFocus())
            row.cells[i]->clearFocus();
        row.cells[i]->setKind(changeable ? ValueCell::Kind::Spin : ValueCell::Kind::ReadOnly);
        if (column.field == nullptr)
            row.cells[i]->setAccessibleName(row.unit->text() + QStringLiteral(", ") +
                                            shownText(column.heading->Caption));
        else
            row.cells[i]->setAccessibleName(
                shownText(fieldWords(desk_.study(), {&fieldOf(column.field), row.level})));
    }
}

void DispersionView::syncPicture() {
    const Schematic& picture = *model_.picture;
    QList<SpanRow> rows;
    for (int level = highestLevel; level >= lowestLevel; --level) {
        const SpanBar& bar = picture.bars(level);
        if (bar.Visible)
            rows.append({shownText((*model_.units)(level).Caption), bar.low, bar.high, bar.isScores,
                         shownText(bar.lowText), shownText(bar.highText)});
    }
    plot_->setContent(rows, {picture.low, picture.high, marksOf(picture), picture.centre,
                             shownText(picture.pnlVal.Caption)});
    plot_->setVisible(!rows.isEmpty());
    sentence_->setText(shownText(picture.pnlSchematic.Caption));
    sentence_->setVisible(!rows.isEmpty());
    footer_->setText(shownText(picture.pnlFooter.Caption));
    footer_->setVisible(!rows.isEmpty());
    note_->setText(shownText(picture.pnlNote.Caption));
    note_->setVisible(!picture.pnlNote.Caption.empty());
}

void DispersionView::sync() {
    panel()->setWindowTitle(shownText(model_.title->Caption).trimmed());
    heads_[0]->setText(shownText(model_.unit->Caption));
    for (std::size_t i = 0; i < model_.columns.size(); ++i) {
        heads_[i + 1]->setText(shownText(model_.columns[i].heading->Caption));
        heads_[i + 1]->setVisible(model_.columns[i].heading->Visible);
    }
    for (const Row& row : rows_)
        syncRow(row);
    syncPicture();
    message_->setVisible(model_.messageOuter->Visible);
    message_->setText(shownText(model_.messageInner->Caption));
    for (const auto& [button, model] : buttons_) {
        button->setVisible(model->Visible);
        button->setText(shownText(model->Caption));
    }
}

namespace {

DispersionModel iccModel(const IccPanel& p) {
    return {&p.pnlTitle,
            &p.lblUnit,
            &p.pnlUnit,
            {{&p.lblIcc, &p.pnlICC, &p.iccSpin, "frmDisplayICC.spnIcc", "txtICC", "popICC"},
             {&p.lblSpan, &p.pnlWidth, &p.spanSpin, "frmDisplayICC.spnMRange", "txtMRange", "popMRange"},
             {&p.lblRange, &p.pnlExample, nullptr, nullptr, nullptr, nullptr}},
            &p.picture,
            &p.pnlMsgOuter,
            &p.pnlMsgInner};
}

DispersionModel tauSqModel(const TauSqPanel& p) {
    return {&p.pnlTitle,
            &p.lblUnit,
            &p.pnlUnit,
            {{&p.lblTauSq, &p.pnlTauSq, &p.tauSqSpin, "frmDisplayTauSq.spnTauSq", "txtTauSq", "popTauSq"},
             {&p.lblSpan, &p.pnlWidth, &p.spanSpin, "frmDisplayTauSq.spnDRange", "txtDRange", "popDRange"},
             {&p.lblOmega, &p.pnlOmega, &p.omegaSpin, "frmDisplayTauSq.spnOmega", "txtOmega", "popOmega"},
             {&p.lblRange, &p.pnlExample, nullptr, nullptr, nullptr, nullptr}},
            &p.picture,
            &p.pnlMsgOuter,
            &p.pnlMsgInner};
}

}  // namespace

IccView::IccView(Desk& desk, ToolPanel* panel, Menus& menus)
    : DispersionView(desk, panel, menus, "frmDisplayICC", WindowId::frmDisplayICC,
                     iccModel(desk.design().iccPanel())) {
    addButton(desk.design().iccPanel().cmdDelta, "frmDisplayICC.cmdDelta");
    addButton(desk.design().iccPanel().cmdOptions, "frmDisplayICC.cmdOptions");
}

TauSqView::TauSqView(Desk& desk, ToolPanel* panel, Menus& menus)
    : DispersionView(desk, panel, menus, "frmDisplayTauSq", WindowId::frmDisplayTauSq,
                     tauSqModel(desk.design().tauSqPanel())) {}

}  // namespace lorvane::desktop
