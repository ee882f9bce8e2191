// Painting of a line of tabular text.
#include "desktop/kit/number_label.h"

#include <cmath>

#include <QFontMetricsF>
#include <QPainter>

#include "desktop/kit/number_text.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

NumberLabel::NumberLabel(Qt::Alignment alignment, QWidget* parent)
    : PaintedText(parent), alignment_(alignment) {
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

void NumberLabel::setText(const QString& text) {
    if (text == text_)
        return;
    text_ = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

void NumberLabel::setTextStyle(TextStyle style) {
    if (style == style_)
        return;
    style_ = style;
    updateGeometry();
    update();
}

void NumberLabel::setTextRole(Role role) {
    if (role == role_)
        return;
    role_ = role;
    update();
}

QSize NumberLabel::sizeHint() const {
    const QFont font = textFont(style_);
    const double height = QFontMetricsF(font).height();
    return {zoomed(*this, std::ceil(numberWidth(font, text_))), zoomed(*this, std::ceil(height))};
}

void NumberLabel::paintEvent(QPaintEvent*) {
    ZoomedPainter painter(*this);
    painter.setFont(textFont(style_));
    painter.setPen(colour(isEnabled() ? role_ : Role::Quiet));
    drawNumber(painter, figureRect(*this), alignment_, text_);
}

}  // namespace lorvane::desktop
