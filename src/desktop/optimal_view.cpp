// The optimal design wizard.
#include "desktop/optimal_view.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "base/names.h"
#include "desktop/kit/notes_overlay.h"
#include "desktop/kit/offer_card.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/result_band.h"
#include "desktop/kit/trial_plot.h"
#include "desktop/kit/trial_table.h"
#include "desktop/kit/zoom.h"
#include "desktop/optimal_goal.h"
#include "desktop/optimal_levels.h"

namespace lorvane::desktop {

namespace {

constexpr int contentWidth = 756;
constexpr int plotWidth = 337;
constexpr int buttonsHeight = 32;
constexpr int usualHeight = 650;
constexpr int frameHeight = 40;  // of the window system, above and below
constexpr int fewestRows = 3, mostRows = 10;
constexpr int fewestRowsWhenLow = 2;
constexpr QMargins usualMargins(22, 12, 22, 15), tightMargins(22, 8, 22, 10);
constexpr int usualSpacing = 12, tightSpacing = 5;
enum ButtonNumber { reset = 1, compute, paste, close };
constexpr const char* trialsName = "frmOptimal.vsTrials";
constexpr std::size_t heads = 1;  // rows of the program's table before the first trial

std::string nameOf(int button) { return indexedName("frmOptimal.cmdOpt", button); }

QString captionOf(const Panel& panel) { return shownText(panel.Caption).trimmed(); }

// The words of a button that is on offer, else nothing.
QString wordsOf(const Button& button) { return button.Visible ? shownText(button.Caption) : QString(); }

QStringList textsOf(const Grid::Row& cells) {
    QStringList texts;
    for (const std::string& cell : cells)
        texts << shownText(cell);
    return texts;
}

QStringList together(const QStringList& titles, const QStringList& texts) {
    QStringList pairs;
    for (qsizetype i = 0; i < titles.size(); ++i)
        pairs << titles[i] + QLatin1Char(' ') + texts[i];
    return pairs;
}

}  // namespace

OptimalView::OptimalView(Desk& desk, ToolPanel* panel, Menus& menus)
    : PanelView(desk, panel, "frmOptimal"), goal_(new GoalLine(desk)), title_(new QLabel),
      levels_(new OptimalLevels(desk, menus)), band_(new ResultBand), other_(new OfferCard),
      trials_(makeTrials()), openNotes_(nullptr), notes_(nullptr) {
    panel->setWindowTitle(shownText(windowTitle(WindowId::frmOptimal)));
    panel->setAttribute(Qt::WA_ShowWithoutActivating, false);
    panel->installEventFilter(this);
    setTextStyle(*title_, TextStyle::PanelHeading);
    title_->setWordWrap(true);
    QVBoxLayout* box = panel->content();
    box->setSizeConstraint(QLayout::SetMinAndMaxSize);
    for (QWidget* part : std::initializer_list<QWidget*>{goal_, title_, levels_, band_, other_, trials_}) {
        part->setFixedWidth(contentWidth);
        box->addWidget(part, part == trials_ ? 1 : 0);
    }
    trials_->hide();
    box->addWidget(makeButtons());
    notes_ = new NotesOverlay(panel);
    connect(notes_, &NotesOverlay::closeRequested, this, [this] { press("frmOptimal.cmdAdjustClose"); });
    connect(notes_, &NotesOverlay::pressed, this, [this] {
        desk_.click("frmOptimal.cmdOther");
        press("frmOptimal.cmdAdjustClose");
    });
    connect(band_, &ResultBand::backRequested, this, [this] { press("frmOptimal.cmdCheapest"); });
    connect(other_, &OfferCard::taken, this, [this] { press("frmOptimal.cmdOther"); });
    connect(new QShortcut(Qt::Key_Escape, panel), &QShortcut::activated, this, &OptimalView::leave);
}

// Parts ----------------------------------------------------------------------------------------------------

QWidget* OptimalView::makeTrials() {
    auto* pair = new QWidget;
    plot_ = new TrialPlot;
    plot_->setFixedWidth(plotWidth);
    connect(plot_, &TrialPlot::picked, this, &OptimalView::select);
    table_ = new TrialTable;
    table_->table()->setAccessibleName(tr("Trials"));
    table_->table()->installEventFilter(this);
    connect(table_->table(), &RecordTable::selectionChangedByUser, this,
            [this](const QList<int>& rows) { select(rows.isEmpty() ? -1 : rows.first()); });
    auto* row = new QHBoxLayout(pair);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(14);
    row->addWidget(plot_);
    row->addWidget(table_);
    return pair;
}

PushButton* OptimalView::makeButton(const std::string& control) {
    PushButton* button = plainButton(QString());
    button->setObjectName(QString::fromStdString(control));
    button->setMinimumWidth(84);
    connect(button, &PushButton::clicked, this, [this, control] { press(control); });
    return button;
}

// The row keeps its height while a search hides all its buttons.
QWidget* OptimalView::makeButtons() {
    auto* line = new QWidget;
    line->setFixedSize(contentWidth, buttonsHeight);
    for (int number = reset; number <= close; ++number)
        buttons_.emplace(number, makeButton(nameOf(number)));
    openNotes_ = makeButton("frmOptimal.cmdNotes");
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    row->addWidget(buttons_.at(reset));
    row->addWidget(openNotes_);
    row->addStretch(1);
    for (const int number : {compute, paste, close})
        row->addWidget(buttons_.at(number));
    return line;
}

// What the user does ---------------------------------------------------------------------------------------

const OptimalWindow& OptimalView::model() const { return desk_.application().optimalWindow(); }

PushButton* OptimalView::primary() const { return buttons_.at(model().primaryButton()); }

// The keyboard goes on to the next sensible button.
void OptimalView::press(const std::string& control) {
    desk_.click(control);
    if (!notes_->isVisible())
        primary()->setFocus();
}

void OptimalView::select(int trial) {
    std::vector<std::size_t> rows;
    if (trial >= 0)
        rows.push_back(static_cast<std::size_t>(trial) + heads);
    desk_.select(trialsName, rows);
}

void OptimalView::leave() {
    if (notes_->isVisible())
        press("frmOptimal.cmdAdjustClose");
    else
        desk_.close("frmOptimal");
}

// Enter presses the button with the keyboard, and elsewhere the next sensible one.
bool OptimalView::eventFilter(QObject* watched, QEvent* event) {
    const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event)->key() : 0;
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return PanelView::eventFilter(watched, event);
    auto* focused = qobject_cast<PushButton*>(panel()->focusWidget());
    (focused != nullptr ? focused : primary())->click();
    return true;
}

