// Painting of the line.
#include "desktop/kit/rule.h"

#include <QPainter>

#include "desktop/kit/theme.h"

namespace lorvane::desktop {

Rule::Rule(QWidget* parent) : QWidget(parent) { setFixedHeight(1); }

void Rule::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), colour(Role::Line));
}

}  // namespace lorvane::desktop
