// Plain text in a given width. Knows no chart and no markup.
#pragma once

#include <QFont>
#include <QStringList>

class QPainter;
class QPointF;

namespace lorvane {

/// Lines of text in one font.
struct TextBlock {
    QStringList lines;
    QFont font;
    double pitch = 16;  ///< from one line to the next

    double width() const;
    double height() const { return pitch * static_cast<double>(lines.size()); }

    /// Draws in the painter's pen. The lines begin at the left of a place, end at its right, or have their
    /// middle in it; its height is the top of the first.
    void draw(QPainter& painter, const QPointF& place, Qt::Alignment side = Qt::AlignLeft) const;
};

/// A text in at most so many lines. What does not fit ends in dots.
TextBlock wrapped(const QString& text, const QFont& font, double width, int most);

/// Each line of a text as it is. What does not fit loses its middle, since numbers stand at the end.
TextBlock shortened(const QString& text, const QFont& font, double width);

}  // namespace lorvane
