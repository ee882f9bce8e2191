// Size, painting and tip of a line that gives way.
#include "desktop/kit/elided_label.h"

#include <algorithm>

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace lorvane::desktop {

ElidedLabel::ElidedLabel(int widest, QWidget* parent) : QLabel(parent), widest_(widest) {}

QSize ElidedLabel::sizeHint() const {
    const QSize whole = QLabel::sizeHint();
    return {std::min(whole.width(), widest_), whole.height()};
}

QSize ElidedLabel::minimumSizeHint() const { return {0, QLabel::minimumSizeHint().height()}; }

QRect ElidedLabel::room() const { return contentsRect().adjusted(margin(), margin(), -margin(), -margin()); }

QString ElidedLabel::fitting() const {
    return fontMetrics().elidedText(text(), Qt::ElideRight, room().width());
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    QStringList lines;
    if (fitting() != text())
        lines.append(text());
    if (!toolTip().isEmpty())
        lines.append(toolTip());
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), lines.join(QLatin1Char('\n')), this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    style()->drawItemText(&painter, room(), static_cast<int>(alignment()), palette(), isEnabled(), fitting(),
                          foregroundRole());
}

}  // namespace lorvane::desktop
