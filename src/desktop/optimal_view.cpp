// The optimal design wizard.
#include "desktop/optimal_view.h"

#include <QFontMetricsF>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QRadioButton>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>
#include <utility>

#include "base/names.h"
#include "base/number_text.h"
#include "desktop/kit/card.h"
#include "desktop/kit/entry_cell.h"
#include "desktop/kit/level_name.h"
#include "desktop/kit/notes_overlay.h"
#include "desktop/kit/number_label.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/result_band.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/trial_plot.h"
#include "desktop/kit/trial_table.h"
#include "desktop/menus.h"

namespace lorvane::desktop {

namespace {

constexpr int contentWidth = 756;
constexpr int headHeight = 34;
constexpr int nameWidth = 138;
constexpr int automaticWidth = 167;
constexpr int manualWidth = 125;
constexpr int sizeWidth = 78;
constexpr int armWidth = 98;
constexpr int armGap = 8;
constexpr int blockWidth = 2 * armWidth + armGap;
constexpr int headWidths[] = {2 * armWidth, armWidth};  // there is room before the first

// Heights of a row and of the trials. Four levels with their trials need the compact ones on a low screen.
struct Heights {
    int row;
    int trials;
};
constexpr Heights usual{55, 248};
constexpr Heights compact{43, 236};
constexpr int lowScreen = 750;

constexpr int plotWidth = 337;
constexpr int buttonsHeight = 32;
enum ButtonNumber { reset = 1, compute, paste, close };

// A row under a line.
class LineAbove : public QWidget {
protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(0, 0, width(), 1, colour(Role::Line)); }
};

QHBoxLayout* rowOf(QWidget* parent, int spacing = 0) {
    auto* row = new QHBoxLayout(parent);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(spacing);
    return row;
}

QLabel* secondLabel(TextStyle style, const QString& text) {
    auto* label = new QLabel(text);
    label->setFont(textFont(style));
    label->setProperty("second", true);
    return label;
}

QString captionOf(const Panel& panel) { return shownText(panel.Caption).trimmed(); }

QStringList textsOf(const Grid::Row& cells) {
    QStringList texts;
    for (const std::string& cell : cells)
        texts << shownText(cell);
    return texts;
}

QStringList together(const QStringList& heads, const QStringList& texts) {
    QStringList pairs;
    for (qsizetype i = 0; i < heads.size(); ++i)
        pairs << heads[i] + QLatin1Char(' ') + texts[i];
    return pairs;
}

}  // namespace

OptimalView::OptimalView(Desk& desk, ToolPanel* panel, Menus& menus)
    : PanelView(desk, panel, "frmOptimal"), menus_(menus), title_(new QLabel), band_(new ResultBand),
      trials_(makeTrials()), notes_(nullptr) {
    panel->setWindowTitle(shownText(windowTitle(WindowId::frmOptimal)));
    panel->setAttribute(Qt::WA_ShowWithoutActivating, false);
    panel->installEventFilter(this);
    title_->setFont(textFont(TextStyle::PanelHeading));
    title_->setWordWrap(true);
    QVBoxLayout* box = panel->content();
    box->setContentsMargins(22, 18, 22, 18);
    box->setSpacing(14);
    for (QWidget* part :
         {static_cast<QWidget*>(title_), makeCard(), static_cast<QWidget*>(band_), trials_, makeButtons()}) {
        part->setFixedWidth(contentWidth);
        box->addWidget(part);
    }
    notes_ = new NotesOverlay(panel);
    connect(notes_, &NotesOverlay::closeRequested, this, &OptimalView::closeNotes);
    connect(new QShortcut(Qt::Key_Escape, panel), &QShortcut::activated, this, &OptimalView::leave);
}

// Parts ----------------------------------------------------------------------------------------------------

QWidget* OptimalView::makeCard() {
    auto* card = new Card;
    auto* box = new QVBoxLayout(card);
    box->setContentsMargins(18, 0, 18, 4);
    box->setSpacing(0);
    box->addWidget(makeHeads());
    for (int level = highestLevel; level >= lowestLevel; --level)
        box->addWidget(makeRow(level));
    return card;
}

QWidget* OptimalView::makeHeads() {
    auto* line = new QWidget;
    line->setFixedHeight(headHeight);
    QHBoxLayout* row = rowOf(line, armGap);
    row->addWidget(secondLabel(TextStyle::CaptionStrong, captionOf(model().lblLevel())), 1);
    for (const int arm : {0, 1}) {
        heads_[arm] = makeCell(0, headWidths[arm]);
        heads_[arm]->setTextStyle(TextStyle::CaptionStrong);
        heads_[arm]->setTextRole(Role::SecondText);
        row->addWidget(heads_[arm]);
    }
    return line;
}

QRadioButton* OptimalView::makeOption(const char* stem, int level) {
    auto* option = new QRadioButton;
    const std::string control = indexedName(stem, level);
    option->setObjectName(QString::fromStdString(control));
    option->setFont(textFont(TextStyle::Body));
    connect(option, &QRadioButton::clicked, this, [this, control] { desk_.click(control); });
    return option;
}

