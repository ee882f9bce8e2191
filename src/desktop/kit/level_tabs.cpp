// Widths and tips of the tabs.
#include "desktop/kit/level_tabs.h"

#include <algorithm>

#include <QHelpEvent>
#include <QToolTip>

#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr int LeastTab = 40;

}  // namespace

LevelTabs::LevelTabs(QWidget* parent) : QTabBar(parent) {
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(false);
    setElideMode(Qt::ElideRight);
    setTextStyle(*this, TextStyle::Body);
}

QSize LevelTabs::minimumSizeHint() const { return {0, QTabBar::minimumSizeHint().height()}; }

/// An even share of the width; a shorter name keeps its own.
QSize LevelTabs::minimumTabSizeHint(int index) const {
    const QSize whole = tabSizeHint(index);
    const int share = std::max(zoomed(*this, LeastTab), width() / std::max(1, count()));
    return {std::min(whole.width(), share), whole.height()};
}

bool LevelTabs::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QTabBar::event(event);
    auto* help = static_cast<QHelpEvent*>(event);
    const int tab = tabAt(help->pos());
    const bool isCut = tab >= 0 && tabRect(tab).width() < tabSizeHint(tab).width();
    QToolTip::showText(help->globalPos(), isCut ? accessibleTabName(tab) : QString(), this);
    return true;
}

}  // namespace lorvane::desktop
