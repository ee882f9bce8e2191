// Title, scrolling and closing of a docked panel.
#include "desktop/kit/panel_dock.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPainter>
#include <QScrollArea>
#include <QShortcut>
#include <QStyle>
#include <QVBoxLayout>

#include "desktop/kit/dock_title.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {}  // namespace

PanelDock::PanelDock(ToolPanel* panel, const QString& shortName, bool scrollsItself, QWidget* owner)
    : QDockWidget(owner), panel_(panel), shortName_(shortName), title_(new DockTitle(this)),
      scroll_(scrollsItself ? nullptr : new QScrollArea) {
    setObjectName(QStringLiteral("dock.") + panel->objectName());
    setAllowedAreas(Qt::RightDockWidgetArea);
    setTitleBarWidget(title_);
    panel->standInDock(DockPadding);
    if (scrollsItself)
        setWidget(panel);
    else
        addScroll();
    panel->installEventFilter(this);
    connect(title_, &DockTitle::closeRequested, this, &PanelDock::closeRequested);
    connect(title_, &DockTitle::floatRequested, this, [this] { setFloating(!isFloating()); });
    connect(this, &QDockWidget::topLevelChanged, this, &PanelDock::syncTitle);
    limitShortcuts();
    syncLeastSize();
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { title_->setInUse(now == this || (now && isAncestorOf(now))); });
    syncTitle();
}

// Its contents are destroyed after its own part. One with the keyboard then reports a change of focus.
PanelDock::~PanelDock() { disconnect(qApp, nullptr, this, nullptr); }

void PanelDock::addScroll() {
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setWidgetResizable(true);
    scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll_->setFocusPolicy(Qt::NoFocus);
    scroll_->setWidget(panel_);
    scroll_->viewport()->setAutoFillBackground(true);
    scroll_->viewport()->setBackgroundRole(QPalette::Base);
    setWidget(scroll_);
}

// What was a key of a whole window is one of the panel alone now. Escape closes each.
void PanelDock::limitShortcuts() {
    bool hasEscape = false;
    for (QShortcut* shortcut : panel_->findChildren<QShortcut*>(QString(), Qt::FindDirectChildrenOnly)) {
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        hasEscape = hasEscape || shortcut->key() == QKeySequence(Qt::Key_Escape);
    }
    auto* escape = new QShortcut(Qt::Key_Escape, this);
    escape->setContext(hasEscape ? Qt::WidgetShortcut : Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, this, &PanelDock::closeRequested);
}

// The tab of a dock is named by its window title; the row has the whole one.
void PanelDock::syncTitle() {
    title_->setName(panel_->windowTitle());
    setAccessibleName(panel_->windowTitle());
    panel_->setAccessibleName(panel_->windowTitle());
    setWindowTitle(isFloating() ? panel_->windowTitle() : shortName_);
}

// A floating dock has no frame of the window system; the toolkit leaves a line around it instead.
int PanelDock::frameWidth() const {
    return isFloating() ? style()->pixelMetric(QStyle::PM_DockWidgetFrameWidth, nullptr, this) : 0;
}

int PanelDock::heightFor(int width) const {
    const QLayout* content = panel_->layout();
    const int inner = content->hasHeightForWidth() ? content->totalHeightForWidth(width - 2 * frameWidth())
                                                   : content->totalSizeHint().height();
    return title_->sizeHint().height() + inner + 2 * frameWidth();
}

void PanelDock::takeKeyboard() {
    activateWindow();
    QWidget* first = panel_->focusWidget();
    for (QWidget* at = panel_->nextInFocusChain(); first == nullptr && at != panel_;
         at = at->nextInFocusChain()) {
        if (panel_->isAncestorOf(at) && at->isVisibleTo(panel_) && at->isEnabled() &&
            (at->focusPolicy() & Qt::TabFocus) != 0)
            first = at;
    }
    setFocusPolicy(first == nullptr ? Qt::StrongFocus : Qt::NoFocus);
    (first == nullptr ? this : first)->setFocus(Qt::ShortcutFocusReason);
}

void PanelDock::closeEvent(QCloseEvent* event) {
    event->ignore();
    emit closeRequested();
}

// The scroll area takes a least size for the truth. A content that knows its height for a width is asked for
// that; its least size would be that of the narrowest one.
void PanelDock::syncLeastSize() {
    const QLayout* content = panel_->layout();
    const bool isFree = scroll_ == nullptr || content->hasHeightForWidth();
    panel_->setMinimumSize(1, isFree ? 1 : content->totalMinimumSize().height());
}

bool PanelDock::eventFilter(QObject* watched, QEvent* event) {
    if (watched == panel_ && event->type() == QEvent::LayoutRequest) {
        syncLeastSize();
        emit contentChanged();
    }
    if (watched == panel_ && event->type() == QEvent::WindowTitleChange)
        syncTitle();
    return QDockWidget::eventFilter(watched, event);
}

void PanelDock::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), colour(isFloating() ? Role::StrongLine : Role::Card));
}

}  // namespace lorvane::desktop