EntryCell* OptimalView::makeSize(int level) {
    auto* cell = new EntryCell;
    const std::string number = indexedName("frmOptimal.txtNumReps", level);
    cell->setObjectName(QString::fromStdString(number));
    cell->setFixedSize(sizeWidth, 28);
    connect(cell, &EntryCell::stepped, this,
            [this, level](int direction) { desk_.spin(model().row(level).arrows, direction); });
    connect(cell, &EntryCell::entered, this, [this, number](const QString& text) {
        if (const auto value = readNumber(text.toStdString()))
            desk_.setNumber(number, *value);
    });
    return cell;
}

NumberLabel* OptimalView::makeCell(int level, int width) {
    auto* cell = new NumberLabel;
    cell->setFixedWidth(width);
    if (level < lowestLevel)
        return cell;
    cell->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(cell, &QWidget::customContextMenuRequested, this, [this, cell, level](const QPoint& at) {
        menus_.popup(indexedName("popLinkN", level) + "B", cell->mapToGlobal(at));
    });
    return cell;
}

QWidget* OptimalView::makeRow(int level) {
    Row row{level,
            new LineAbove,
            new LevelName,
            secondLabel(TextStyle::Body, captionOf(model().row(level).pnlSearched)),
            makeOption("frmOptimal.optAuto", level),
            makeOption("frmOptimal.optManual", level),
            makeSize(level),
            makeCell(level, armWidth),
            makeCell(level, armWidth),
            makeCell(level, blockWidth)};
    row.name->setFixedWidth(nameWidth);
    row.automatic->setMinimumWidth(automaticWidth);
    row.manual->setMinimumWidth(manualWidth);
    QHBoxLayout* line = rowOf(row.line);
    line->addWidget(row.name);
    line->addWidget(row.searched);
    line->addWidget(row.automatic);
    line->addWidget(row.manual);
    line->addWidget(row.size);
    line->addStretch(1);
    line->addWidget(row.treated);
    line->addSpacing(armGap);
    line->addWidget(row.control);
    line->addWidget(row.block);
    rows_.push_back(row);
    return row.line;
}

QWidget* OptimalView::makeTrials() {
    auto* pair = new QWidget;
    plot_ = new TrialPlot;
    plot_->setFixedWidth(plotWidth);
    table_ = new TrialTable;
    table_->table()->setAccessibleName(tr("Trials"));
    QHBoxLayout* row = rowOf(pair, 14);
    row->addWidget(plot_);
    row->addWidget(table_);
    return pair;
}

// The row keeps its height while a search hides all its buttons.
QWidget* OptimalView::makeButtons() {
    auto* line = new QWidget;
    line->setFixedHeight(buttonsHeight);
    QHBoxLayout* row = rowOf(line, 8);
    for (int number = reset; number <= close; ++number) {
        PushButton* button = plainButton(QString());
        button->setObjectName(QString::fromStdString(indexedName("frmOptimal.cmdOpt", number)));
        button->setMinimumWidth(84);
        connect(button, &PushButton::clicked, this, [this, number] { press(number); });
        row->addWidget(button);
        if (number == reset)
            row->addStretch(1);
        buttons_.emplace(number, button);
    }
    return line;
}

// What the user does
// -----------------------------------------------------------------------------------------

const OptimalWindow& OptimalView::model() const { return desk_.application().optimalWindow(); }

// The keyboard goes on to the next sensible button.
void OptimalView::press(int button) {
    desk_.click(indexedName("frmOptimal.cmdOpt", button));
    if (!notes_->isVisible())
        buttons_.at(model().primaryButton())->setFocus();
}

void OptimalView::closeNotes() {
    desk_.click("frmOptimal.cmdAdjustClose");
    buttons_.at(model().primaryButton())->setFocus();
}

void OptimalView::leave() {
    if (notes_->isVisible())
        closeNotes();
    else
        desk_.close("frmOptimal");
}

// Enter presses the button with the keyboard, and elsewhere the next sensible one.
bool OptimalView::eventFilter(QObject* watched, QEvent* event) {
    const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event)->key() : 0;
    if (watched != panel() || (key != Qt::Key_Return && key != Qt::Key_Enter))
        return PanelView::eventFilter(watched, event);
    PushButton* primary = buttons_.at(model().primaryButton());
    auto* focused = qobject_cast<PushButton*>(panel()->focusWidget());
    (focused != nullptr ? focused : primary)->click();
    return true;
}

// What the program shows
// -------------------------------------------------------------------------------------

bool OptimalView::isOpen() const { return desk_.design().isOpen(WindowId::frmOptimal); }

void OptimalView::syncSize(const Row& row) {
    const OptimalWindow::LevelRow& level = model().row(row.level);
    row.size->setVisible(level.size.Visible);
    row.size->setText(shownText(level.size.Text));
    row.size->setAccessibleName(captionOf(level.optPanelName) + QStringLiteral(", ") +
                                shownText(level.optManual.Caption));
}

