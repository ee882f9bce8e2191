// Breaking, shortening and drawing of lines.
#include "qt/chart_text.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>
#include <cmath>

namespace lorvane {

namespace {

constexpr double linePitch = 1.25;  ///< of the size of a font

double pitchOf(const QFont& font) { return std::round(linePitch * font.pixelSize()); }

}  // namespace

double TextBlock::width() const {
    const QFontMetricsF metrics(font);
    double widest = 0;
    for (const QString& line : lines)
        widest = std::max(widest, metrics.horizontalAdvance(line));
    return std::ceil(widest);
}

void TextBlock::draw(QPainter& painter, const QPointF& place, Qt::Alignment side) const {
    const QFontMetricsF metrics(font);
    const double share = side == Qt::AlignHCenter ? 0.5 : side == Qt::AlignRight ? 1 : 0;
    double baseline = place.y() + (pitch + metrics.capHeight()) / 2;
    painter.setFont(font);
    painter.setLayoutDirection(Qt::LeftToRight);
    for (const QString& line : lines) {
        painter.drawText(QPointF(place.x() - share * metrics.horizontalAdvance(line), baseline), line);
        baseline += pitch;
    }
}

TextBlock wrapped(const QString& text, const QFont& font, double width, int most) {
    TextBlock block{{}, font, pitchOf(font)};
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(std::max(width, 1.0));
        const bool last = block.lines.size() + 1 == most;
        const QString rest = text.mid(line.textStart());
        if (last) {
            block.lines << QFontMetricsF(font).elidedText(rest, Qt::ElideRight, width);
            break;
        }
        block.lines << text.mid(line.textStart(), line.textLength()).trimmed();
    }
    layout.endLayout();
    return block;
}

TextBlock shortened(const QString& text, const QFont& font, double width) {
    TextBlock block{text.split(QLatin1Char('\n')), font, pitchOf(font)};
    for (QString& line : block.lines)
        line = QFontMetricsF(font).elidedText(line, Qt::ElideMiddle, width);
    return block;
}

}  // namespace lorvane
