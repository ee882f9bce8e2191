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
#include <QPointer>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>
#include <QStatusTipEvent>
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
#include "desktop/kit/zoom.h"
#include "desktop/level_table.h"
#include "desktop/menus.h"
#include "desktop/result_cards.h"

namespace lorvane::desktop {

namespace {

constexpr QSize firstSize(1280, 800);
constexpr QSize frameRoom(8, 40);  // for the frame of the window system, where the screen is small
constexpr QSize largeFrom(2200, 1200);
constexpr double largeZoom = 1.25;
constexpr int pageMargin = 20;
constexpr int widest = 1760;
constexpr int narrowBelow = 1180;  // the words of the tool bar do not fit
constexpr int statusHeight = 28;
constexpr int smallestCards = 80;

QLabel* textLabel(TextStyle style) {
    auto* label = new ElidedLabel;
    setTextStyle(*label, style);
    return label;
}

// The path of the one study file that is dragged; empty for anything else.
QString studyOf(const QMimeData* dragged) {
    const QList<QUrl> urls = dragged->urls();
    const QString path = urls.size() == 1 ? urls.constFirst().toLocalFile() : QString();
    return path.endsWith(QLatin1String(".Lorvane"), Qt::CaseInsensitive) ? path : QString();
}

// What is told of a widget with the focus ring.
QString hintOf(const QWidget& widget) {
    for (const QString& text : {widget.accessibleDescription(), widget.toolTip()}) {
        if (!text.isEmpty())
            return text;
    }
    return widget.accessibleName();
}

}  // namespace

MainWindow::MainWindow(Desk& desk) : desk_(desk), menus_(new Menus(desk, this)) {
    setObjectName(QStringLiteral("Design"));
    addBars();
    setCentralWidget(makeContent());
    notice_ = new NoticeCard(centralWidget());
    connect(notice_, &NoticeCard::closeRequested, this, [this] { desk_.click("cmdNotice"); });
    centralWidget()->installEventFilter(this);
    addStatus();
    setAcceptDrops(true);
    openInScreen();
    connect(&desk_, &Desk::shown, this, &MainWindow::sync);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        syncStatus();
        keepInSight(now);
    });
    sync();
}

// A widget with the keyboard is destroyed after the own part of the window and reports a change of focus,
// which must not arrive here any more.
MainWindow::~MainWindow() { disconnect(qApp, nullptr, this, nullptr); }

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
    title_->setObjectName(QStringLiteral("pnlTitle"));
    sense_ = textLabel(TextStyle::Body);
    sense_->setObjectName(QStringLiteral("pnlSense"));
    sense_->setProperty("second", true);
    titles_ = new QWidget;
    auto* block = new QVBoxLayout(titles_);
    block->setContentsMargins(0, 0, 0, 0);
    block->setSpacing(0);
    block->addWidget(title_);
    block->addStretch(1);
    block->addWidget(sense_);
    column->addWidget(titles_);
}

// What has the focus stands at the left and gives way; how the study stands on the disk is always in sight.
void MainWindow::addStatus() {
    hint_ = textLabel(TextStyle::Caption);
    saved_ = textLabel(TextStyle::Caption);
    saved_->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred);
    statusBar()->addWidget(hint_, 1);
    statusBar()->addPermanentWidget(saved_);
    statusBar()->setSizeGripEnabled(false);
    statusBar()->setFixedHeight(statusHeight);
}

// In the middle of the free area, and no larger than it.
void MainWindow::openInScreen() {
    const QRect free = screen()->availableGeometry();
    const QSize size = firstSize.boundedTo(free.size() - frameRoom);
    resize(size);
    const QSize rest = free.size() - frameRoom - size;
    move(free.topLeft() + QPoint(rest.width(), rest.height()) / 2);
}

// Strip and table scroll where the window is too small for them; power and cost always stay in sight.
QWidget* MainWindow::makeUpper() {
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
    return scroll_;
}

QWidget* MainWindow::makeContent() {
    auto* content = new QWidget;
    auto* outer = new QHBoxLayout(content);
    outer->setContentsMargins(0, 0, 0, 0);
    sheet_ = new QWidget;
    page_ = new QVBoxLayout(sheet_);
    addTitle(page_);
    page_->addWidget(makeUpper());
    results_ = new ResultCards(desk_);
    page_->addWidget(results_, 1);
    page_->addStretch(0);
    outer->addStretch(0);
    outer->addWidget(sheet_, 1);
    outer->addStretch(0);
    return content;
}

void MainWindow::sync() {
    const MainScreen& screen = desk_.design().screen();
    const QPointer<QWidget> focus = focusWidget();
    setWindowTitle(literalTitle(shownText(desk_.design().SetCaption())));
    title_->setText(shownText(screen.pnlTitle.Caption));
    sense_->setText(shownText(screen.pnlSense.Caption));
    strip_->sync();
    table_->sync();
    results_->sync();
    menus_->sync();
    saved_->setText(shownText(desk_.design().savedWords()));
    keepFocus(focus);
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
        hint_->setText(hintOf(*focus));
}

