// The drawing of trials: the cost of each against a size, joined in their order, and a ring at the cheapest.
// All texts are given; which trial is the cheapest is for its owner to say.
#pragma once

#include <QList>
#include <QStringList>

#include "desktop/kit/painted_text.h"
#include "desktop/kit/round_scale.h"

namespace lorvane::desktop {

/// One trial, with what a tool tip tells of it.
struct TrialPoint {
    double size = 0;
    double cost = 0;
    QStringList words;
    bool operator==(const TrialPoint&) const = default;
};

struct TrialPlotContent {
    QString title;  ///< the plot adds in what unit costs are written
    QString sizeLabel;
    QString bestLabel;  ///< beside the ring
    QList<TrialPoint> points;
    int best = 0;
    bool operator==(const TrialPlotContent&) const = default;
};

class TrialPlot : public PaintedText {
    Q_OBJECT

public:
    explicit TrialPlot(QWidget* parent = nullptr);

    void setContent(const TrialPlotContent& content);

    /// The place of a trial in the widget.
    QPointF placeOf(int point) const;

    QSize sizeHint() const override { return {337, 248}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    struct Unit;
    static const Unit& unitOf(double highest);

    QRectF field() const;
    double across(double size) const;
    double down(double cost) const;
    QString costText(int line) const;
    QString fullTitle() const;
    int nearest(const QPointF& place) const;
    void setPointed(int point);
    void measure();

    void paintCosts(QPainter& painter) const;
    void paintSizes(QPainter& painter) const;
    void paintTrials(QPainter& painter) const;
    void paintBest(QPainter& painter) const;

    TrialPlotContent content_;
    RoundScale costs_;
    double lowSize_ = 0;
    double highSize_ = 0;
    int pointed_ = -1;
};

}  // namespace lorvane::desktop
