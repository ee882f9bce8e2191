// The two panels of the dispersion.
#include "desktop/dispersion_views.h"

#include <QVBoxLayout>
#include <cmath>

#include "base/number_text.h"
#include "desktop/kit/message_card.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/round_scale.h"
#include "desktop/kit/span_plot.h"
#include "desktop/kit/wrapped_label.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr QMargins padding{18, 6, 18, 14};
constexpr int spacing = 12;

WrappedLabel* styled(TextStyle style, bool second) {
    auto* label = new WrappedLabel;
    setTextStyle(*label, style);
    label->setProperty("second", second);
    return label;
}

// A picture of effects ends at round numbers; one of outcomes ends where it was told.
SpanScale scaleOf(const Schematic& picture) {
    const RoundScale round =
        picture.origin ? roundedOut(picture.low, picture.high) : marksWithin(picture.low, picture.high);
    SpanScale scale{picture.low, picture.high, {}, picture.centre, shownText(picture.pnlVal.Caption)};
    if (picture.origin) {
        scale.low = round.low;
        scale.high = round.high();
    }
    for (int i = 0; i <= round.steps; ++i) {
        const double at = round.low + i * round.step;
        const double hair = round.step * 1e-6;
        const bool isZero = std::abs(at) < hair;
        const bool isOrigin = picture.origin && std::abs(at - *picture.origin) < hair;
        scale.marks.append(
            {at, isZero ? QStringLiteral("0") : shownText(fixedText(at, decimalsOf(round))), isOrigin});
    }
    return scale;
}

}  // namespace

DispersionView::DispersionView(Desk& desk, ToolPanel* panel, Menus& menus, const std::string& name,
                               WindowId window, DispersionModel model)
    : PanelView(desk, panel, name), window_(window), model_(std::move(model)),
      table_(new DispersionTable(desk, menus, model_.rows)), sentence_(styled(TextStyle::BodyMedium, false)),
      plot_(new SpanPlot), footer_(styled(TextStyle::Caption, true)), note_(styled(TextStyle::Caption, true)),
      message_(new MessageCard) {
    QVBoxLayout* box = panel->content();
    box->setContentsMargins(padding);
    box->setSpacing(spacing);
    for (QWidget* widget :
         std::initializer_list<QWidget*>{table_, sentence_, plot_, footer_, note_, message_})
        box->addWidget(widget);
}

void DispersionView::addButton(const Button& model, const std::string& control) {
    auto* button = plainButton(shownText(model.Caption));
    connect(button, &PushButton::clicked, this, [this, control] { desk_.click(control); });
    panel()->content()->addWidget(button, 0, Qt::AlignLeft);
    buttons_.emplace_back(button, &model);
}

bool DispersionView::isOpen() const { return desk_.design().isOpen(window_); }

void DispersionView::syncPicture() {
    const Schematic& picture = *model_.picture;
    QList<SpanRow> rows;
    for (int level = highestLevel; level >= lowestLevel; --level) {
        const SpanBar& bar = picture.bars(level);
        if (bar.Visible)
            rows.append({shownText((*model_.rows.units)(level).Caption), bar.low, bar.high, bar.isScores,
                         shownText(bar.lowText), shownText(bar.highText)});
    }
    const bool shown = picture.Visible && !rows.isEmpty();
    if (shown)
        plot_->setContent(rows, scaleOf(picture));
    sentence_->setText(shownText(picture.pnlSchematic.Caption));
    footer_->setText(shownText(picture.pnlFooter.Caption));
    for (QWidget* widget : std::initializer_list<QWidget*>{sentence_, plot_, footer_})
        widget->setVisible(shown);
    note_->setText(shownText(picture.pnlNote.Caption));
    note_->setVisible(shown && !picture.pnlNote.Caption.empty());
}

// What is told of a study without a fault is a remark below its picture.
void DispersionView::syncMessage() {
    message_->setKind(model_.picture->Visible ? MessageCard::Kind::Quiet : MessageCard::Kind::Problem);
    message_->setText(shownText(model_.messageInner->Caption));
    message_->setVisible(model_.messageOuter->Visible);
}

void DispersionView::sync() {
    panel()->setWindowTitle(shownText(model_.title->Caption).trimmed());
    table_->sync();
    syncPicture();
    syncMessage();
    for (const auto& [button, model] : buttons_) {
        button->setVisible(model->Visible);
        button->setText(shownText(model->Caption));
    }
}

namespace {

// In a narrow panel the fields of ICC and span are 8 narrower. The values of the outcome stand under one
// another whether they are fields or not; those of the effect have no room for that.
DispersionModel iccModel(const IccPanel& p) {
    return {&p.pnlTitle,
            {&p.lblUnit,
             &p.pnlUnit,
             {{&p.lblIcc, &p.pnlICC, "txtICC", 74, 74, 8, 0, 24},
              {&p.lblSpan, &p.pnlWidth, "txtMRange", 90, 90, 8, 8, 24},
              {&p.lblRange, nullptr, nullptr, 110, 110, 0, 4, 0}},
             &p.pnlExample,
             "popICCView"},
            &p.picture,
            &p.pnlMsgOuter,
            &p.pnlMsgInner};
}

DispersionModel tauSqModel(const TauSqPanel& p) {
    return {&p.pnlTitle,
            {&p.lblUnit,
             &p.pnlUnit,
             {{&p.lblTauSq, &p.pnlTauSq, "txtTauSq", 62, 86, 8, 0, 0},
              {&p.lblSpan, &p.pnlWidth, "txtDRange", 44, 76, 0, 8, 0},
              {&p.lblOmega, &p.pnlOmega, "txtOmega", 62, 94, 6, 8, 0},
              {&p.lblRange, nullptr, nullptr, 96, 96, 8, 8, 0}},
             &p.pnlExample,
             "popTauSqView"},
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
