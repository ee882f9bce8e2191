// Scales, painting and tool tips of the trials.
#include "desktop/kit/trial_plot.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

#include "desktop/kit/card.h"
#include "desktop/kit/number_text.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

constexpr double Padding = 16;
constexpr double TitleMiddle = 28;
constexpr double Top = 60;
constexpr double Bottom = 45;  ///< from the lowest line to the edge of the card
constexpr double LeastLeft = 67;
constexpr double Right = 23;
constexpr double MarkGap = 9;
constexpr double Inset = 8;  ///< between the ends of the lines and the first and last trial
constexpr double SizesLine = 12;
constexpr double LabelLine = 28;
constexpr double DotSize = 4.5;
constexpr double PointedSize = 8;
constexpr double RingSize = 10;
constexpr double RingLine = 1.7;
constexpr double WayLine = 1.25;
constexpr float WayShare = 0.45F;
constexpr double BestAside = 9;
constexpr double BestBelow = 18;
constexpr double BestRoom = 0.15;  ///< of the range of costs, below the cheapest
constexpr double BestAbove = 10;

QColor way() {
    QColor faint = colour(Role::Treated);
    faint.setAlphaF(WayShare);
    return faint;
}

/// Text with its middle at a point.
void drawMiddle(QPainter& painter, const QPointF& middle, const QString& text) {
    drawNumber(painter, QRectF(middle.x(), middle.y() - 10, 0, 20), Qt::AlignHCenter, text);
}

}  // namespace

struct TrialPlot::Unit {
    double from;  ///< highest cost on the axis from which it is used
    double size;
    const char* name;
};

TrialPlot::TrialPlot(QWidget* parent) : PaintedText(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMouseTracking(true);
}

const TrialPlot::Unit& TrialPlot::unitOf(double highest) {
    static constexpr Unit Units[] = {
        {1e7, 1e6, QT_TR_NOOP("millions")}, {1e4, 1e3, QT_TR_NOOP("thousands")}, {0, 1, nullptr}};
    return *std::find_if(std::begin(Units), std::end(Units),
                         [&](const Unit& unit) { return highest >= unit.from; });
}

QString TrialPlot::fullTitle() const {
    const Unit& unit = unitOf(costs_.high());
    return unit.name == nullptr ? content_.title
                                : QStringLiteral("%1 (%2)").arg(content_.title, tr(unit.name));
}

void TrialPlot::measure() {
    const auto bySize = [](const TrialPoint& a, const TrialPoint& b) { return a.size < b.size; };
    const auto byCost = [](const TrialPoint& a, const TrialPoint& b) { return a.cost < b.cost; };
    const QList<TrialPoint>& points = content_.points;
    if (points.isEmpty())
        return;
    const auto [narrow, wide] = std::minmax_element(points.begin(), points.end(), bySize);
    const auto [cheap, dear] = std::minmax_element(points.begin(), points.end(), byCost);
    lowSize_ = narrow->size;
    highSize_ = wide->size;
    const double room = BestRoom * (dear->cost - cheap->cost);
    costs_ = fiveSteps(std::max(0.0, cheap->cost - room), dear->cost);
}

void TrialPlot::setContent(const TrialPlotContent& content) {
    if (content == content_)
        return;
    content_ = content;
    setPointed(-1);
    measure();
    setAccessibleName(fullTitle());
    if (content_.best < content_.points.size())
        setAccessibleDescription(QStringLiteral("%1: %2").arg(
            content_.bestLabel, content_.points[content_.best].words.join(QStringLiteral(", "))));
    update();
}

// Places ---------------------------------------------------------------------------------------------------

QString TrialPlot::costText(int line) const {
    return QString::number((costs_.low + line * costs_.step) / unitOf(costs_.high()).size);
}

QRectF TrialPlot::field() const {
    const QFont font = textFont(TextStyle::Mark);
    double widest = 0;
    for (int line = 0; line <= costs_.steps; ++line)
        widest = std::max(widest, numberWidth(font, costText(line)));
    const double left = std::max(LeastLeft, Padding + widest + MarkGap);
    return {left, Top, width() - left - Right, height() - Top - Bottom};
}

double TrialPlot::across(double size) const {
    const QRectF area = field().adjusted(Inset, 0, -Inset, 0);
    const double length = highSize_ - lowSize_;
    return length > 0 ? area.left() + area.width() * (size - lowSize_) / length : area.center().x();
}

