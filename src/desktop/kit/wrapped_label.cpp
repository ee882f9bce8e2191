// The height of lines that wrap.
#include "desktop/kit/wrapped_label.h"

#include <QPainter>
#include <QResizeEvent>
#include <QTextLayout>
#include <cmath>

#include "desktop/kit/wrapped_text.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr int PreferredWidth = 200;

}  // namespace

WrappedLabel::WrappedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

QSize WrappedLabel::sizeHint() const {
    const int preferred = zoomed(*this, PreferredWidth);
    return {preferred, heightForWidth(preferred)};
}

// Before it has been placed its width says nothing.
QSize WrappedLabel::minimumSizeHint() const {
    const bool isPlaced = testAttribute(Qt::WA_Resized) && !text().isEmpty();
    return {0, isPlaced ? heightForWidth(width()) : fontMetrics().height()};
}

// A label of the toolkit cuts a word that is longer than its line, as a name of one word may be.
int WrappedLabel::heightForWidth(int width) const {
    QTextLayout layout(inLines(text()), font());
    return static_cast<int>(std::ceil(layOutLines(layout, width)));
}

void WrappedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    QTextLayout layout(inLines(text()), font());
    const double top = std::max((height() - layOutLines(layout, width())) / 2, 0.0);
    const double share = (alignment() & Qt::AlignRight) != 0     ? 1
                         : (alignment() & Qt::AlignHCenter) != 0 ? 0.5
                                                                 : 0;
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        line.draw(&painter, {share * (width() - line.naturalTextWidth()), top});
    }
}

void WrappedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        updateGeometry();
}

}  // namespace lorvane::desktop
