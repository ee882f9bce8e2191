// The drawing at the left of the level table: how blocks, randomization and nesting follow each other. Drawn
// from the list of roles alone.
#pragma once

#include <QList>
#include <QWidget>

namespace lorvane::desktop {

class LevelRail : public QWidget {
    Q_OBJECT

public:
    enum class Stop { Blocked, Randomized, Nested };

    explicit LevelRail(QWidget* parent = nullptr);

    /// The roles from the top level down, and the middle of each row in this widget's coordinates.
    void setStops(const QList<Stop>& stops, const QList<int>& centres);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintWay(QPainter& painter, qsizetype from) const;
    void paintFork(QPainter& painter, double from, double to) const;
    void paintPair(QPainter& painter, double from, double to) const;
    void paintStop(QPainter& painter, Stop stop, double y) const;
    double middle() const { return width() / 2.0; }

    QList<Stop> stops_;
    QList<int> centres_;
};

}  // namespace lorvane::desktop
