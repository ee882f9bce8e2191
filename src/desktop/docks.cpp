// The column of docks at the right edge.
#include "desktop/docks.h"

#include <QApplication>
#include <QDataStream>
#include <QIODevice>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStyle>
#include <QTabBar>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/floating_stage.h"
#include "desktop/kit/panel_dock.h"
#include "desktop/kit/zoom.h"
#include "desktop/main_window.h"
#include "desktop/panel_view.h"

namespace lorvane::desktop {

namespace {

// From the top of the column down.
constexpr DockRow rows[] = {
    {"frmProblems", "Problem", false, 400},   {"frmProblemES", "Problem", false, 400},
    {"frmDisplayICC", "ICC", false, 400},     {"frmDisplayTauSq", "Effects", false, 400},
    {"frmCounts", "Counts", false, 400},      {"frmMDES", "MDES", false, 600},
    {"frmScenarios", "Scenarios", true, 780}, {"frmDetails", "Details", true, 440},
    {"frmTips", "Guide", true, 340, true}};

constexpr int usualWidth = 400, smallestWidth = 360, largestWidth = 480;
constexpr int separator = 1;
constexpr int floatingHeight = 396;  // of a panel without a height of its own

// Widths and heights in both directions at once.
void setLimits(PanelDock& dock, const QSize& least, const QSize& most) {
    dock.setMinimumSize(least);
    dock.setMaximumSize(most);
}

}  // namespace

const DockRow* dockRowOf(std::string_view window) {
    const auto found = std::find_if(std::begin(rows), std::end(rows),
                                    [&](const DockRow& row) { return row.window == window; });
    return found == std::end(rows) ? nullptr : found;
}

Docks::Docks(MainWindow& window) : window_(window) {
    window.setDockOptions(QMainWindow::AllowTabbedDocks | QMainWindow::AllowNestedDocks);
    window.setCorner(Qt::TopRightCorner, Qt::RightDockWidgetArea);
    window.setTabPosition(Qt::RightDockWidgetArea, QTabWidget::North);
    entries_.reserve(std::size(rows));
}

// Entries stay in the order of the rows, which is that of the column.
void Docks::add(PanelView& view, const DockRow& row) {
    // In the last dock of the column, which takes the rest, a content of its own height stays at the top.
    if (!row.takesRest)
        view.panel()->content()->addStretch(1);
    auto* dock = new PanelDock(view.panel(), QString::fromUtf8(row.shortName), row.takesRest, &window_);
    dock->hide();
    dock->setAttribute(Qt::WA_ShowWithoutActivating,
                       view.panel()->testAttribute(Qt::WA_ShowWithoutActivating));
    const auto place =
        std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) { return entry.row > &row; });
    entries_.insert(place, {&view, &row, dock, {}, {}});
    connect(dock, &PanelDock::closeRequested, &view, &PanelView::requestClose);
    connect(dock, &PanelDock::contentChanged, this, &Docks::arrangeSoon);
    connect(dock, &QDockWidget::topLevelChanged, this, [this, &view](bool floats) {
        if (!busy_)
            movedByUser(entryOf(view), floats);
    });
}

PanelDock* Docks::dockOf(const PanelView& view) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& entry) { return entry.view == &view; });
    return found == entries_.end() ? nullptr : found->dock;
}

Docks::Entry& Docks::entryOf(const PanelView& view) {
    return *std::find_if(entries_.begin(), entries_.end(),
                         [&](const Entry& entry) { return entry.view == &view; });
}

int Docks::scaled(int length) const { return static_cast<int>(length * zoom_ + 0.5); }

// Showing and hiding -------------------------------------------------------------------------------------

bool Docks::isShown(const PanelView& view) const { return !dockOf(view)->isHidden(); }

bool Docks::standsAside(const PanelView& view) const { return isShown(view) && !dockOf(view)->isFloating(); }

void Docks::show(PanelView& view) {
    const QScopedValueRollback busy(busy_, true);
    Entry& entry = entryOf(view);
    const bool isToFloat = entry.floats.value_or(false);
    if (!isToFloat && makeRoom(entry, entry.floats ? window_.smallestMiddle() : window_.roomyMiddle()))
        dockIn(entry);
    else
        floatOut(entry);
    raise(view);
}

void Docks::hide(PanelView& view) {
    const QScopedValueRollback busy(busy_, true);
    Entry& entry = entryOf(view);
    if (entry.dock->isFloating())
        entry.place = entry.dock->geometry();
    entry.dock->hide();
    arrange();
    giveRoomBack();
}

void Docks::raise(PanelView& view) {
    PanelDock* dock = entryOf(view).dock;
    dock->raise();
    if (!dock->testAttribute(Qt::WA_ShowWithoutActivating))
        dock->takeKeyboard();
}

void Docks::dockIn(Entry& entry) {
    setZoom(zoom_);
    entry.dock->setFloating(false);
    entry.dock->show();
    entry.view->sync();
    arrange();
}