// Where the value with the focus is no longer shown, the nearest one takes its place.
void MainWindow::keepFocus(QWidget* former) {
    if (qobject_cast<ValueCell*>(former) == nullptr || !former->isHidden())
        return;
    const QPoint place = former->mapTo(this, former->rect().center());
    ValueCell* nearest = nullptr;
    const auto distance = [&](const QWidget* cell) {
        return (cell->mapTo(this, cell->rect().center()) - place).manhattanLength();
    };
    for (ValueCell* cell : findChildren<ValueCell*>()) {
        const bool takesTab =
            cell->isVisible() && cell->window() == this && cell->focusPolicy() == Qt::StrongFocus;
        if (takesTab && (nearest == nullptr || distance(cell) < distance(nearest)))
            nearest = cell;
    }
    if (nearest != nullptr)
        nearest->setFocus(Qt::OtherFocusReason);
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

// On a very large screen the middle and the docks are shown larger; bars, dialogs and status line stay.
void MainWindow::chooseZoom() {
    const double zoom = size().expandedTo(largeFrom) == size() ? largeZoom : 1;
    if (zoom == zoom_)
        return;
    zoom_ = zoom;
    setZoom(*centralWidget(), zoom);
    emit zoomChanged(zoom);
}

void MainWindow::chooseSize() {
    chooseZoom();
    const auto figure = [this](int pixels) { return static_cast<int>(pixels / zoom_); };
    const QSize middle = centralWidget()->size();
    const int width = std::min(figure(middle.width()), widest) - 2 * pageMargin;
    const TableColumns columns = tableColumns(table_->shape(), width);
    const PageRoom room{figure(middle.height()), desk_.study().NumLevels, columns.narrow,
                        columns.sideways ? tableBarHeight : 0};
    const Laid laid{pageSizes(room), columns.narrow, zoom_};
    if (laid != laid_)
        place(laid);
    title_->setToolTip(laid.sizes.sense ? QString() : sense_->text());
    menus_->setNarrow(columns.narrow || this->width() < narrowBelow);
    saved_->setMaximumWidth(this->width() * 2 / 5);
}

void MainWindow::place(const Laid& laid) {
    laid_ = laid;
    const PageSizes& sizes = laid.sizes;
    const auto zoomed = [this](int length) { return desktop::zoomed(*sheet_, length); };
    sheet_->setMaximumWidth(zoomed(widest));
    centralWidget()->setMinimumHeight(zoomed(smallestPage()));
    page_->setSpacing(zoomed(sizes.gap));
    page_->setContentsMargins(zoomed(pageMargin), zoomed(sizes.top), zoomed(pageMargin),
                              zoomed(sizes.bottom));
    upper_->setSpacing(zoomed(sizes.gap));
    titles_->setFixedHeight(zoomed(sizes.title));
    setTextStyle(*title_, sizes.compact ? TextStyle::CompactTitle : TextStyle::Title);
    sense_->setVisible(sizes.sense);
    strip_->setSizes(sizes, laid.narrow);
    table_->setSizes(sizes);
    strip_->setFixedHeight(zoomed(sizes.strip));
    table_->setFixedHeight(zoomed(sizes.table));
    const bool scrolls = sizes.upper < sizes.strip + sizes.gap + sizes.table;
    const int whole = strip_->minimumHeight() + upper_->spacing() + table_->minimumHeight();
    scroll_->setFixedHeight(scrolls ? zoomed(sizes.upper) : whole);
    results_->setMinimumHeight(zoomed(smallestCards));
    results_->setMaximumHeight(zoomed(sizes.cards));
}

void MainWindow::keepInSight(QWidget* focused) {
    if (focused != nullptr && scroll_->widget()->isAncestorOf(focused))
        scroll_->ensureWidgetVisible(focused, 0, pageMargin);
}

int MainWindow::roomyMiddle() const { return zoomed(*sheet_, wideTable(table_->shape()) + 2 * pageMargin); }

int MainWindow::smallestMiddle() const {
    return zoomed(*sheet_, narrowTable(table_->shape()) + 2 * pageMargin);
}

QWidget* MainWindow::cell(const std::string& panel) const {
    if (QWidget* found = table_->cell(panel))
        return found;
    return strip_->cell(panel);
}

QList<QWidget*> MainWindow::control(const std::string& name) const {
    QWidget* found = cell(name);
    if (found == nullptr)
        found = findChild<QWidget*>(QString::fromStdString(name));
    if (found == nullptr)
        return {};
    QList<QWidget*> parts{found};
    for (QWidget* beside : {strip_->captionOf(found), table_->armBeside(name)}) {
        if (beside != nullptr)
            parts << beside;
    }
    return parts;
}

void MainWindow::reveal(const std::vector<std::string>& cells) {
    if (cells.empty())
        return;
    table_->reveal(cells.front());
    for (QWidget* part : control(cells.front()))
        keepInSight(part);
}

// Docks take room from the middle while the window keeps its size.
bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == centralWidget() && event->type() == QEvent::Resize)
        chooseSize();
    return QMainWindow::eventFilter(watched, event);
}

// What the pointer stands on takes the place of the hint; the bar's own words would stand beside it.
bool MainWindow::event(QEvent* event) {
    if (event->type() != QEvent::StatusTip)
        return QMainWindow::event(event);
    const QString tip = static_cast<QStatusTipEvent*>(event)->tip();
    if (tip.isEmpty())
        syncStatus();
    else
        hint_->setText(tip);
    return true;
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
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

// A panel that floats does not keep the program running.
void MainWindow::closeEvent(QCloseEvent* event) {
    if (!desk_.design().isClosed())
        desk_.close("Design");
    event->setAccepted(desk_.design().isClosed());
    if (event->isAccepted())
        QCoreApplication::quit();
}

}  // namespace lorvane::desktop
