// Painting of the flat menu button.
#include "desktop/kit/menu_button.h"

#include <cmath>

#include <QPainter>

#include "desktop/kit/number_text.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

constexpr int Height = 30;
constexpr double Inset = 8;
constexpr double SignSize = 20;
constexpr double TextAfterSign = 28;
constexpr double ChevronSize = 14;
constexpr double ChevronSpace = 6;

}  // namespace

MenuButton::MenuButton(const QString& text, QWidget* parent) : QPushButton(text, parent) {
    setFlat(true);
    setAutoDefault(false);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void MenuButton::setSign(Icon sign) {
    sign_ = sign;
    updateGeometry();
    update();
}

double MenuButton::textLeft() const { return Inset + (sign_ ? TextAfterSign : 0); }

QSize MenuButton::sizeHint() const {
    const double text = numberWidth(textFont(TextStyle::Value), this->text());
    return {static_cast<int>(std::ceil(textLeft() + text + ChevronSpace + ChevronSize + Inset)), Height};
}

void MenuButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRectF bounds(rect());
    if (isEnabled() && (underMouse() || isDown()))
        fillPlate(painter, bounds, FieldRadius, colour(Role::Field));
    if (hasFocus())
        strokePlate(painter, bounds, FieldRadius, colour(Role::Accent), RingWidth);
    const QColor quiet = colour(isEnabled() ? Role::SecondText : Role::Quiet);
    if (sign_)
        drawIcon(painter, *sign_, QRectF(Inset, (height() - SignSize) / 2, SignSize, SignSize), quiet);
    painter.setFont(textFont(TextStyle::Value));
    painter.setPen(colour(isEnabled() ? Role::Text : Role::Quiet));
    drawNumber(painter, bounds.adjusted(textLeft(), 0, 0, 0), Qt::AlignLeft, text());
    const QRectF chevron(width() - Inset - ChevronSize, (height() - ChevronSize) / 2, ChevronSize,
                         ChevronSize);
    drawIcon(painter, Icon::ChevronDown, chevron, quiet);
}

}  // namespace lorvane::desktop