void Docks::floatOut(Entry& entry) {
    window_.removeDockWidget(entry.dock);
    entry.dock->setFloating(true);
    entry.view->sync();
    placeFloating(entry);
    entry.dock->show();
    arrange();
}

void Docks::placeFloating(Entry& entry) {
    PanelDock& dock = *entry.dock;
    sizeFloating(entry);
    if (entry.place.isValid() && dock.screen()->availableGeometry().intersects(entry.place)) {
        dock.setGeometry(entry.place);
        return;
    }
    placeClear(dock, window_);
}

void Docks::sizeFloating(Entry& entry) {
    PanelDock& dock = *entry.dock;
    lorvane::desktop::setZoom(dock, 1);
    setLimits(dock, QSize(std::min(smallestWidth, entry.row->floatingWidth), 0),
              QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    const int width = entry.row->floatingWidth;
    const int own = dock.heightFor(width);
    const bool fits = !entry.row->takesRest || entry.row->growsToText;
    dock.resize(width, fits ? own : std::max(own, floatingHeight));
}

// The content of a floating panel has grown or shrunk.
void Docks::fitFloating() {
    for (Entry& entry : entries_) {
        PanelDock& dock = *entry.dock;
        if (!dock.isVisible() || !dock.isFloating())
            continue;
        const int own = dock.heightFor(dock.width());
        if (!entry.row->takesRest)
            dock.resize(dock.width(), own);
        else if (entry.row->growsToText)
            growTo(dock, own);
    }
}

// Its buttons stay where they are while the text gets shorter. On a low screen it moves up.
void Docks::growTo(PanelDock& dock, int height) {
    const QRect room = dock.screen()->availableGeometry();
    dock.resize(dock.width(), std::min(std::max(dock.height(), height), room.height()));
    if (const int over = dock.frameGeometry().bottom() - room.bottom(); over > 0)
        dock.move(dock.x(), std::max(room.top(), dock.y() - over));
}

// A drag ends after the signal; only then may the docks move.
void Docks::movedByUser(Entry& entry, bool floats) {
    entry.floats = floats;
    QTimer::singleShot(0, this, [this, &entry, floats] {
        const QScopedValueRollback busy(busy_, true);
        if (floats)
            lorvane::desktop::setZoom(*entry.dock, 1);
        else if (!makeRoom(entry, window_.smallestMiddle()))
            entry.dock->setFloating(true);
        const bool isFloating = entry.dock->isFloating();
        entry.floats = isFloating;
        entry.view->sync();
        if (isFloating)
            sizeFloating(entry);
        arrange();
        giveRoomBack();
        keepClear();
        // The toolkit hands the keyboard of a dock that leaves its place to whatever comes next.
        entry.dock->takeKeyboard();
    });
}

void Docks::keepClear() {
    for (const Entry& entry : entries_) {
        if (entry.dock->isVisible() && entry.dock->isFloating())
            lorvane::desktop::keepClear(*entry.dock, window_);
    }
}

// The room of the window -----------------------------------------------------------------------------------

int Docks::growth(int wanted) const {
    if (window_.isMaximized() || window_.isFullScreen())
        return 0;
    const int room = window_.screen()->availableGeometry().width() - window_.frameGeometry().width();
    return std::clamp(room, 0, wanted);
}

// To the right, and moved to the left as far as the screen ends before.
void Docks::widen(int by) {
    const int beyond = window_.frameGeometry().right() + by - window_.screen()->availableGeometry().right();
    if (beyond > 0)
        window_.move(window_.x() - beyond, window_.y());
    window_.resize(window_.width() + by, window_.height());
}

// Beside another dock there is room already. Otherwise the window grows to the right, and its middle gives
// the rest.
bool Docks::makeRoom(const Entry& newcomer, int least) {
    const std::vector<Entry*> shown = docked();
    if (std::any_of(shown.begin(), shown.end(), [&](const Entry* entry) { return entry != &newcomer; }))
        return true;
    const int width = scaled(usualWidth) + separator;
    const int more = growth(width);
    if (window_.width() + more - width < least)
        return false;
    grown_ = more;
    widthGrownTo_ = window_.width() + more;
    if (more > 0)
        widen(more);
    return true;
}

void Docks::giveRoomBack() {
    if (docked().empty())
        shrinkWindow();
}

// The window keeps the width that the user has given it since.
void Docks::shrinkWindow() {
    if (grown_ > 0 && window_.width() == widthGrownTo_ && !window_.isMaximized())
        window_.resize(window_.width() - grown_, window_.height());
    grown_ = 0;
}

// The column -----------------------------------------------------------------------------------------------

std::vector<Docks::Entry*> Docks::docked() {
    std::vector<Entry*> list;
    for (Entry& entry : entries_) {
        if (!entry.dock->isHidden() && !entry.dock->isFloating())
            list.push_back(&entry);
    }
    return list;
}

std::vector<DockGroup> Docks::plan(const std::vector<Entry*>& entries) const {
    std::vector<DockHeight> heights;
    const int width = entries.empty() || entries.front()->dock->width() < scaled(smallestWidth)
                          ? scaled(usualWidth)
                          : entries.front()->dock->width();
    for (const Entry* entry : entries)
        heights.push_back({entry->dock->heightFor(width), entry->row->takesRest});
    return planDocks(heights, window_.centralWidget()->height(), zoom_);
}

// The docks are stacked anew only when others stand together than before; that costs a flicker.
void Docks::arrange() {
    const std::vector<Entry*> entries = docked();
    const std::vector<DockGroup> groups = plan(entries);
    std::vector<std::vector<PanelDock*>> wanted;
    for (const DockGroup& group : groups) {
        wanted.emplace_back();
        for (const std::size_t number : group.docks)
            wanted.back().push_back(entries[number]->dock);
    }
    if (wanted != arranged_)
        stack(entries, groups);
    fitHeights(entries, groups);
    if (arranged_.empty() && !entries.empty())
        window_.resizeDocks({entries.front()->dock}, {scaled(usualWidth)}, Qt::Horizontal);
    arranged_ = std::move(wanted);
}

void Docks::stack(const std::vector<Entry*>& entries, const std::vector<DockGroup>& groups) {
    const QScopedValueRollback busy(busy_, true);
    const QPointer<QWidget> focus = QApplication::focusWidget();
    window_.setUpdatesEnabled(false);
    for (const Entry* entry : entries)
        window_.removeDockWidget(entry->dock);
    for (const DockGroup& group : groups) {
        PanelDock* first = entries[group.docks.front()]->dock;
        window_.addDockWidget(Qt::RightDockWidgetArea, first, Qt::Vertical);
        first->show();
        for (std::size_t i = 1; i < group.docks.size(); ++i) {
            PanelDock* next = entries[group.docks[i]]->dock;
            window_.tabifyDockWidget(first, next);
            next->show();
        }
    }
    styleTabs();
    window_.setUpdatesEnabled(true);
    if (focus && focus != QApplication::focusWidget() && focus->window() == &window_)
        focus->setFocus(Qt::OtherFocusReason);
}

void Docks::fitHeights(const std::vector<Entry*>& entries, const std::vector<DockGroup>& groups) {
    const int none = QWIDGETSIZE_MAX;
    for (const DockGroup& group : groups) {
        const int tabs = group.docks.size() > 1 ? scaled(dockTabsHeight) : 0;
        for (const std::size_t number : group.docks) {
            const bool isFixed = group.height > 0 && !entries[number]->row->takesRest;
            setLimits(*entries[number]->dock, QSize(scaled(smallestWidth), isFixed ? group.height - tabs : 0),
                      QSize(scaled(largestWidth), isFixed ? group.height - tabs : none));
        }
    }
}

// The tab bars of a main window come and go with its docks.
void Docks::styleTabs() {
    for (QTabBar* tabs : window_.findChildren<QTabBar*>(QString(), Qt::FindDirectChildrenOnly)) {
        tabs->setAttribute(Qt::WA_StyledBackground);
        tabs->setProperty("docks", true);
        tabs->style()->unpolish(tabs);
        tabs->style()->polish(tabs);
        tabs->setDrawBase(false);
        tabs->setExpanding(false);
        tabs->setDocumentMode(false);
        tabs->setFixedHeight(scaled(dockTabsHeight));
        tabs->setFocusPolicy(Qt::TabFocus);
    }
}

void Docks::arrangeSoon() {
    if (waiting_ || busy_)
        return;
    waiting_ = true;
    QTimer::singleShot(0, this, [this] {
        waiting_ = false;
        const QScopedValueRollback busy(busy_, true);
        arrange();
        fitFloating();
    });
}

void Docks::setZoom(double zoom) {
    zoom_ = zoom;
    for (const Entry& entry : entries_) {
        if (!entry.dock->isFloating())
            lorvane::desktop::setZoom(*entry.dock, zoom);
    }
    arrangeSoon();
}

// Where they were ------------------------------------------------------------------------------------------

QByteArray Docks::state() const {
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const Entry& entry : entries_) {
        const bool isFloating = !entry.dock->isHidden() && entry.dock->isFloating();
        stream << QByteArray(entry.row->window.data()) << entry.floats.has_value()
               << entry.floats.value_or(false) << (isFloating ? entry.dock->geometry() : entry.place);
    }
    return bytes;
}

void Docks::restore(const QByteArray& state) {
    QDataStream stream(state);
    while (!stream.atEnd()) {
        QByteArray name;
        bool isChosen = false, floats = false;
        QRect place;
        stream >> name >> isChosen >> floats >> place;
        if (stream.status() != QDataStream::Ok)
            return;
        for (Entry& entry : entries_) {
            if (name != entry.row->window.data())
                continue;
            entry.floats = isChosen ? std::optional(floats) : std::nullopt;
            entry.place = place;
        }
    }
}

}  // namespace lorvane::desktop
