// The height of lines that wrap.
#include "desktop/kit/wrapped_label.h"

#include <QResizeEvent>

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

void WrappedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        updateGeometry();
}

}  // namespace lorvane::desktop