void OptimalView::syncRow(const Row& row) {
    const OptimalWindow::LevelRow& level = model().row(row.level);
    const bool found = model().state() == OptimalWindow::State::result;
    row.line->setVisible(level.Visible);
    row.name->setLevel(captionOf(level.optPanelName), QString::fromLatin1(roleWord(level.role)),
                       level.role == LevelRole::randomized);
    row.searched->setVisible(level.pnlSearched.Visible);
    const std::pair<QRadioButton*, const Option*> options[] = {{row.automatic, &level.optAuto},
                                                               {row.manual, &level.optManual}};
    for (const auto& [button, option] : options) {
        button->setVisible(option->Visible);
        button->setEnabled(option->Enabled);
        button->setText(shownText(option->Caption));
        button->setChecked(option->Value);
        button->setAccessibleName(row.name->accessibleName() + QStringLiteral(", ") + button->text());
    }
    syncSize(row);
    const std::pair<NumberLabel*, const Panel*> cells[] = {{row.treated, &level.OptimalpnlNT},
                                                           {row.control, &level.OptimalpnlNC},
                                                           {row.block, &level.OptimalpnlNB}};
    for (const auto& [cell, panel] : cells) {
        cell->setVisible(panel->Visible);
        cell->setText(captionOf(*panel));
        cell->setTextStyle(found ? TextStyle::LevelName : TextStyle::Body);
        cell->setTextRole(!found ? Role::SecondText : level.isTop ? Role::Accent : Role::Text);
    }
}

void OptimalView::syncBand() {
    const OptimalWindow& m = model();
    switch (m.state()) {
    case OptimalWindow::State::result:
        band_->setContent(BandFigure{shownText(m.pnlCostWords().Caption), captionOf(m.pnlCostNumber()),
                                     captionOf(m.pnlOptimalNote())});
        break;
    case OptimalWindow::State::problem:
        band_->setContent(BandProblem{captionOf(m.pnlProblem()), captionOf(m.pnlOptimalInner())});
        break;
    case OptimalWindow::State::message:
        band_->setContent(BandText{captionOf(m.pnlOptimalInner())});
        break;
    }
}

void OptimalView::syncTrials() {
    const OptimalResult* result = model().result();
    trials_->setVisible(result != nullptr);
    if (result == nullptr)
        return;
    const std::vector<Grid::Row>& table = model().outcome()->vsTrials().rows;
    const QStringList heads = textsOf(table.front());
    TrialPlotContent content{captionOf(model().lblPlot()),
                             captionOf(model().lblPlotSize()),
                             captionOf(model().lblPlotBest()),
                             {},
                             static_cast<int>(result->best)};
    std::vector<QStringList> rows;
    for (const Trial& trial : result->trials) {
        rows.push_back(textsOf(table[rows.size() + 1]));
        content.points << TrialPoint{trial.sizes(desk_.study().NumLevels), static_cast<double>(trial.cost),
                                     together(heads, rows.back())};
    }
    plot_->setContent(content);
    table_->setTrials(heads, rows, static_cast<int>(result->best));
}

// A keyboard on a button goes along when another one becomes the sensible one.
void OptimalView::syncButtons() {
    const int primary = model().primaryButton();
    const bool onButton = qobject_cast<PushButton*>(panel()->focusWidget()) != nullptr;
    if (std::exchange(primary_, primary) != primary && onButton)
        buttons_.at(primary)->setFocus();
    for (const auto& [number, button] : buttons_) {
        const Button& shown = model().cmdOpt(number);
        button->setVisible(shown.Visible);
        button->setEnabled(shown.Enabled);
        button->setText(shownText(shown.Caption));
        button->setRank(number == primary ? PushButton::Rank::Primary : PushButton::Rank::Plain);
    }
}

void OptimalView::syncNotes() {
    notes_->setNotes(captionOf(model().pnlAdjustInnerTitle()), captionOf(model().pnlAdjustInner()));
    notes_->setVisible(model().pnlAdjustOuter().Visible);
}

void OptimalView::sync() {
    title_->setText(captionOf(model().pnlFindPower()));
    const QFontMetricsF metrics(textFont(TextStyle::CaptionStrong));
    for (const int arm : {0, 1}) {
        const QString name = shownText(model().lblGroup(arm + 1).Caption);
        heads_[arm]->setText(metrics.elidedText(name, Qt::ElideRight, headWidths[arm]));
        heads_[arm]->setToolTip(name);
    }
    const bool low = panel()->screen()->availableGeometry().height() < lowScreen;
    const Heights& heights = low && desk_.study().NumLevels == highestLevel ? compact : usual;
    trials_->setFixedHeight(heights.trials);
    for (const Row& row : rows_) {
        row.line->setFixedHeight(heights.row);
        syncRow(row);
    }
    syncBand();
    syncTrials();
    syncButtons();
    syncNotes();
    const bool opened = isOpen() && !wasOpen_;
    wasOpen_ = isOpen();
    if (!opened)
        return;
    buttons_.at(model().primaryButton())->setFocus();
}

}  // namespace lorvane::desktop
