// The drawing of a curve of shares over whole numbers, with a ring at the present one, that lets a person
// choose another. All texts are given; knows no power and no study.
#pragma once

#include <QList>
#include <QString>
#include <QWidget>

namespace lorvane::desktop {

/// A point of the curve.
struct CurveMark {
    double number = 0;
    double share = 0;  ///< 0 to 1
    QString words;     ///< its tip, and what is said of it
    bool operator==(const CurveMark&) const = default;
};

/// What the plot shows; without points it shows nothing.
struct CurveContent {
    QString title;           ///< below the numbers
    QList<CurveMark> marks;  ///< rising
    double first = 0;        ///< ends of the axis
    double last = 0;
    int present = 0;    ///< the one with the ring
    double limit = 0;   ///< share of the dashed line
    QString limitText;  ///< below its right end
    bool operator==(const CurveContent&) const = default;
};

/// A click chooses the point next to the pointer. With the keyboard Left, Right, Home and End go from point
/// to point, Enter chooses and Esc goes back. Screen readers get it as a slider.
class CurvePlot : public QWidget {
    Q_OBJECT

public:
    explicit CurvePlot(QWidget* parent = nullptr);

    void setContent(const CurveContent& content);
    const CurveContent& content() const { return content_; }

    /// The middle of a point, in the figures of 100 %.
    QPointF placeOf(int mark) const;

    /// The point that the keys have gone to, else the present one.
    int current() const { return pointed_ < 0 ? content_.present : pointed_; }

    /// Goes to a point, held to those that there are, without choosing it.
    void goTo(int mark);

    /// Chooses the current point, unless it is the present one.
    void choose();

    QSize sizeHint() const override;

signals:
    void chosen(int mark);
    void focused();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QRectF field() const;
    double across(double number) const;
    double down(double share) const;
    int markAt(const QPointF& place) const;
    void setPointed(int mark);
    void tell(const QPoint& place) const;

    void paintShares(QPainter& painter) const;
    void paintNumbers(QPainter& painter) const;
    void paintLimit(QPainter& painter) const;
    void paintLimitWords(QPainter& painter) const;
    void paintCurve(QPainter& painter) const;

    CurveContent content_;
    int pointed_ = -1;  ///< under the pointer, or where the keys have gone; -1: none
};

}  // namespace lorvane::desktop
