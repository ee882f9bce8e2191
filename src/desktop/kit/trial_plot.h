// The drawing of trials: the cost or the power of each above a size, a line that joins them in their order, a
// ring at the best, a diamond at the one that is proven to be it, and a dot at the one that is shown, all
// told in the head. All texts are given, and the owner says which trials these are.
#pragma once

#include <optional>

#include <QList>
#include <QStringList>

#include "desktop/kit/painted_text.h"
#include "desktop/kit/round_scale.h"

namespace lorvane::desktop {

/// One trial, or a design beside them.
struct TrialPoint {
    double size = 0;
    double value = 0;    ///< 0 or more
    QStringList words;   ///< the lines of its tool tip
    bool onLine = true;  ///< the line passes by the others
    bool operator==(const TrialPoint&) const = default;
};

/// What the plot shows. Without points it shows the title only.
struct TrialPlotContent {
    QString title;      ///< the plot adds "(thousands)" or "(millions)" where costs are written in these
    QString sizeLabel;  ///< below the sizes
    QString bestLabel;  ///< what the ring marks
    QList<TrialPoint> points;
    int best = 0;    ///< number of the one with the ring, from 0; must be one of them unless there are none
    int shown = -1;  ///< number of the one with the dot; below 0 none has it
    QString shownLabel = {};   ///< what the dot marks; with a label the head keeps room for it
    int proven = -1;           ///< number of the one with the diamond, another than best; below 0 none has it
    QString provenLabel = {};  ///< what the diamond marks
    bool areShares = false;    ///< the values are shares of 0 to 1, written as per cent, and not costs
    std::optional<double> limit = {};  ///< the value of a dashed line
    bool operator==(const TrialPlotContent&) const = default;
};

/// A card. The trial next to the pointer is drawn larger and has a tool tip, and a click picks it.
class TrialPlot : public PaintedText {
    Q_OBJECT

public:
    explicit TrialPlot(QWidget* parent = nullptr);

    /// The content; both scales follow from the points.
    void setContent(const TrialPlotContent& content);

    /// The texts at the lines of the values, from the lowest up.
    QStringList valueTexts() const;

    /// The middle of the dot of a trial, in the widget's coordinates. The trial must be one of the points.
    QPointF placeOf(int point) const;

    QSize sizeHint() const override { return {337, 222}; }

signals:
    /// The user clicks next to a trial, by its number.
    void picked(int point);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    enum class Sign { Ring, Diamond, Dot };
    struct Mark {
        Sign sign;
        int point;  ///< below 0 for none
        QString words;
    };
    struct Unit;

    const Unit& unit() const;
    QList<Mark> marks() const;
    bool titleFits(double gap) const;
    QRectF field() const;
    double across(double size) const;
    double down(double value) const;
    QString valueText(int line) const;
    QString fullTitle() const;
    int nearest(const QPointF& place) const;
    int pointAt(const QPointF& place) const;
    void setPointed(int point);
    void measure();
    void fitHead();

    void paintValues(QPainter& painter) const;
    void paintLimit(QPainter& painter) const;
    void paintSizes(QPainter& painter) const;
    void paintTrials(QPainter& painter) const;
    void paintHead(QPainter& painter) const;
    void paintMarks(QPainter& painter) const;
    void paintSign(QPainter& painter, Sign sign, const QPointF& place, const QColor& ground) const;

    TrialPlotContent content_;
    RoundScale values_;
    bool inFull_ = false;  ///< the values, since their unit has no room in the head
    double headGap_ = 0;
    double lowSize_ = 0;
    double highSize_ = 0;
    int pointed_ = -1;
};

}  // namespace lorvane::desktop
