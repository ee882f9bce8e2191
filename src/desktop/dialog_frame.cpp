// The window of a small dialog around its fields.
#include "desktop/dialog_frame.h"

#include <QHBoxLayout>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "desktop/desk.h"
#include "desktop/kit/elided_label.h"
#include "desktop/kit/field_note.h"
#include "desktop/kit/plain_text.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr int padding = 22;
constexpr int paddingBelow = 18;
constexpr int noteHeight = 20;
constexpr QSize frameOfWindow(16, 60);  // what the window system puts around it

}  // namespace

DialogFrame::DialogFrame(ToolPanel* panel, const Dialog& model, int width,
                         std::function<void(const DialogButton&)> press)
    : panel_(panel), model_(model), width_(width), press_(std::move(press)), area_(new QScrollArea),
      body_(new QWidget), fields_(new QVBoxLayout), heading_(new ElidedLabel(width)), sense_(new FieldNote),
      note_(new FieldNote(noteHeight)) {
    QSizePolicy keepsRoom = note_->sizePolicy();
    keepsRoom.setRetainSizeWhenHidden(true);
    note_->setSizePolicy(keepsRoom);
    setTextStyle(*heading_, TextStyle::PanelHeading);
    panel->content()->setContentsMargins(0, 0, 0, 0);
    panel->content()->addWidget(area_);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setFocusPolicy(Qt::NoFocus);
    area_->setWidget(body_);
    area_->viewport()->setAutoFillBackground(false);
    body_->setAutoFillBackground(false);
    auto* column = new QVBoxLayout(body_);
    column->setContentsMargins(padding, padding, padding, paddingBelow);
    column->setSpacing(0);
    column->addWidget(heading_);
    column->addSpacing(3);
    column->addWidget(sense_);
    column->addSpacing(18);
    column->addLayout(fields_);
    fields_->setSpacing(8);
}

void DialogFrame::finish() {
    auto* column = static_cast<QVBoxLayout*>(body_->layout());
    column->addSpacing(9);
    column->addWidget(note_);
    column->addSpacing(20);
    column->addLayout(makeButtons());
}

// What can be undone by another button stands apart at the left; the primary one is the last.
QHBoxLayout* DialogFrame::makeButtons() {
    QHBoxLayout* row = makeRow(model_.sideButtons);
    for (const DialogButton& button : model_.buttons)
        row->addWidget(makeButton(button, &button == &model_.buttons.back()));
    return row;
}

QHBoxLayout* DialogFrame::makeRow(const std::vector<DialogButton>& buttons) {
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    for (const DialogButton& button : buttons)
        row->addWidget(makeButton(button, false));
    row->addStretch(1);
    return row;
}

PushButton* DialogFrame::makeButton(const DialogButton& button, bool primary) {
    const QString caption = literalCaption(shownText(button.caption));
    PushButton* made = primary ? primaryButton(caption) : plainButton(caption);
    made->setObjectName(QString::fromStdString(button.control));
    made->setAutoDefault(true);
    QObject::connect(made, &PushButton::clicked, panel_, [this, &button] { press_(button); });
    return made;
}

void DialogFrame::sync() {
    panel_->setWindowTitle(literalTitle(shownText(model_.title.Caption)));
    heading_->setText(shownText(model_.headingText()));
    sense_->setText(shownText(model_.sense.Caption));
    sense_->setVisible(!sense_->text().isEmpty());
    const bool refused = !model_.refusal.empty();
    const bool problem = refused || model_.note.trouble;
    note_->setText(shownText(refused ? model_.refusal : model_.note.Caption),
                   problem ? FieldNote::Tone::Problem : FieldNote::Tone::Quiet);
    note_->setVisible(!note_->text().isEmpty());
    note_->keepRoomFor(shownText(model_.note.Caption));
    fit();
}

// The least size of wrapped texts is that of a width they have not got yet, so the height is asked for the
// width. On a narrow screen the texts wrap first; only what is still too wide or too high scrolls.
void DialogFrame::fit() {
    QLayout& layout = *body_->layout();
    layout.invalidate();
    const QSize room = panel_->screen()->availableGeometry().size() - frameOfWindow;
    const int bar = area_->verticalScrollBar()->sizeHint().width();
    const auto sizeIn = [&](int space) {
        const int inner = std::max(std::min(width_ + 2 * padding, space), layout.minimumSize().width());
        return QSize(inner, layout.hasHeightForWidth() ? layout.totalHeightForWidth(inner)
                                                       : layout.totalMinimumSize().height());
    };
    QSize whole = sizeIn(room.width());
    const bool isHigh = whole.height() > room.height();
    if (isHigh)
        whole = sizeIn(room.width() - bar);
    QSize shown = whole + QSize(isHigh ? bar : 0, 0);
    if (shown.width() > room.width())
        shown.rheight() += bar;
    body_->setFixedSize(whole);
    area_->setFixedSize(shown.boundedTo(room));
}

}  // namespace lorvane::desktop
