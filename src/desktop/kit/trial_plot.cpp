// Scales, painting and tool tips of the trials.
#include "desktop/kit/trial_plot.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "desktop/kit/card.h"
#include "desktop/kit/number_text.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

constexpr double Padding = 16;
constexpr double TitleMiddle = 20;
constexpr double Top = 45;
constexpr double Bottom = 45;  ///< from the lowest line to the edge of the card
constexpr double LeastLeft = 60;
constexpr double Right = 23;
constexpr double MarkGap = 9;
constexpr double LeastStep = 14;
constexpr double Inset = 8;  ///< between the ends of the lines and the first and last trial
constexpr double SizesLine = 12;
constexpr double LabelLine = 28;
constexpr double DotSize = 4.5;
constexpr double PointedSize = 8;
constexpr double RingSize = 10;
constexpr double RingLine = 1.7;
constexpr double DiamondSize = 13;
constexpr double WayLine = 1.25;
constexpr float WayShare = 0.45F;
constexpr double ShownSize = 10;
constexpr double LegendRight = 13;
constexpr double LegendSign = 10;  ///< from the middle of a mark to its words
constexpr double LegendGap = 16;   ///< from the middle of a mark to the words before it
constexpr double NarrowGap = 11;   ///< the same where the title would be cut
constexpr double BestRoom = 0.05;  ///< of the range of costs, below the cheapest
constexpr double Dash = 4, DashGap = 3;

QColor way() {
    QColor faint = colour(Role::Treated);
    faint.setAlphaF(WayShare);
    return faint;
}

/// The colour of the selected row, whose trial it is. On a dark ground that would hardly be seen.
QColor shownColour() { return colour(Theme::current().isDark() ? Role::Accent : Role::SelectedRow); }

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

// Content --------------------------------------------------------------------------------------------------

TrialPlot::TrialPlot(QWidget* parent) : PaintedText(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMouseTracking(true);
}

const TrialPlot::Unit& TrialPlot::unit() const {
    static constexpr Unit Units[] = {
        {1e7, 1e6, QT_TR_NOOP("millions")}, {1e4, 1e3, QT_TR_NOOP("thousands")}, {0, 1, nullptr}};
    if (inFull_)
        return Units[2];
    return *std::find_if(std::begin(Units), std::end(Units),
                         [&](const Unit& unit) { return values_.high() >= unit.from; });
}

QString TrialPlot::fullTitle() const {
    const char* name = unit().name;
    return name == nullptr ? content_.title : QStringLiteral("%1 (%2)").arg(content_.title, tr(name));
}

/// From left to right in the head; on the drawing each lies over those before it.
QList<TrialPlot::Mark> TrialPlot::marks() const {
    if (content_.points.isEmpty())
        return {};
    return {{Sign::Ring, content_.best, content_.bestLabel},
            {Sign::Diamond, content_.proven, content_.provenLabel},
            {Sign::Dot, content_.shown, content_.shownLabel}};
}

/// The dot comes and goes with a click, so its room counts without it.
bool TrialPlot::titleFits(double gap) const {
    const QFontMetricsF words(textFont(TextStyle::Mark));
    double room = width() - Padding - LegendRight;
    for (const Mark& mark : marks())
        if (mark.point >= 0 || (mark.sign == Sign::Dot && !mark.words.isEmpty()))
            room -= words.horizontalAdvance(mark.words) + LegendSign + gap;
    return QFontMetricsF(textFont(TextStyle::CaptionStrong)).horizontalAdvance(fullTitle()) <= room;
}

/// The title gives up its unit first, then the marks stand closer.
void TrialPlot::fitHead() {
    inFull_ = false;
    inFull_ = unit().name != nullptr && !titleFits(LegendGap);
    headGap_ = titleFits(LegendGap) ? LegendGap : NarrowGap;
    setAccessibleName(fullTitle());
}

void TrialPlot::measure() {
    const auto bySize = [](const TrialPoint& a, const TrialPoint& b) { return a.size < b.size; };
    const auto byValue = [](const TrialPoint& a, const TrialPoint& b) { return a.value < b.value; };
    const QList<TrialPoint>& points = content_.points;
    values_ = {};
    if (points.isEmpty())
        return;
    const auto [narrow, wide] = std::minmax_element(points.begin(), points.end(), bySize);
    const auto [least, most] = std::minmax_element(points.begin(), points.end(), byValue);
    lowSize_ = narrow->size;
    highSize_ = wide->size;
    const double low = std::min(least->value, content_.limit.value_or(least->value));
    const double high = std::max(most->value, content_.limit.value_or(most->value));
    values_ = content_.areShares ? percentSteps(low, high)
                                 : fiveSteps(std::max(0.0, low - BestRoom * (high - low)), high);
}

