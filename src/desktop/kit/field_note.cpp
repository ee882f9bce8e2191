// Placing, size and painting of text that wraps.
#include "desktop/kit/field_note.h"

#include <algorithm>
#include <cmath>

#include <QAccessible>
#include <QTextLayout>

#include "desktop/kit/icons.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/wrapped_text.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr double SignSize = 14;
constexpr double TextAfterSign = 22;

QFont fontOf(FieldNote::Tone tone) {
    return textFont(tone == FieldNote::Tone::Problem ? TextStyle::BodyMedium : TextStyle::Body);
}

double insetOf(FieldNote::Tone tone) { return tone == FieldNote::Tone::Problem ? TextAfterSign : 0; }

}  // namespace

FieldNote::FieldNote(double lowest, QWidget* parent) : PaintedText(parent), lowest_(lowest) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void FieldNote::setText(const QString& text, Tone tone) {
    if (text == text_ && tone == tone_)
        return;
    text_ = text;
    tone_ = tone;
    setAccessibleName(text);
    updateGeometry();
    update();
    if (tone == Tone::Problem) {
        QAccessibleEvent told(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&told);
    }
}

void FieldNote::keepRoomFor(const QString& text) {
    if (text == kept_)
        return;
    kept_ = text;
    updateGeometry();
}

double FieldNote::heightOf(const QString& text, Tone tone, double width) const {
    QTextLayout layout(inLines(text), fontOf(tone));
    return text.isEmpty() ? 0 : layOutLines(layout, std::max(width - insetOf(tone), 1.0));
}

int FieldNote::heightForWidth(int width) const {
    const double zoom = zoomOf(*this);
    const double height =
        std::max({lowest_, heightOf(text_, tone_, width / zoom), heightOf(kept_, Tone::Quiet, width / zoom)});
    return static_cast<int>(std::ceil(height * zoom));
}

QSize FieldNote::sizeHint() const { return {0, heightForWidth(width())}; }

void FieldNote::paintEvent(QPaintEvent*) {
    ZoomedPainter painter(*this);
    const QRectF area = figureRect(*this);
    QTextLayout layout(inLines(text_), fontOf(tone_));
    const double height = layOutLines(layout, std::max(area.width() - insetOf(tone_), 1.0));
    const double top = std::max((lowest_ - height) / 2, 0.0);
    const Role role = tone_ == Tone::Problem ? Role::ProblemText : Role::SecondText;
    painter.setPen(colour(role));
    layout.draw(&painter, {insetOf(tone_), top});
    if (tone_ == Tone::Problem && layout.lineCount() > 0)
        drawIcon(painter, Icon::Warning,
                 QRectF(0, top + (layout.lineAt(0).height() - SignSize) / 2, SignSize, SignSize),
                 colour(role));
}

}  // namespace lorvane::desktop