// What the program shows -----------------------------------------------------------------------------------

bool OptimalView::isOpen() const { return desk_.design().isOpen(WindowId::frmOptimal); }

void OptimalView::syncBand() {
    const OptimalWindow& m = model();
    switch (m.state()) {
    case OptimalWindow::State::result:
        band_->setContent(BandFigure{shownText(m.pnlCostWords().Caption), captionOf(m.pnlCostNumber()),
                                     captionOf(m.pnlOptimalNote()), wordsOf(m.cmdCheapest())});
        break;
    case OptimalWindow::State::problem:
        band_->setContent(BandProblem{captionOf(m.pnlProblem()), captionOf(m.pnlOptimalInner())});
        break;
    case OptimalWindow::State::message:
        band_->setContent(BandText{captionOf(m.pnlOptimalInner())});
        break;
    }
    other_->setVisible(m.pnlOther().Visible);
    other_->setOffer(captionOf(m.pnlOther()), wordsOf(m.cmdOther()));
}

// The rows of the table and the points of the plot.
void OptimalView::showTrials(const OptimalOutcome& outcome) {
    const OptimalWindow& m = model();
    const std::vector<Grid::Row>& table = outcome.vsTrials().rows;
    const QStringList titles = textsOf(table.front());
    TrialPlotContent content;
    content.title = captionOf(m.lblPlot());
    content.sizeLabel = captionOf(m.lblPlotSize());
    content.bestLabel = captionOf(m.lblPlotBest());
    content.shownLabel = captionOf(m.lblPlotShown());
    content.provenLabel = captionOf(m.lblPlotProven());
    content.best = static_cast<int>(outcome.best());
    content.areShares = outcome.result().goal == OptimalGoal::mostPower;
    if (content.areShares)
        content.limit = desk_.study().ReqPower;
    if (m.lblPlotShown().Visible)
        content.shown = static_cast<int>(outcome.shownDesign());
    if (m.lblPlotProven().Visible)
        content.proven = static_cast<int>(*outcome.other());
    std::vector<QStringList> rows;
    for (const Trial& design : outcome.designs()) {
        const std::size_t number = rows.size();
        rows.push_back(textsOf(table[number + heads]));
        content.points << TrialPoint{design.sizes(desk_.study().NumLevels),
                                     content.areShares ? design.power : static_cast<double>(design.cost),
                                     together(titles, rows.back()), outcome.isTrial(number)};
    }
    plot_->setContent(content);
    table_->setTrials(titles, rows, content.best, content.proven, content.provenLabel);
    table_->setShown(content.shown);
}

