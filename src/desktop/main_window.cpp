// The main window.
#include "desktop/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QScrollArea>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/effect_strip.h"
#include "desktop/kit/elided_label.h"
#include "desktop/kit/notice_card.h"
#include "desktop/kit/plain_text.h"
#include "desktop/kit/text_style.h"
#include "desktop/level_table.h"
#include "desktop/menus.h"
#include "desktop/result_cards.h"

namespace lorvane::desktop {

namespace {

constexpr int pageMargin = 20;
constexpr int widest = 1600;
constexpr int narrow = 1180;  // below, the words of the tool bar go
constexpr int smallestCards = 88;
constexpr int smallestScroll = 120;

// Margins and gaps of the page, and the height of the title block.
struct Spacing {
    int top, bottom, gap, title;
};
constexpr Spacing usual{18, 18, 14, 46};
constexpr Spacing tight{10, 12, 10, 39};

// Height of a page whose strip and table together have a height.
int heightWith(const Spacing& spacing, int stripAndTable) {
    return spacing.top + spacing.title + 3 * spacing.gap + stripAndTable + smallestCards + spacing.bottom;
}

constexpr int widestSavedWords = 500;

QLabel* textLabel(TextStyle style, int width = QWIDGETSIZE_MAX) {
    auto* label = new ElidedLabel(width);
    label->setFont(textFont(style));
    return label;
}

// The path of the one study file that is dragged; empty for anything else.
QString studyOf(const QMimeData* dragged) {
    const QList<QUrl> urls = dragged->urls();
    const QString path = urls.size() == 1 ? urls.constFirst().toLocalFile() : QString();
    return path.endsWith(QLatin1String(".Lorvane"), Qt::CaseInsensitive) ? path : QString();
}

}  // namespace

MainWindow::MainWindow(Desk& desk) : desk_(desk), menus_(new Menus(desk, this)) {
    setObjectName(QStringLiteral("Design"));
    addBars();
    setCentralWidget(makeContent());
    hint_ = textLabel(TextStyle::Caption);
    saved_ = textLabel(TextStyle::Caption, widestSavedWords);
    notice_ = new NoticeCard(centralWidget());
    connect(notice_, &NoticeCard::closeRequested, this, [this] { desk_.click("cmdNotice"); });
    statusBar()->addWidget(hint_, 1);
    statusBar()->addPermanentWidget(saved_);
    statusBar()->setSizeGripEnabled(false);
    statusBar()->setFixedHeight(28);
    setAcceptDrops(true);
    resize(1280, 800);
    connect(&desk_, &Desk::shown, this, &MainWindow::sync);
    connect(qApp, &QApplication::focusChanged, this, &MainWindow::syncStatus);
    sync();
}

void MainWindow::addBars() {
    menus_->fill(menuBar());
    auto* bar = new QToolBar(this);
    bar->setWindowTitle(tr("Main tool bar"));
    bar->setMovable(false);
    bar->setFloatable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    menus_->fill(bar);
    addToolBar(bar);
    setContextMenuPolicy(Qt::NoContextMenu);
}

void MainWindow::addTitle(QVBoxLayout* column) {
    title_ = textLabel(TextStyle::Title);
    sense_ = textLabel(TextStyle::Body);
    sense_->setProperty("second", true);
    auto* block = new QVBoxLayout;
    block->setSpacing(0);
    block->addWidget(title_);
    block->addWidget(sense_);
    column->addLayout(block);
}

// Strip and table scroll where the window is too small for them; power and cost always stay in sight.
QWidget* MainWindow::makeContent() {
    auto* content = new QWidget;
    content->setMinimumHeight(heightWith(tight, smallestScroll));
    auto* outer = new QHBoxLayout(content);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* page = new QWidget;
    page->setMaximumWidth(widest);
    page_ = new QVBoxLayout(page);
    addTitle(page_);

    auto* upper = new QWidget;
    upper_ = new QVBoxLayout(upper);
    upper_->setContentsMargins(0, 0, 0, 0);
    strip_ = new EffectStrip(desk_, *menus_);
    table_ = new LevelTable(desk_, *menus_);
    upper_->addWidget(strip_);
    upper_->addWidget(table_);
    scroll_ = new QScrollArea;
    scroll_->setWidget(upper);
    scroll_->setWidgetResizable(true);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->viewport()->setAutoFillBackground(false);
    upper->setAutoFillBackground(false);
    scroll_->setFocusPolicy(Qt::NoFocus);
    page_->addWidget(scroll_);

    results_ = new ResultCards(desk_);
    results_->setMinimumHeight(smallestCards);
    results_->setMaximumHeight(200);
    page_->addWidget(results_, 1);
    page_->addStretch(0);
    outer->addStretch(0);
    outer->addWidget(page, 1);
    outer->addStretch(0);
    return content;
}

void MainWindow::sync() {
    const MainScreen& screen = desk_.design().screen();
    setWindowTitle(literalTitle(shownText(desk_.design().SetCaption())));
    title_->setText(shownText(screen.pnlTitle.Caption));
    sense_->setText(shownText(screen.pnlSense.Caption));
    strip_->sync();
    table_->sync();
    results_->sync();
    menus_->sync();
    saved_->setText(shownText(desk_.design().savedWords()));
    syncStatus();
    syncNotice();
    chooseSize();
    focusFirstValue();
    if (desk_.design().isClosed())
        QTimer::singleShot(0, this, &QWidget::close);
}

// What the program tells of a file stands in the place of the hint: what has the focus ring, and its keys.
void MainWindow::syncStatus() {
    const QString status = shownText(desk_.design().screen().pnlStatus.Caption);
    const QWidget* focus = focusWidget();
    if (!status.isEmpty())
        hint_->setText(status);
    else if (focus != nullptr)
        hint_->setText(focus->accessibleDescription().isEmpty() ? focus->toolTip()
                                                                : focus->accessibleDescription());
}

// The keyboard begins each study at its first value. The widgets know by then what they show.
void MainWindow::focusFirstValue() {
    if (studyNumber_ == desk_.design().studyNumber())
        return;
    studyNumber_ = desk_.design().studyNumber();
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (ValueCell* first = strip_->firstCell())
                first->setFocus(Qt::OtherFocusReason);
        },
        Qt::QueuedConnection);
}

