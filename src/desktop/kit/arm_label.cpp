// Painting of a dot and a name.
#include "desktop/kit/arm_label.h"

#include <cmath>

#include <QFontMetricsF>
#include <QPainter>

#include "desktop/kit/number_text.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr double DotSize = 6;
constexpr double DotCentre = 4;
constexpr double NameAfterDot = 13;
constexpr double LeastWord = 16;  ///< in less room the dot stands alone

}  // namespace

ArmLabel::ArmLabel(QWidget* parent) : PaintedText(parent) {
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

void ArmLabel::setArm(Dot dot, const QString& name) {
    if (dot == dot_ && name == name_)
        return;
    dot_ = dot;
    name_ = name;
    setAccessibleName(name);
    tellRest();
    updateGeometry();
    update();
}

QSize ArmLabel::sizeHint() const {
    const QFontMetricsF metrics(textFont(TextStyle::Caption));
    const double left = dot_ == Dot::None ? 0 : NameAfterDot;
    return {zoomed(*this, std::ceil(left + metrics.horizontalAdvance(name_))),
            zoomed(*this, std::ceil(metrics.height()))};
}

/// A name that is cut stands whole in the tip.
void ArmLabel::tellRest() { setToolTip(sizeHint().width() > width() ? name_ : QString()); }

void ArmLabel::resizeEvent(QResizeEvent*) { tellRest(); }

void ArmLabel::paintEvent(QPaintEvent*) {
    ZoomedPainter painter(*this);
    const QRectF bounds = figureRect(*this);
    const QFont font = textFont(TextStyle::Caption);
    double left = 0;
    if (dot_ != Dot::None) {
        const Role role = dot_ == Dot::Treated ? Role::Treated : Role::Control;
        drawDot(painter, QPointF(DotCentre, bounds.height() / 2 + 0.5), DotSize, colour(role));
        left = NameAfterDot;
    }
    if (bounds.width() - left < LeastWord)
        return;
    painter.setFont(font);
    painter.setPen(colour(isEnabled() ? Role::SecondText : Role::Quiet));
    painter.drawText(QPointF(left, centredBaseline(font, bounds)),
                     QFontMetricsF(font).elidedText(name_, Qt::ElideRight, bounds.width() - left));
}

}  // namespace lorvane::desktop
