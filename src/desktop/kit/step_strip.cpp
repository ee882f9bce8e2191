// Painting of the strip. All lengths are those of 100 %.
#include "desktop/kit/step_strip.h"

#include "desktop/kit/painting.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr double Height = 4;
constexpr double Gap = 3;
constexpr double PreferredWidth = 292;
constexpr double Behind = 0.6;  // opacity of what has been gone through

}  // namespace

StepStrip::StepStrip(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void StepStrip::setSteps(int count, int begun, bool isOnLast) {
    if (count == count_ && begun == begun_ && isOnLast == isOnLast_)
        return;
    count_ = count;
    begun_ = begun;
    isOnLast_ = isOnLast;
    update();
}

QSize StepStrip::sizeHint() const { return {zoomed(*this, PreferredWidth), zoomed(*this, Height)}; }

void StepStrip::paintEvent(QPaintEvent*) {
    if (count_ < 1)
        return;
    ZoomedPainter painter(*this);
    const QRectF bounds = figureRect(*this);
    const double width = (bounds.width() - Gap * (count_ - 1)) / count_;
    for (int step = 0; step < count_; ++step) {
        const bool isPresent = isOnLast_ && step + 1 == begun_;
        QColor fill = colour(step < begun_ ? Role::GuideText : Role::GuideLine);
        if (step < begun_ && !isPresent)
            fill.setAlphaF(static_cast<float>(Behind));
        fillPlate(painter, QRectF(step * (width + Gap), 0, width, Height), Height / 2, fill);
    }
}

}  // namespace lorvane::desktop
