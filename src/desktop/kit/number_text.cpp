// Tabular digits for families whose ordinary digits differ in width.
#include "desktop/kit/number_text.h"

#include <algorithm>

#include <QFontMetricsF>
#include <QPainter>

namespace lorvane::desktop {

namespace {

bool isDigit(QChar character) { return character >= QLatin1Char('0') && character <= QLatin1Char('9'); }

double widestDigit(const QFontMetricsF& metrics) {
    double widest = 0;
    for (char digit = '0'; digit <= '9'; ++digit)
        widest = std::max(widest, metrics.horizontalAdvance(QLatin1Char(digit)));
    return widest;
}

/// Gives every piece of the text, a single digit or a run without digits, with its own and its set width.
template <typename Piece>
void forEachPiece(const QFontMetricsF& metrics, const QString& text, Piece piece) {
    const double digitWidth = widestDigit(metrics);
    for (qsizetype start = 0; start < text.size();) {
        qsizetype end = start + 1;
        const bool digit = isDigit(text[start]);
        while (!digit && end < text.size() && !isDigit(text[end]))
            ++end;
        const QString part = text.mid(start, end - start);
        const double width = metrics.horizontalAdvance(part);
        piece(part, width, digit ? digitWidth : width);
        start = end;
    }
}

}  // namespace

double numberWidth(const QFont& font, const QString& text) {
    double total = 0;
    forEachPiece(QFontMetricsF(font), text, [&](const QString&, double, double set) { total += set; });
    return total;
}

void drawNumber(QPainter& painter, const QPointF& baseline, const QString& text) {
    double x = baseline.x();
    forEachPiece(QFontMetricsF(painter.font()), text, [&](const QString& part, double own, double set) {
        painter.drawText(QPointF(x + (set - own) / 2, baseline.y()), part);
        x += set;
    });
}

void drawNumber(QPainter& painter, const QRectF& area, Qt::Alignment alignment, const QString& text) {
    const double spare = area.width() - numberWidth(painter.font(), text);
    const double before = alignment & Qt::AlignRight ? spare : alignment & Qt::AlignHCenter ? spare / 2 : 0;
    drawNumber(painter, QPointF(area.left() + before, centredBaseline(painter.font(), area)), text);
}

QFont fittedFont(const QFont& font, const QString& text, double width) {
    const double wanted = numberWidth(font, text);
    if (wanted <= width || wanted <= 0 || width <= 0)
        return font;
    QFont smaller(font);
    smaller.setPointSizeF(font.pointSizeF() * width / wanted);
    return smaller;
}

double centredBaseline(const QFont& font, const QRectF& area) {
    const QFontMetricsF metrics(font);
    return area.center().y() + (metrics.ascent() - metrics.descent()) / 2;
}

}  // namespace lorvane::desktop