void TrialPlot::setContent(const TrialPlotContent& content) {
    if (content == content_)
        return;
    content_ = content;
    setPointed(-1);
    measure();
    fitHead();
    QStringList told;
    for (const Mark& mark : marks())
        if (mark.point >= 0 && mark.sign != Sign::Dot)
            told << QStringLiteral("%1: %2").arg(
                mark.words, content_.points[mark.point].words.join(QStringLiteral(", ")));
    setAccessibleDescription(told.join(QStringLiteral("; ")));
    update();
}

void TrialPlot::resizeEvent(QResizeEvent* event) {
    PaintedText::resizeEvent(event);
    fitHead();
}

// Places ---------------------------------------------------------------------------------------------------

QString TrialPlot::valueText(int line) const {
    const double value = values_.low + line * values_.step;
    if (content_.areShares)
        return QString::number(std::round(100 * value)) + QLatin1Char('%');
    if (inFull_)
        return QLocale(QLocale::English).toString(value, 'f', decimalsOf(values_));
    return QString::number(value / unit().size);
}

QStringList TrialPlot::valueTexts() const {
    QStringList texts;
    for (int line = 0; line <= values_.steps; ++line)
        texts << valueText(line);
    return texts;
}

QRectF TrialPlot::field() const {
    const QFont font = textFont(TextStyle::Mark);
    double widest = 0;
    for (const QString& text : valueTexts())
        widest = std::max(widest, numberWidth(font, text));
    const double left = std::max(LeastLeft, Padding + widest + MarkGap);
    return {left, Top, width() - left - Right, height() - Top - Bottom};
}

double TrialPlot::across(double size) const {
    const QRectF area = field().adjusted(Inset, 0, -Inset, 0);
    const double length = highSize_ - lowSize_;
    return length > 0 ? area.left() + area.width() * (size - lowSize_) / length : area.center().x();
}

double TrialPlot::down(double value) const {
    const QRectF area = field();
    return area.bottom() - area.height() * (value - values_.low) / (values_.high() - values_.low);
}

