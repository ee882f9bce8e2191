// Painting of the flat menu button.
#include "desktop/kit/menu_button.h"

#include <cmath>

#include <QPainter>

#include "desktop/kit/number_text.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/zoom.h"

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

QSize MenuButton::sizeWith(const QString& words) const {
    const double text = numberWidth(textFont(TextStyle::Value), words);
    return {zoomed(*this, std::ceil(textLeft() + text + ChevronSpace + ChevronSize + Inset)),
            zoomed(*this, Height)};
}

void MenuButton::paintEvent(QPaintEvent*) {
    ZoomedPainter painter(*this);
    const QRectF bounds = figureRect(*this);
    if (isEnabled() && (underMouse() || isDown()))
        fillPlate(painter, bounds, FieldRadius, colour(Role::Field));
    if (hasFocus())
        strokePlate(painter, bounds, FieldRadius, colour(Role::Accent), RingWidth);
    const QColor quiet = colour(isEnabled() ? Role::SecondText : Role::Quiet);
    if (sign_)
        drawIcon(painter, *sign_, QRectF(Inset, (bounds.height() - SignSize) / 2, SignSize, SignSize), quiet);
    painter.setFont(textFont(TextStyle::Value));
    painter.setPen(colour(isEnabled() ? Role::Text : Role::Quiet));
    drawNumber(painter, bounds.adjusted(textLeft(), 0, 0, 0), Qt::AlignLeft, text());
    const QRectF chevron(bounds.width() - Inset - ChevronSize, (bounds.height() - ChevronSize) / 2,
                         ChevronSize, ChevronSize);
    drawIcon(painter, Icon::ChevronDown, chevron, quiet);
}

}  // namespace lorvane::desktop
