// The drawing at the left of the level table: how blocks, randomization and nesting follow each other. Drawn
// from the list of roles alone.
#pragma once

#include <QList>
#include <QWidget>

#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

/// A line leads down from stop to stop. Below the randomized level it parts into two, one for each arm.
class LevelRail : public QWidget {
    Q_OBJECT

public:
    /// The role of a level: a dot in both colours, a ring with the sign of chance, or a dot on each line.
    enum class Stop { Blocked, Randomized, Nested };

    explicit LevelRail(QWidget* parent = nullptr);

    /// The roles from the top level down, and the height of the middle of each row in the
    /// figures of 100 %. Where one list is longer, its rest is left out.
    void setStops(const QList<Stop>& stops, const QList<int>& centres);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintWay(QPainter& painter, qsizetype from) const;
    void paintFork(QPainter& painter, double from, double to) const;
    void paintPair(QPainter& painter, double from, double to) const;
    void paintStop(QPainter& painter, Stop stop, double y) const;
    double middle() const { return figureRect(*this).width() / 2; }

    QList<Stop> stops_;
    QList<int> centres_;
};

}  // namespace lorvane::desktop
