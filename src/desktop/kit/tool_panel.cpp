// Closing, placing and the ground of a floating window.
#include "desktop/kit/tool_panel.h"

#include <QCloseEvent>
#include <QPainter>
#include <QVBoxLayout>

#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

constexpr int Padding = 22;

}  // namespace

ToolPanel::ToolPanel(const QString& title, QWidget* owner, Sizing sizing)
    : QWidget(owner, Qt::Tool), content_(new QVBoxLayout(this)) {
    setWindowTitle(title);
    setAccessibleName(title);
    content_->setContentsMargins(Padding, Padding, Padding, Padding);
    content_->setSpacing(0);
    if (sizing == Sizing::ToContent)
        content_->setSizeConstraint(QLayout::SetFixedSize);
}

void ToolPanel::standInDock(const QMargins& padding) {
    setWindowFlags(Qt::Widget);
    setMinimumSize(0, 0);
    content_->setSizeConstraint(QLayout::SetDefaultConstraint);
    if (content_->contentsMargins() == QMargins(Padding, Padding, Padding, Padding))
        content_->setContentsMargins(padding);
}

void ToolPanel::setPlace(const QPoint& place) {
    place_ = place;
    if (isVisible())
        move(place);
}

void ToolPanel::closeEvent(QCloseEvent* event) {
    if (!event->spontaneous())
        return QWidget::closeEvent(event);
    event->ignore();
    emit closeRequested();
}

void ToolPanel::showEvent(QShowEvent* event) {
    if (place_ && !event->spontaneous())
        move(*place_);
    QWidget::showEvent(event);
}

void ToolPanel::hideEvent(QHideEvent* event) {
    if (!event->spontaneous())
        place_ = pos();
    QWidget::hideEvent(event);
}

void ToolPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), colour(Role::Card));
}

}  // namespace lorvane::desktop