// The start screen shows the card itself while it is open.
void MainWindow::syncNotice() {
    const MainScreen& screen = desk_.design().screen();
    notice_->setNotice(shownText(screen.pnlNoticeTitle.Caption), shownText(screen.pnlNotice.Caption),
                       shownText(screen.cmdNotice.Caption));
    notice_->setVisible(screen.pnlNotice.Visible && !desk_.design().isOpen(WindowId::frmStart));
}

// The rows get smaller as soon as they do not fit otherwise; smaller still, strip and table scroll.
void MainWindow::chooseSize() {
    const int inner = centralWidget()->height();
    const int strip = strip_->sizeHint().height();
    const bool compact = inner < heightWith(usual, strip + table_->heightOf(false));
    const Spacing& spacing = compact ? tight : usual;
    table_->setCompact(compact);
    page_->setSpacing(spacing.gap);
    page_->setContentsMargins(pageMargin, spacing.top, pageMargin, spacing.bottom);
    upper_->setSpacing(spacing.gap);
    title_->setFont(textFont(compact ? TextStyle::CompactTitle : TextStyle::Title));
    const int wanted = strip + spacing.gap + table_->heightOf(compact);
    const int others = heightWith(spacing, 0) - spacing.gap;
    scroll_->setFixedHeight(std::clamp(inner - others, smallestScroll, wanted));
    menus_->setNarrow(width() < narrow);
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

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!studyOf(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

// The question about unsaved work waits until the drag is over.
void MainWindow::dropEvent(QDropEvent* event) {
    const QString path = studyOf(event->mimeData());
    event->acceptProposedAction();
    QTimer::singleShot(0, this, [this, path] { desk_.askAndOpen(path); });
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!desk_.design().isClosed())
        desk_.close("Design");
    event->setAccepted(desk_.design().isClosed());
}

}  // namespace lorvane::desktop
