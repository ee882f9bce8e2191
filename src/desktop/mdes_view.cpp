// The panel of the smallest detectable effect: a prompt, a band with the answer, two buttons.
#include "desktop/mdes_view.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QShortcut>
#include <QStyle>
#include <QVBoxLayout>

#include "desktop/kit/card.h"
#include "desktop/kit/copy_key.h"
#include "desktop/kit/fitted_line.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/wrapped_label.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr int panelWidth = 600;
constexpr int padding = 22;
constexpr int bandPadding = 20;
constexpr int spaceOverFigure = 16;
constexpr int spaceOverLines = 24;
constexpr int spaceOverNote = 8;
constexpr const char* computeButton = "frmMDES.cmdComputeMDES";
constexpr const char* closeButton = "frmMDES.cmdMDESClose";

struct StateLook {
    CardTone tone;
    TextStyle firstLine;
    bool quietSecondLine;
};

// In the order of MdesWindow::State.
constexpr StateLook looks[] = {
    {CardTone::Quiet, TextStyle::Body, false},
    {CardTone::Accent, TextStyle::Body, false},
    {CardTone::Quiet, TextStyle::BodyMedium, true},
    {CardTone::Problem, TextStyle::BodyMedium, true},
};

WrappedLabel* line() {
    auto* label = new WrappedLabel;
    setTextStyle(*label, TextStyle::Body);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

void setLine(WrappedLabel* label, const std::string& text) {
    label->setText(shownText(text));
    label->setVisible(!text.empty());
}

// The style sheet knows the colour of a second line.
void setSecond(WrappedLabel* label, bool second) {
    label->setProperty("second", second);
    label->style()->unpolish(label);
    label->style()->polish(label);
}

}  // namespace

MdesView::MdesView(Desk& desk, ToolPanel* panel)
    : PanelView(desk, panel, "frmMDES"), prompt_(new WrappedLabel), band_(new Card(CardTone::Accent)),
      figure_(new FittedLine(
          {.words = TextStyle::FigureWords, .number = TextStyle::Figure, .alignment = Qt::AlignLeft})),
      first_(line()), second_(line()), note_(line()) {
    panel->setWindowTitle(shownText(windowTitle(WindowId::frmMDES)));
    panel->setAttribute(Qt::WA_ShowWithoutActivating, false);
    panel->content()->setContentsMargins(padding, 26, padding, 18);
    setTextStyle(*prompt_, TextStyle::PanelHeading);
    // What it would like to be wide; a dock may give it less.
    panel->content()->addSpacerItem(
        new QSpacerItem(panelWidth - 2 * padding, 0, QSizePolicy::Preferred, QSizePolicy::Fixed));
    panel->content()->addWidget(prompt_);
    panel->content()->addSpacing(22);
    panel->content()->addWidget(makeBand());
    setSecond(note_, true);
    note_->setContentsMargins(0, spaceOverNote, 0, 0);
    panel->content()->addSpacing(14);
    panel->content()->addLayout(makeButtons());
    addShortcuts();
}

QWidget* MdesView::makeBand() {
    auto* box = new QVBoxLayout(band_);
    box->setSpacing(4);
    box->addWidget(figure_);
    box->addWidget(first_);
    box->addWidget(second_);
    box->addWidget(note_);
    return band_;
}

QLayout* MdesView::makeButtons() {
    const MdesWindow& model = desk_.application().mdesWindow();
    auto* row = new QHBoxLayout;
    const auto add = [&](const char* control, const Button& button, PushButton* made, int width) {
        made->setObjectName(QString::fromUtf8(control));
        made->setText(shownText(button.Caption));
        made->setMinimumWidth(width);
        connect(made, &PushButton::clicked, this, [this, control] { desk_.click(control); });
        row->addWidget(made);
    };
    add(computeButton, model.compute(), primaryButton(QString()), 220);
    row->addStretch(1);
    add(closeButton, model.closeButton(), plainButton(QString()), 84);
    return row;
}

void MdesView::addShortcuts() {
    const auto press = [this](const QKeySequence& key, auto action) {
        connect(new QShortcut(key, panel()), &QShortcut::activated, this, action);
    };
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
        press(key, [this] { desk_.click(computeButton); });
    press(Qt::Key_Escape, [this] { desk_.click(closeButton); });
    new CopyKey(panel(), [this] { copy(); });
}

void MdesView::copy() const {
    const QStringList lines = {first_->text(), second_->text(), note_->text()};
    QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')).trimmed());
}

bool MdesView::isOpen() const { return desk_.design().isOpen(WindowId::frmMDES); }

void MdesView::sync() {
    const MdesWindow& model = desk_.application().mdesWindow();
    const StateLook& look = looks[static_cast<std::size_t>(model.state())];
    prompt_->setText(shownText(model.prompt().Caption));
    band_->setTone(look.tone);
    band_->setVisible(model.state() != MdesWindow::State::resting);
    figure_->setText(shownText(model.figureWords()), shownText(model.figureNumber().Caption));
    figure_->setVisible(model.hasFigure());
    const int above = model.hasFigure() ? spaceOverFigure : spaceOverLines;
    band_->layout()->setContentsMargins(zoomed(*band_, bandPadding), zoomed(*band_, above),
                                        zoomed(*band_, bandPadding), zoomed(*band_, above));
    setTextStyle(*first_, look.firstLine);
    setLine(first_, model.firstLine().Caption);
    setSecond(second_, look.quietSecondLine);
    setLine(second_, model.secondLine().Caption);
    setLine(note_, model.note().Caption);
    if (isOpen() && !wasOpen_)
        panel()->findChild<PushButton*>(QString::fromUtf8(computeButton))->setFocus();
    wasOpen_ = isOpen();
}

}  // namespace lorvane::desktop
