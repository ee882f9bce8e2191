// Painting of a dot and a name.
#include "desktop/kit/arm_label.h"

#include <cmath>

#include <QFontMetricsF>
#include <QPainter>

#include "desktop/kit/number_text.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

constexpr double DotSize = 6;
constexpr double DotCentre = 4;
constexpr double NameAfterDot = 13;

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
    return {static_cast<int>(std::ceil(left + metrics.horizontalAdvance(name_))),
            static_cast<int>(std::ceil(metrics.height()))};
}

/// A name that is cut stands whole in the tip.
void ArmLabel::tellRest() { setToolTip(sizeHint().width() > width() ? name_ : QString()); }

void ArmLabel::resizeEvent(QResizeEvent*) { tellRest(); }

void ArmLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QFont font = textFont(TextStyle::Caption);
    double left = 0;
    if (dot_ != Dot::None) {
        const Role role = dot_ == Dot::Treated ? Role::Treated : Role::Control;
        drawDot(painter, QPointF(DotCentre, height() / 2.0 + 0.5), DotSize, colour(role));
        left = NameAfterDot;
    }
    painter.setFont(font);
    painter.setPen(colour(isEnabled() ? Role::SecondText : Role::Quiet));
    painter.drawText(QPointF(left, centredBaseline(font, QRectF(rect()))),
                     QFontMetricsF(font).elidedText(name_, Qt::ElideRight, width() - left));
}

}  // namespace lorvane::desktop
