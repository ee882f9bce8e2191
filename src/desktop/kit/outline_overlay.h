// A clear sheet over a widget that draws outlines around what needs attention. It lets all input through and
// knows rectangles only.
#pragma once

#include <QList>
#include <QRect>
#include <QWidget>

namespace lorvane::desktop {

/// What to outline, in the overlay's coordinates, and how far outside of it the outline runs at
/// 100 %.
struct Outline {
    QRect around;
    int distance = 5;
    bool operator==(const Outline&) const = default;
};

/// The distance of an outline that points at something without calling it wrong.
inline constexpr int GuideDistance = 8;

/// Stays above what is added to the covered widget later.
class OutlineOverlay : public QWidget {
    Q_OBJECT

public:
    /// Becomes a child of the widget that it covers, above its other children, and follows its size.
    explicit OutlineOverlay(QWidget* covered);

    /// All outlines at once; those around an empty rectangle are left out.
    void setOutlines(const QList<Outline>& outlines);
    const QList<Outline>& outlines() const { return outlines_; }

    /// The rectangle around all of these widgets that are visible, in the overlay's coordinates; empty when
    /// none is. They must lie within the covered widget.
    QRect rectangleAround(const QList<QWidget*>& widgets) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QList<Outline> outlines_;
};

}  // namespace lorvane::desktop