QPointF TrialPlot::placeOf(int point) const {
    const TrialPoint& trial = content_.points[point];
    return {across(trial.size), down(trial.value)};
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

int TrialPlot::pointAt(const QPointF& place) const {
    return field().adjusted(-Inset, -Inset, Inset, Inset).contains(place) ? nearest(place) : -1;
}

// Pointer --------------------------------------------------------------------------------------------------

void TrialPlot::setPointed(int point) {
    if (point == pointed_)
        return;
    pointed_ = point;
    update();
}

void TrialPlot::mouseMoveEvent(QMouseEvent* event) {
    setPointed(pointAt(event->position()));
    if (pointed_ < 0)
        return QToolTip::hideText();
    QToolTip::showText(event->globalPosition().toPoint(),
                       content_.points[pointed_].words.join(QLatin1Char('\n')), this);
}

void TrialPlot::mousePressEvent(QMouseEvent* event) {
    const int point = pointAt(event->position());
    if (event->button() == Qt::LeftButton && point >= 0)
        emit picked(point);
}

void TrialPlot::leaveEvent(QEvent*) { setPointed(-1); }

// Painting -------------------------------------------------------------------------------------------------

/// Where the lines would be too close for their texts there are only the lowest and the highest.
void TrialPlot::paintValues(QPainter& painter) const {
    const QRectF area = field();
    painter.setFont(textFont(TextStyle::Mark));
    painter.setPen(colour(Role::SecondText));
    const bool low = area.height() / values_.steps < LeastStep;
    for (int line = 0; line <= values_.steps; line += low ? values_.steps : 1) {
        const double y = std::round(down(values_.low + line * values_.step));
        painter.fillRect(QRectF(area.left(), y, area.width(), 1), colour(Role::Line));
        drawNumber(painter, QRectF(0, y - 9.5, area.left() - MarkGap, 20), Qt::AlignRight, valueText(line));
    }
}

void TrialPlot::paintLimit(QPainter& painter) const {
    const QRectF area = field();
    const double y = std::round(down(*content_.limit)) + 0.5;
    QPen dashes(colour(Role::SecondText), 1, Qt::CustomDashLine, Qt::FlatCap);
    dashes.setDashPattern({Dash, DashGap});
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(dashes);
    painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
}

void TrialPlot::paintSizes(QPainter& painter) const {
    const QRectF area = field();
    const double step = wholeStep(highSize_ - lowSize_);
    for (double mark = std::ceil(lowSize_ / step) * step; mark <= highSize_; mark += step)
        drawMiddle(painter, {across(mark), area.bottom() + SizesLine}, QString::number(mark));
    const double room = width() - 2 * Padding;
    const QString label = QFontMetricsF(painter.font()).elidedText(content_.sizeLabel, Qt::ElideRight, room);
    const double half = numberWidth(painter.font(), label) / 2;
    const double middle = std::min(area.center().x(), width() - Padding - half);
    drawMiddle(painter, {middle, area.bottom() + LabelLine}, label);
}

void TrialPlot::paintTrials(QPainter& painter) const {
    QPolygonF line;
    for (int i = 0; i < content_.points.size(); ++i)
        if (content_.points[i].onLine)
            line << placeOf(i);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(way(), WayLine, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(line);
    for (int i = 0; i < content_.points.size(); ++i)
        drawDot(painter, placeOf(i), i == pointed_ ? PointedSize : DotSize, colour(Role::Treated));
}

void TrialPlot::paintSign(QPainter& painter, Sign sign, const QPointF& place, const QColor& ground) const {
    if (sign == Sign::Dot)
        return drawDot(painter, place, ShownSize, shownColour());
    if (sign == Sign::Diamond)
        return drawDiamond(painter, place, DiamondSize, ground, colour(Role::Accent), RingLine);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour(Role::Treated), RingLine));
    painter.setBrush(ground);
    painter.drawEllipse(place, RingSize / 2, RingSize / 2);
}

/// A dot would cover the diamond, so the diamond is filled instead.
void TrialPlot::paintMarks(QPainter& painter) const {
    for (const Mark& mark : marks()) {
        const bool isBoth = mark.point == content_.shown && mark.point == content_.proven;
        if (mark.point < 0 || (isBoth && mark.sign == Sign::Dot))
            continue;
        paintSign(painter, mark.sign, placeOf(mark.point), isBoth ? shownColour() : colour(Role::Card));
    }
}

/// The marks with their words from the right end, the title before them.
void TrialPlot::paintHead(QPainter& painter) const {
    double right = width() - LegendRight;
    const QFontMetricsF metrics(textFont(TextStyle::Mark));
    const auto addMark = [&](const QString& words, Sign sign) {
        painter.setFont(textFont(TextStyle::Mark));
        painter.setPen(colour(Role::SecondText));
        right -= metrics.horizontalAdvance(words);
        const QRectF line(0, TitleMiddle - 10, width(), 20);
        painter.drawText(QPointF(right, centredBaseline(painter.font(), line)), words);
        right -= LegendSign;
        paintSign(painter, sign, QPointF(right, TitleMiddle), colour(Role::Card));
        right -= headGap_;
    };
    const QList<Mark> told = marks();
    for (qsizetype i = told.size() - 1; i >= 0; --i)
        if (told[i].point >= 0)
            addMark(told[i].words, told[i].sign);
    const QFont font = textFont(TextStyle::CaptionStrong);
    painter.setFont(font);
    painter.setPen(colour(Role::SecondText));
    const QRectF titleLine(Padding, TitleMiddle - 10, right - Padding, 20);
    painter.drawText(QPointF(Padding, centredBaseline(font, titleLine)),
                     QFontMetricsF(font).elidedText(fullTitle(), Qt::ElideRight, titleLine.width()));
}

void TrialPlot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintCard(painter, QRectF(rect()), CardTone::Plain);
    paintHead(painter);
    if (content_.points.isEmpty())
        return;
    paintValues(painter);
    paintSizes(painter);
    if (content_.limit)
        paintLimit(painter);
    paintTrials(painter);
    paintMarks(painter);
}

}  // namespace lorvane::desktop