void OptimalView::syncTrials() {
    const OptimalOutcome* outcome = model().outcome();
    const bool were = !trials_->isHidden();
    if (were && outcome == nullptr && trials_->height() != givenHeight_)
        chosenHeight_ = trials_->height();
    trials_->setVisible(outcome != nullptr);
    if (outcome == nullptr)
        return;
    showTrials(*outcome);
    if (!were)
        fitHeight(static_cast<int>(outcome->designs().size()));
}

void OptimalView::syncButtons() {
    const int primary = model().primaryButton();
    const auto show = [](PushButton* button, const Button& shown, bool isPrimary) {
        button->setVisible(shown.Visible);
        button->setEnabled(shown.Enabled);
        button->setText(shownText(shown.Caption));
        button->setRank(isPrimary ? PushButton::Rank::Primary : PushButton::Rank::Plain);
    };
    for (const auto& [number, button] : buttons_)
        show(button, model().cmdOpt(number), number == primary);
    show(openNotes_, model().cmdNotes(), false);
}

void OptimalView::syncNotes() {
    QList<Note> notes;
    if (const OptimalOutcome* outcome = model().outcome()) {
        for (const std::string& note : outcome->notes())
            notes << Note{shownText(note)};
        if (const auto offer = outcome->otherNote())
            notes[static_cast<qsizetype>(*offer)].button = wordsOf(model().cmdOther());
    }
    notes_->setNotes(captionOf(model().pnlAdjustInnerTitle()), notes);
    notes_->setVisible(model().pnlAdjustOuter().Visible);
}

// A keyboard on a button goes along when another one becomes the sensible one.
void OptimalView::keepFocus() {
    const bool onButton = qobject_cast<PushButton*>(panel()->focusWidget()) != nullptr;
    const bool opened = isOpen() && !wasOpen_;
    wasOpen_ = isOpen();
    if (std::exchange(primary_, model().primaryButton()) != primary_ && onButton)
        primary()->setFocus();
    if (opened)
        primary()->setFocus();
}

int OptimalView::room() const { return panel()->screen()->availableGeometry().height() - frameHeight; }

bool OptimalView::isLow() const { return room() < usualHeight; }

// On a low screen the parts move together to make room for the trials.
void OptimalView::fitSpacing() {
    const bool isTight = isLow() && model().outcome() != nullptr;
    panel()->content()->setContentsMargins(isTight ? tightMargins : usualMargins);
    panel()->content()->setSpacing(isTight ? tightSpacing : usualSpacing);
}

// The trials come in as many rows as the usual height has room for, and later in the height that the user
// gave them.
void OptimalView::fitHeight(int trials) {
    const int fewest = isLow() ? fewestRowsWhenLow : fewestRows;
    const int least = TrialTable::heightOf(fewest);
    trials_->setMinimumHeight(least);
    panel()->content()->activate();
    const int others = panel()->content()->totalMinimumSize().height() - least;
    const int rows =
        (std::min(usualHeight, room()) - others - TrialTable::heightOf(0)) / TrialTable::rowHeight;
    const int usual = std::clamp(rows, fewest, std::clamp(trials, fewest, mostRows));
    trials_->setMaximumHeight(std::clamp(room() - others, least, TrialTable::heightOf(mostRows)));
    panel()->content()->activate();
    givenHeight_ = chosenHeight_.value_or(TrialTable::heightOf(usual));
    panel()->resize(panel()->width(), others + givenHeight_);
    keepOnScreen();
}

void OptimalView::keepOnScreen() {
    const QRect room = panel()->screen()->availableGeometry();
    const int over = panel()->frameGeometry().bottom() - room.bottom();
    if (panel()->isVisible() && over > 0)
        panel()->move(panel()->x(), std::max(room.top(), panel()->y() - over));
}

void OptimalView::sync() {
    fitSpacing();
    goal_->sync();
    title_->setText(captionOf(model().pnlFindPower()));
    title_->setMinimumHeight(0);  // or it would be as high as a former one
    title_->setFixedHeight(title_->heightForWidth(contentWidth));
    levels_->sync();
    syncBand();
    syncTrials();
    syncButtons();
    panel()->content()->activate();
    keepFocus();
    syncNotes();
}

}  // namespace lorvane::desktop
