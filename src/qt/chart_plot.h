// A chart on the screen: shows a content in a look, and tells what the mouse and the keyboard point at.
#pragma once

#include <QWidget>
#include <optional>

#include "platform/chart.h"
#include "qt/chart_look.h"

namespace lorvane {

class ChartDrawing;

/// The owner gives it its accessible name and description, moves the mark, and shows header and footer.
class ChartPlot : public QWidget {
    Q_OBJECT

public:
    explicit ChartPlot(QWidget* parent = nullptr);

    /// The same again does nothing, and a change of the mark alone leaves the lines as they are.
    void setContent(const ChartContent& content);
    void setLook(const ChartLook& look);

    /// Where a point of the power is drawn, both counted from 1; nothing in a gap.
    std::optional<QPointF> placeOf(int series, int point) const;

    QSize sizeHint() const override { return {900, 520}; }
    QSize minimumSizeHint() const override { return {420, 280}; }

signals:
    /// The mouse chose a point of the power, both counted from 1: by a click near it, or by a drag from
    /// anywhere.
    void picked(int series, int point);

    /// One of the four arrow keys.
    void stepped(Qt::Key key);

    /// The wheel turned by so many steps, up when above 0.
    void wheeled(int steps);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void pick(const QPointF& place, double reach);
    void setByKeyboard(bool byKeyboard);

    struct Press {
        QPointF place;
        bool dragging = false;
    };

    ChartDrawing* drawing_;
    ChartLook look_;
    std::optional<Press> press_;  ///< the left button is held
    bool byKeyboard_ = false;     ///< the last thing that it was told came from a key
    int turned_ = 0;              ///< what the wheel turned since its last step
};

}  // namespace lorvane
