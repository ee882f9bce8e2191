// Building and layout of a chart, and where its points are.
#include "qt/chart_drawing.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "qt/chart_ticks.h"

namespace lorvane {

namespace {

constexpr int steps = 5;
constexpr int mostTicks = 10;
constexpr double leastTick = 56;
constexpr double tickAir = 28;
constexpr int titlePadding = 8;
constexpr int axisPadding = 2;
constexpr int titleLines = 2;
const QMargins leastMargins(8, 16, 24, 4);
constexpr double hair = 1e-6;  ///< of the length of an axis: a tick at its very end is drawn

constexpr double endStep = 0.001;
constexpr int ownRoom = 18;
constexpr double columnGap = 34;
constexpr double leastColumn = 80;
constexpr double widestColumn = 260;
constexpr double plotShare = 0.5;  ///< of the width, at least the plot's

/// Paints on a layer of a plot. The plot owns it.
class Painting final : public QCPLayerable {
public:
    Painting(QCustomPlot* plot, const char* layer, std::function<void(QCPPainter&)> paint)
        : QCPLayerable(plot, QString::fromLatin1(layer)), paint_(std::move(paint)) {}

private:
    void applyDefaultAntialiasingHint(QCPPainter*) const override {}
    void draw(QCPPainter* painter) override { paint_(*painter); }

