// A sheet over a window that draws outlines around what needs attention. Takes no input; knows rectangles
// only.
#pragma once

#include <QList>
#include <QRect>
#include <QWidget>

namespace lorvane::desktop {

/// What to outline, in the overlay's coordinates, and how far outside of it the outline runs.
struct Outline {
    QRect around;
    int distance = 5;
    bool operator==(const Outline&) const = default;
};

/// The distance of an outline that points at something without calling it wrong.
inline constexpr int GuideDistance = 8;

class OutlineOverlay : public QWidget {
    Q_OBJECT

public:
    /// Covers the whole of a widget, above its children, and follows its size.
    explicit OutlineOverlay(QWidget* covered);

    void setOutlines(const QList<Outline>& outlines);
    const QList<Outline>& outlines() const { return outlines_; }

    /// The rectangle around some visible widgets, in the overlay's coordinates.
    QRect rectangleAround(const QList<QWidget*>& widgets) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QList<Outline> outlines_;
};

}  // namespace lorvane::desktop