double TrialPlot::down(double cost) const {
    const QRectF area = field();
    return area.bottom() - area.height() * (cost - costs_.low) / (costs_.high() - costs_.low);
}

QPointF TrialPlot::placeOf(int point) const {
    const TrialPoint& trial = content_.points[point];
    return {across(trial.size), down(trial.cost)};
}

int TrialPlot::nearest(const QPointF& place) const {
    int found = -1;
    double least = 0;
    for (int i = 0; i < content_.points.size(); ++i) {
        const QPointF way = placeOf(i) - place;
        const double distance = QPointF::dotProduct(way, way);
        if (found >= 0 && distance >= least)
            continue;
        found = i;
        least = distance;
    }
    return found;
}

// Pointer --------------------------------------------------------------------------------------------------

void TrialPlot::setPointed(int point) {
    if (point == pointed_)
        return;
    pointed_ = point;
    update();
}

void TrialPlot::mouseMoveEvent(QMouseEvent* event) {
    const bool within = field().adjusted(-Inset, -Inset, Inset, Inset).contains(event->position());
    setPointed(within ? nearest(event->position()) : -1);
    if (pointed_ < 0)
        return QToolTip::hideText();
    QToolTip::showText(event->globalPosition().toPoint(),
                       content_.points[pointed_].words.join(QLatin1Char('\n')), this);
}

void TrialPlot::leaveEvent(QEvent*) { setPointed(-1); }

// Painting -------------------------------------------------------------------------------------------------

void TrialPlot::paintCosts(QPainter& painter) const {
    const QRectF area = field();
    painter.setFont(textFont(TextStyle::Mark));
    painter.setPen(colour(Role::SecondText));
    for (int line = 0; line <= costs_.steps; ++line) {
        const double y = std::round(down(costs_.low + line * costs_.step));
        painter.fillRect(QRectF(area.left(), y, area.width(), 1), colour(Role::Line));
        drawNumber(painter, QRectF(0, y - 9.5, area.left() - MarkGap, 20), Qt::AlignRight, costText(line));
    }
}

void TrialPlot::paintSizes(QPainter& painter) const {
    const QRectF area = field();
    const double step = wholeStep(highSize_ - lowSize_);
    for (double mark = std::ceil(lowSize_ / step) * step; mark <= highSize_; mark += step)
        drawMiddle(painter, {across(mark), area.bottom() + SizesLine}, QString::number(mark));
    drawMiddle(painter, {area.center().x(), area.bottom() + LabelLine}, content_.sizeLabel);
}

void TrialPlot::paintTrials(QPainter& painter) const {
    QPainterPath path(placeOf(0));
    for (int i = 1; i < content_.points.size(); ++i)
        path.lineTo(placeOf(i));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(path, QPen(way(), WayLine, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (int i = 0; i < content_.points.size(); ++i)
        drawDot(painter, placeOf(i), i == pointed_ ? PointedSize : DotSize, colour(Role::Treated));
}

/// The words stand at the right of the ring and below it. Without room they stand at its left, or above it.
void TrialPlot::paintBest(QPainter& painter) const {
    const QPointF place = placeOf(content_.best);
    painter.setPen(QPen(colour(Role::Treated), RingLine));
    painter.setBrush(colour(Role::Card));
    painter.drawEllipse(place, RingSize / 2, RingSize / 2);
    QFont strong = textFont(TextStyle::CaptionStrong);
    strong.setWeight(QFont::DemiBold);
    painter.setFont(strong);
    painter.setPen(colour(Role::Text));
    const double width = QFontMetricsF(painter.font()).horizontalAdvance(content_.bestLabel);
    const bool right = place.x() + BestAside + width <= field().right() + Right;
    const bool below = place.y() + BestBelow <= field().bottom();
    painter.drawText(QPointF(right ? place.x() + BestAside : place.x() - BestAside - width,
                             place.y() + (below ? BestBelow : -BestAbove)),
                     content_.bestLabel);
}

void TrialPlot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintCard(painter, QRectF(rect()), CardTone::Plain);
    painter.setFont(textFont(TextStyle::CaptionStrong));
    painter.setPen(colour(Role::SecondText));
    const QRectF titleLine(Padding, TitleMiddle - 10, width() - 2 * Padding, 20);
    painter.drawText(QPointF(Padding, centredBaseline(painter.font(), titleLine)), fullTitle());
    if (content_.points.isEmpty())
        return;
    paintCosts(painter);
    paintSizes(painter);
    paintTrials(painter);
    paintBest(painter);
}

}  // namespace lorvane::desktop
