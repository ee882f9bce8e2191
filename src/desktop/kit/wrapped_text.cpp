// Breaking of a text into lines.
#include "desktop/kit/wrapped_text.h"

#include <QTextLayout>
#include <cmath>

#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr int PreferredWidth = 240;

}  // namespace

QString inLines(QString text) { return text.replace(QLatin1Char('\n'), QChar::LineSeparator); }

double layOutLines(QTextLayout& layout, double width, double lineHeight) {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    double bottom = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const double height = lineHeight > 0 ? lineHeight : line.height();
        line.setPosition({0, bottom + (height - line.height()) / 2});
        bottom += height;
    }
    layout.endLayout();
    return bottom;
}

WrappedText::WrappedText(TextStyle style, Role role, QWidget* parent)
    : PaintedText(parent), style_(style), role_(role) {
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void WrappedText::setText(const QString& text) {
    if (text == text_)
        return;
    text_ = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

void WrappedText::setLineHeight(double height) {
    lineHeight_ = height;
    updateGeometry();
    update();
}

QSize WrappedText::sizeHint() const {
    const int width = zoomed(*this, PreferredWidth);
    return {width, heightForWidth(width)};
}

QSize WrappedText::minimumSizeHint() const { return {0, 0}; }

int WrappedText::heightForWidth(int width) const {
    QTextLayout layout(inLines(text_), textFont(style_));
    const double zoom = zoomOf(*this);
    return static_cast<int>(std::ceil(layOutLines(layout, width / zoom, lineHeight_) * zoom));
}

void WrappedText::paintEvent(QPaintEvent*) {
    ZoomedPainter painter(*this);
    painter.setPen(colour(role_));
    QTextLayout layout(inLines(text_), textFont(style_));
    layOutLines(layout, figureRect(*this).width(), lineHeight_);
    layout.draw(&painter, {});
}

}  // namespace lorvane::desktop
