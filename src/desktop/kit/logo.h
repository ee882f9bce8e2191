// The mark of the program: a line that parts into the two arms. Knows no window.
#pragma once

#include <QWidget>

class QIcon;

namespace lorvane::desktop {

/// Paints the mark in the colours of the theme in use, in the middle of an area and as large as fits into it.
void drawLogo(QPainter& painter, const QRectF& area);

/// The mark on a white plate, for windows and task bars of any colour, in sizes from 16 to 256.
QIcon logoIcon();

/// The mark at the head of the start screen, in a fixed size.
class Logo : public QWidget {
    Q_OBJECT

public:
    explicit Logo(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace lorvane::desktop
