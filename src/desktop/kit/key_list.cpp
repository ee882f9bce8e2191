// Painting of key caps and words.
#include "desktop/kit/key_list.h"

#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

#include "desktop/kit/painting.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

constexpr int Width = 382;
constexpr int HeadingHeight = 24;
constexpr int RowHeight = 33;
constexpr double CapHeight = 22;
constexpr double CapPadding = 6;
constexpr double CapGap = 4;
constexpr double WordsLeft = 150;
constexpr double WordGap = 6;  ///< between wide caps and the words

/// Paints one cap, or a word between two, and tells where the next begins.
double paintCap(QPainter& painter, const KeyCap& cap, double left, double top) {
    painter.setFont(textFont(cap.isKey ? TextStyle::CaptionStrong : TextStyle::Caption));
    const double text = std::ceil(QFontMetricsF(painter.font()).horizontalAdvance(cap.text));
    const QRectF plate(left, top + (RowHeight - CapHeight) / 2, text + (cap.isKey ? 2 * CapPadding : 0),
                       CapHeight);
    if (cap.isKey)
        drawPlate(painter, plate, FieldRadius - 2, colour(Role::Field), colour(Role::StrongLine));
    painter.setPen(colour(cap.isKey ? Role::Text : Role::SecondText));
    painter.drawText(plate, Qt::AlignCenter, cap.text);
    return plate.right() + CapGap;
}

QString spoken(const QString& heading, const std::vector<KeyLine>& lines) {
    QStringList words(heading);
    for (const KeyLine& line : lines) {
        QStringList keys;
        for (const KeyCap& cap : line.caps)
            keys += cap.text;
        words += keys.join(QLatin1Char(' ')) + QLatin1String(": ") + line.words;
    }
    return words.join(QLatin1Char('\n'));
}

}  // namespace

KeyList::KeyList(const QString& heading, const std::vector<KeyLine>& lines, QWidget* parent)
    : PaintedText(parent), heading_(heading), lines_(lines) {
    setAccessibleName(spoken(heading, lines));
}

QSize KeyList::sizeHint() const {
    return {Width, HeadingHeight + RowHeight * static_cast<int>(lines_.size())};
}

void KeyList::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(textFont(TextStyle::CaptionStrong));
    painter.setPen(colour(Role::SecondText));
    painter.drawText(QRectF(0, 0, width(), HeadingHeight - 8), Qt::AlignLeft | Qt::AlignVCenter, heading_);
    double top = HeadingHeight;
    for (const KeyLine& line : lines_) {
        painter.fillRect(QRectF(0, top - 1, width(), 1), colour(Role::Line));
        double left = 0;
        for (const KeyCap& cap : line.caps)
            left = paintCap(painter, cap, left, top);
        const QRectF place(std::max(WordsLeft, left + WordGap), top, 0, RowHeight);
        painter.setFont(textFont(TextStyle::Body));
        painter.setPen(colour(Role::Text));
        const QString words =
            QFontMetricsF(painter.font()).elidedText(line.words, Qt::ElideRight, width() - place.left());
        painter.drawText(place.adjusted(0, 0, width() - place.left(), 0), Qt::AlignLeft | Qt::AlignVCenter,
                         words);
        top += RowHeight;
    }
}

}  // namespace lorvane::desktop
