// The main window.
#include "desktop/main_window.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLayout>
#include <QMenuBar>
#include <QScrollArea>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

#include "desktop/effect_strip.h"
#include "desktop/kit/figure_card.h"
#include "desktop/kit/text_style.h"
#include "desktop/level_table.h"
#include "desktop/menus.h"

namespace lorvane::desktop {

namespace {

constexpr int pageMargin = 20;
constexpr int widest = 1600;
constexpr int narrow = 1180;     // below, the words of the tool bar go
constexpr int barsHeight = 122;  // menu bar, tool bar and status line
constexpr int smallestCards = 88;

QLabel* textLabel(TextStyle style) {
    auto* label = new QLabel;
    label->setFont(textFont(style));
    return label;
}

// The words before a figure: what stands in the caption before the number.
QString wordsBefore(const Cell& cell) {
    return shownText(cell.Caption.substr(0, cell.Caption.size() - cell.number.size()));
}

// "Power = " without its sign.
QString nameOf(const Cell& cell) { return wordsBefore(cell).section(QLatin1Char('='), 0, 0).trimmed(); }

}  // namespace

MainWindow::MainWindow(Desk& desk) : desk_(desk), menus_(new Menus(desk, this)) {
    setObjectName(QStringLiteral("Design"));
    addBars();
    setCentralWidget(makeContent());
    hint_ = textLabel(TextStyle::Caption);
    saved_ = textLabel(TextStyle::Caption);
    statusBar()->addWidget(hint_, 1);
    statusBar()->addPermanentWidget(saved_);
    statusBar()->setSizeGripEnabled(false);
    statusBar()->setFixedHeight(28);
    resize(1280, 800);
    connect(&desk_, &Desk::shown, this, &MainWindow::sync);
    connect(&desk_, &Desk::hinted, hint_, &QLabel::setText);
    sync();
}

void MainWindow::addBars() {
    menus_->fill(menuBar());
    auto* bar = new QToolBar(this);
    bar->setWindowTitle(tr("Main tool bar"));
    bar->setMovable(false);
    bar->setFloatable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->setFixedHeight(46);
    bar->layout()->setContentsMargins(0, 0, 0, 0);
    menus_->fill(bar);
    addToolBar(bar);
    setContextMenuPolicy(Qt::NoContextMenu);
}

void MainWindow::addTitle(QVBoxLayout* column) {
    title_ = textLabel(TextStyle::Title);
    sense_ = textLabel(TextStyle::Body);
    sense_->setProperty("second", true);
    auto* block = new QVBoxLayout;
    block->setSpacing(2);
    block->addWidget(title_);
    block->addWidget(sense_);
    column->addLayout(block);
}

// Strip and table scroll where the window is too small for them; power and cost always stay in sight.
QWidget* MainWindow::makeContent() {
    auto* content = new QWidget;
    auto* outer = new QHBoxLayout(content);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* page = new QWidget;
    page->setMaximumWidth(widest);
    page_ = new QVBoxLayout(page);
    page_->setContentsMargins(pageMargin, 18, pageMargin, 18);
    page_->setSpacing(14);
    addTitle(page_);

    auto* upper = new QWidget;
    auto* column = new QVBoxLayout(upper);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(14);
    strip_ = new EffectStrip(desk_, *menus_);
    table_ = new LevelTable(desk_, *menus_);
    column->addWidget(strip_);
    column->addWidget(table_);
    scroll_ = new QScrollArea;
    scroll_->setWidget(upper);
    scroll_->setWidgetResizable(true);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->viewport()->setAutoFillBackground(false);
    upper->setAutoFillBackground(false);
    scroll_->setFocusPolicy(Qt::NoFocus);
    page_->addWidget(scroll_);

    auto* figures = new QHBoxLayout;
    figures->setSpacing(14);
    power_ = new FigureCard;
    cost_ = new FigureCard;
    for (FigureCard* card : {power_, cost_}) {
        card->setMinimumHeight(smallestCards);
        card->setMaximumHeight(200);
        figures->addWidget(card, 1);
    }
    page_->addLayout(figures, 1);
    page_->addStretch(0);
    outer->addStretch(0);
    outer->addWidget(page, 1);
    outer->addStretch(0);
    return content;
}

void MainWindow::syncPower() {
    const MainScreen& screen = desk_.design().screen();
    const Cell& power = screen.pnlPower;
    const QString note = shownText(screen.pnlPowerNote.Caption);
    if (power.Align == Alignment::centred)
        power_->setContent(FigureTrouble{shownText(power.Caption), note});
    else if (screen.pnlPowerOuter.Visible)
        power_->setContent(
            FigureBar{nameOf(power), shownText(power.number), screen.pnlPowerBar.Flood / 100,
                      QStringLiteral("0"), QStringLiteral("1"),
                      FigureTick{screen.pnlPowerTick.Flood / 100, shownText(screen.pnlPowerTick.Caption)}});
    else
        power_->setContent(Figure{wordsBefore(power), shownText(power.number), note, screen.powerIsReached});
}

void MainWindow::syncCost() {
    const MainScreen& screen = desk_.design().screen();
    const Cell& cost = screen.pnlCost;
    if (screen.pnlCostOuter.Visible)
        cost_->setContent(FigureBar{nameOf(cost),
                                    shownText(cost.number),
                                    screen.pnlCostBar.Flood / 100,
                                    QStringLiteral("0"),
                                    shownText(screen.pnlMaxCost.Caption),
                                    {}});
    else
        cost_->setContent(
            Figure{wordsBefore(cost), shownText(cost.number), shownText(screen.pnlCostNote.Caption), false});
}

void MainWindow::sync() {
    const MainScreen& screen = desk_.design().screen();
    setWindowTitle(shownText(desk_.design().SetCaption()));
    title_->setText(shownText(screen.pnlTitle.Caption));
    sense_->setText(shownText(screen.pnlSense.Caption));
    strip_->sync();
    table_->sync();
    syncPower();
    syncCost();
    menus_->sync();
    saved_->setText(shownText(desk_.design().savedWords()));
    chooseSize();
}

// The rows get smaller as soon as they do not fit otherwise.
void MainWindow::chooseSize() {
    const int fixedParts = 18 + 50 + 14 + strip_->sizeHint().height() + 14 + 14 + 96 + 18;
    const int inner = height() - barsHeight;
    const bool compact = inner < fixedParts + table_->heightOf(false);
    table_->setCompact(compact);
    page_->setSpacing(compact ? 10 : 14);
    title_->setFont(textFont(compact ? TextStyle::CompactTitle : TextStyle::Title));
    const int wanted = strip_->sizeHint().height() + 14 + table_->heightOf(compact);
    scroll_->setMaximumHeight(wanted);
    scroll_->setMinimumHeight(std::min(wanted, std::max(160, inner - 50 - 2 * 18 - 2 * 14 - smallestCards)));
    menus_->setWordsShown(width() >= narrow);
}

QWidget* MainWindow::cell(const std::string& panel) const {
    if (QWidget* found = table_->cell(panel))
        return found;
    return strip_->cell(panel);
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    if (table_ != nullptr)
        chooseSize();
}

// Minimised, the floating windows make way; maximised, they come back.
void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange)
        return;
    if (isMinimized())
        desk_.suspend();
    else if (isMaximized())
        desk_.restore();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    desk_.close("Design");
    event->setAccepted(desk_.design().isClosed());
}

}  // namespace lorvane::desktop