    std::function<void(QCPPainter&)> paint_;
};

/// A line that is whole at the ends of the axes too. Its points lie within them.
class WholeLine final : public QCPGraph {
public:
    using QCPGraph::QCPGraph;

private:
    QRect clipRect() const override { return parentPlot()->viewport(); }
};

void setTicks(QCPAxis& axis, const ChartTicks& ticks) {
    const QSharedPointer<QCPAxisTickerText> ticker(new QCPAxisTickerText);
    for (const double value : ticks.values)
        ticker->addTick(value, ticks.text(value));
    axis.setTicker(ticker);
}

void setRange(QCPAxis& axis, double low, double high) {
    const double more = high > low ? hair * (high - low) : 0.5;
    axis.setRange(low - more, high + more);
}

void setAxisLook(QCPAxis& axis, const ChartLook& look) {
    axis.setBasePen(QPen(look.axis, 1));
    axis.setTickPen(QPen(look.axis, 1));
    axis.setSubTicks(false);
    axis.setTickLength(0, ChartDrawing::tickLength);
    axis.setTickLabelPadding(ChartDrawing::tickPadding);
    axis.setTickLabelFont(look.sized(ChartDrawing::markPixels));
    axis.setTickLabelColor(look.secondText);
    axis.setLabelFont(look.sized(ChartDrawing::markPixels, QFont::DemiBold));
    axis.setLabelColor(look.text);
    axis.setLabelPadding(titlePadding);
    axis.setPadding(axisPadding);
}

/// The values of x of all groups.
std::vector<double> allX(const ChartContent& content) {
    std::vector<double> all;
    for (const ChartGroup& group : content.groups)
        all.insert(all.end(), group.x.begin(), group.x.end());
    return all;
}

}  // namespace

ChartDrawing::ChartDrawing(QWidget* parent) : QCustomPlot(parent), column_(new QCPLayoutElement(this)) {
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    plotLayout()->addElement(0, 1, column_);
    plotLayout()->setColumnSpacing(0);
    axisRect()->setMinimumMargins(leastMargins);
    xAxis->grid()->setVisible(false);
    yAxis->grid()->setZeroLinePen(Qt::NoPen);
    const auto paints = [this](const char* layer, void (ChartDrawing::*paint)(QCPPainter&) const) {
        new Painting(this, layer, [this, paint](QCPPainter& painter) { (this->*paint)(painter); });
    };
    paints("grid", &ChartDrawing::paintRequiredLine);
    // Lines lie over the axes, so that their ends are whole.
    for (QCPAxis* axis : {xAxis, yAxis, yAxis2})
        axis->setLayer(QStringLiteral("grid"));
    paints("grid", &ChartDrawing::paintOwn);
    paints("legend", &ChartDrawing::paintLegend);
    paints("overlay", &ChartDrawing::paintRequiredText);
    paints("overlay", &ChartDrawing::paintMark);
    build();
}

// Building -------------------------------------------------------------------------------------------------

void ChartDrawing::setContent(const ChartContent& content) {
    if (content == content_)
        return;
    content_.mark = content.mark;
    if (content == content_)
        return layer(QStringLiteral("overlay"))->replot();
    content_ = content;
    build();
}

void ChartDrawing::setLook(const ChartLook& look) {
    if (look == look_)
        return;
    look_ = look;
    build();
}

void ChartDrawing::build() {
    clearPlottables();
    setBackground(QBrush(look_.ground));
    for (QCPAxis* axis : {xAxis, yAxis, yAxis2})
        setAxisLook(*axis, look_);
    yAxis->grid()->setPen(QPen(look_.grid, 1));
    xAxis->setVisible(content_.x.visible);
    yAxis->setVisible(content_.y.visible);
    yAxis2->setVisible(content_.y2.visible && content_.groups.size() > 1);
    std::vector<double> ends = allX(content_);
    ends.insert(ends.end(), {content_.x.low, content_.x.high});
    const auto [low, high] = std::minmax_element(ends.begin(), ends.end());
    setRange(*xAxis, *low, *high);
    xAxis->setRangeReversed(content_.x.reversed);
    setRange(*yAxis, content_.y.low, content_.y.high);
    setTicks(*yAxis, evenTicks(content_.y.low, content_.y.high, steps));
    setRange(*yAxis2, content_.y2.low, content_.y2.high);
    setTicks(*yAxis2, evenTicks(content_.y2.low, content_.y2.high, steps));
    // Power lies over cost.
    for (std::size_t i = content_.groups.size(); i-- > 0;)
        for (std::size_t line = std::min(content_.groups[i].lines.size(), chartLines); line-- > 0;)
            buildLine(content_.groups[i], line, i == 0 ? ChartScales::power : ChartScales::cost);
    replot(rpQueuedReplot);
}

void ChartDrawing::buildLine(const ChartGroup& group, std::size_t number, ChartScales scale) {
    const bool power = scale == ChartScales::power;
    const ChartStroke& stroke = look_.strokes[number];
    QCPAxis* values = power ? yAxis : yAxis2;
    const LinePoints points = lineWithin(group.x, group.lines[number], power ? content_.y : content_.y2);
    auto* line = new WholeLine(xAxis, values);
    line->setPen(linePen(look_, stroke, scale));
    line->setData(points.keys, points.values, true);
    addSigns(values, lonePoints(points), loneSign(look_, stroke, scale));
    if (stroke.sign != ChartSigns::none)
        addSigns(values, somePoints(points, number, group.lines.size()), lineSign(look_, stroke, scale));
}

void ChartDrawing::addSigns(QCPAxis* values, const LinePoints& points, const QCPScatterStyle& style) {
    if (points.keys.isEmpty())
        return;
    auto* signs = new WholeLine(xAxis, values);
    signs->setLineStyle(QCPGraph::lsNone);
    signs->setScatterStyle(style);
    signs->setData(points.keys, points.values, true);
}

// Layout ---------------------------------------------------------------------------------------------------

bool ChartDrawing::legendIsBeside() const {
    const LegendPlaces place = content_.legend.place;
    return place == LegendPlaces::rightCentre || place == LegendPlaces::rightBottom;
}

/// What stands beside the plot tells how much of the width is left to the legend, and then to what stands
/// below it.
void ChartDrawing::updateLayout() {
    column_->setMinimumSize(0, 0);
    column_->setMaximumSize(0, QWIDGETSIZE_MAX);
    QCustomPlot::updateLayout();
    setTitle(*yAxis, content_.y, axisRect()->height());
    setTitle(*yAxis2, content_.y2, axisRect()->height());
    QCustomPlot::updateLayout();
    layOutLegend();
    QCustomPlot::updateLayout();
    layOutBelow();
    QCustomPlot::updateLayout();
}

void ChartDrawing::setTitle(QCPAxis& axis, const ChartAxis& content, double length) {
    const TextBlock title = wrapped(QString::fromStdString(content.title),
                                    look_.sized(markPixels, QFont::DemiBold), length, titleLines);
    axis.setLabel(title.lines.join(QLatin1Char('\n')));
}

void ChartDrawing::layOutLegend() {
    const bool shown = content_.legend.visible && content_.legend.place != LegendPlaces::hidden;
    const double margins = viewport().width() - axisRect()->width();
    const double beside = viewport().width() * (1 - plotShare) - margins - columnGap;
    const double room =
        legendIsBeside() ? std::clamp(beside, leastColumn, widestColumn) : axisRect()->width() * plateShare;
    legend_ = shown ? ChartLegendBox(content_, look_, room) : ChartLegendBox();
    if (!shown || !legendIsBeside())
        return;
    const int width = static_cast<int>(std::ceil(columnGap + legend_.size().width()));
    column_->setMinimumSize(width, 0);
    column_->setMaximumSize(width, QWIDGETSIZE_MAX);
}

void ChartDrawing::layOutBelow() {
    const std::vector<double> x = allX(content_);
    const bool whole =
        std::all_of(x.begin(), x.end(), [](double value) { return value == std::round(value); });
    const auto [low, high] = std::minmax_element(x.begin(), x.end());
    // The axis ends a hair beyond its last value, where no tick belongs.
    const double end = std::floor(content_.x.high / endStep + hair) * endStep;
    const double first = x.empty() ? content_.x.low : std::min(*low, content_.x.low);
    const double last = x.empty() ? end : std::max(*high, end);
    const QFontMetricsF metrics(look_.sized(markPixels));
    ChartTicks ticks = roundTicks(first, last, mostTicks, whole);
    double widest = 0;
    for (const double value : ticks.values)
        widest = std::max(widest, metrics.horizontalAdvance(ticks.text(value)));
    const double fitting = axisRect()->width() / std::max(leastTick, widest + tickAir);
    setTicks(*xAxis, roundTicks(first, last, std::clamp(static_cast<int>(fitting), 2, mostTicks), whole));

    setTitle(*xAxis, content_.x, axisRect()->width());
    xAxis->setLabelPadding(titlePadding + (content_.own ? ownRoom : 0));
}

QRectF ChartDrawing::field() const { return axisRect()->rect(); }

// Places ---------------------------------------------------------------------------------------------------

std::optional<QPointF> ChartDrawing::placeOf(int series, int point) const {
    if (content_.groups.empty() || series < 1 || point < 1)
        return std::nullopt;
    const ChartGroup& power = content_.groups.front();
    const auto line = static_cast<std::size_t>(series) - 1;
    const auto index = static_cast<std::size_t>(point) - 1;
    if (line >= power.lines.size() || index >= power.x.size())
        return std::nullopt;
    const std::optional<double> value = valueAt(power.lines[line], index);
    if (!value)
        return std::nullopt;
    return QPointF(xAxis->coordToPixel(power.x[index]), yAxis->coordToPixel(*value));
}

std::optional<NearPoint> ChartDrawing::nearest(const QPointF& place) const {
    std::optional<NearPoint> found;
    const std::size_t lines = content_.groups.empty() ? 0 : content_.groups.front().lines.size();
    for (std::size_t line = 0; line < lines; ++line)
        for (std::size_t point = 0; point < content_.groups.front().x.size(); ++point) {
            const int series = static_cast<int>(line) + 1;
            const int number = static_cast<int>(point) + 1;
            const std::optional<QPointF> other = placeOf(series, number);
            const double distance = other ? QLineF(place, *other).length() : 0;
            if (other && (!found || distance < found->distance))
                found = NearPoint{series, number, distance};
        }
    return found;
}

}  // namespace lorvane
