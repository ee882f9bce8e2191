// Places, keys and painting of the curve. All figures are those of 100 %.
#include "desktop/kit/curve_plot.h"

#include <QAccessibleWidget>
#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainterPath>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "desktop/kit/number_text.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/round_scale.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr double Left = 45;  ///< room for the marks of the shares
constexpr double Right = 17;
constexpr double Top = 10;
constexpr double Bottom = 39;  ///< from the lowest line to the edge
constexpr double ShareGap = 8;
constexpr double NumbersMiddle = 12;  ///< below the lowest line
constexpr double TitleMiddle = 28;
constexpr double LimitMiddle = 9;      ///< of its text, below its line
constexpr double HeightForFour = 150;  ///< from which there are lines at the quarters too
constexpr double LineWidth = 2.4;
constexpr double RingSize = 11;
constexpr double RingWidthOfPoint = 1.8;
constexpr double DotSize = 5;
constexpr double PointedSize = 9;
constexpr int MostDots = 16;
constexpr double LabelSpace = 12;  ///< least space between two numbers
constexpr double PointerReach = 12;

QFont strongMark() {
    QFont font = textFont(TextStyle::Mark);
    font.setWeight(QFont::Bold);
    return font;
}

/// Shows the plot to screen readers as a slider over its numbers.
class PlotInterface : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit PlotInterface(CurvePlot* plot) : QAccessibleWidget(plot, QAccessible::Slider) {}

    QString text(QAccessible::Text kind) const override {
        const bool isValue = kind == QAccessible::Value && !plot().content().marks.isEmpty();
        return isValue ? plot().content().marks[plot().current()].words : QAccessibleWidget::text(kind);
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QVariant currentValue() const override {
        return plot().content().marks.isEmpty() ? 0.0 : plot().content().marks[plot().current()].number;
    }
    void setCurrentValue(const QVariant& value) override {
        const QList<CurveMark>& marks = plot().content().marks;
        const auto found = std::find_if(marks.begin(), marks.end(), [&](const CurveMark& mark) {
            return mark.number >= value.toDouble();
        });
        plot().goTo(static_cast<int>(found - marks.begin()));
        plot().choose();
    }
    QVariant maximumValue() const override { return plot().content().last; }
    QVariant minimumValue() const override { return plot().content().first; }
    QVariant minimumStepSize() const override { return 1; }

private:
    CurvePlot& plot() const { return *static_cast<CurvePlot*>(widget()); }
};

QAccessibleInterface* createInterface(const QString&, QObject* object) {
    auto* plot = qobject_cast<CurvePlot*>(object);
    return plot ? new PlotInterface(plot) : nullptr;
}

}  // namespace

CurvePlot::CurvePlot(QWidget* parent) : QWidget(parent) {
    QAccessible::installFactory(createInterface);
    setMouseTracking(true);
}

void CurvePlot::setContent(const CurveContent& content) {
    if (content == content_)
        return;
    content_ = content;
    pointed_ = -1;
    setFocusPolicy(content.marks.isEmpty() ? Qt::NoFocus : Qt::StrongFocus);
    update();
}

QSize CurvePlot::sizeHint() const { return {zoomed(*this, 400), zoomed(*this, 170)}; }

// Places ----------------------------------------------------------------------------------------------------

QRectF CurvePlot::field() const { return figureRect(*this).adjusted(Left, Top, -Right, -Bottom); }

double CurvePlot::across(double number) const {
    const double length = content_.last - content_.first;
    return field().left() + (length > 0 ? field().width() * (number - content_.first) / length : 0);
}

double CurvePlot::down(double share) const { return field().bottom() - field().height() * share; }

QPointF CurvePlot::placeOf(int mark) const {
    return {across(content_.marks[mark].number), down(content_.marks[mark].share)};
}

// A number is chosen by its place on the axis: the whole height above it counts.
int CurvePlot::markAt(const QPointF& place) const {
    const QRectF area = field().adjusted(-PointerReach, -Top, PointerReach, NumbersMiddle + PointerReach);
    if (content_.marks.isEmpty() || !area.contains(place))
        return -1;
    const auto distance = [&](const CurveMark& mark) { return std::fabs(across(mark.number) - place.x()); };
    const auto nearest =
        std::min_element(content_.marks.begin(), content_.marks.end(),
                         [&](const CurveMark& a, const CurveMark& b) { return distance(a) < distance(b); });
    return static_cast<int>(nearest - content_.marks.begin());
}

// Pointer and keys ------------------------------------------------------------------------------------------

void CurvePlot::setPointed(int mark) {
    if (mark == pointed_)
        return;
    pointed_ = mark;
    setCursor(mark < 0 ? Qt::ArrowCursor : Qt::PointingHandCursor);
    update();
}

void CurvePlot::tell(const QPoint& place) const {
    if (pointed_ < 0)
        QToolTip::hideText();
    else
        QToolTip::showText(place, content_.marks[pointed_].words, const_cast<CurvePlot*>(this));
}

void CurvePlot::mouseMoveEvent(QMouseEvent* event) {
    setPointed(markAt(figurePoint(*this, event->position())));
    tell(event->globalPosition().toPoint());
}

void CurvePlot::mouseReleaseEvent(QMouseEvent* event) {
    setPointed(markAt(figurePoint(*this, event->position())));
    if (event->button() == Qt::LeftButton && pointed_ >= 0)
        choose();
}

void CurvePlot::leaveEvent(QEvent*) { setPointed(-1); }

void CurvePlot::goTo(int mark) {
    if (content_.marks.isEmpty())
        return;
    setPointed(std::clamp(mark, 0, static_cast<int>(content_.marks.size()) - 1));
    const QPointF place = placeOf(pointed_) * zoomOf(*this);
    tell(mapToGlobal(place.toPoint()));
    QAccessibleValueChangeEvent changed(this, content_.marks[pointed_].number);
    QAccessible::updateAccessibility(&changed);
}

void CurvePlot::choose() {
    const int mark = current();
    setPointed(-1);
    if (mark != content_.present && mark < content_.marks.size())
        emit chosen(mark);
}

void CurvePlot::keyPressEvent(QKeyEvent* event) {
    const int last = static_cast<int>(content_.marks.size()) - 1;
    switch (event->key()) {
    case Qt::Key_Left:
        return goTo(current() - 1);
    case Qt::Key_Right:
        return goTo(current() + 1);
    case Qt::Key_Home:
        return goTo(0);
    case Qt::Key_End:
        return goTo(last);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        QToolTip::hideText();
        return choose();
    case Qt::Key_Escape:
        if (pointed_ >= 0) {
            setPointed(-1);
            return QToolTip::hideText();
        }
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}

void CurvePlot::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    emit focused();
}

void CurvePlot::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    setPointed(-1);
}

// Painting --------------------------------------------------------------------------------------------------

void CurvePlot::paintShares(QPainter& painter) const {
    const QRectF area = field();
    const int steps = area.height() >= HeightForFour ? 4 : 2;
    painter.setFont(textFont(TextStyle::Mark));
    painter.setPen(colour(Role::SecondText));
    for (int step = 0; step <= steps; ++step) {
        const double y = std::round(down(1.0 * step / steps));
        painter.fillRect(QRectF(area.left(), y, area.width(), 1), colour(Role::Line));
        drawNumber(painter, QRectF(0, y - 9.5, area.left() - ShareGap, 20), Qt::AlignRight,
                   QString::number(100 * step / steps) + QLatin1Char('%'));
    }
}

// The present number stands out, and the round ones make way for it.
void CurvePlot::paintNumbers(QPainter& painter) const {
    const QRectF area = field();
    const auto lineOf = [&](double x) { return QRectF(x, area.bottom() + NumbersMiddle - 10, 0, 20); };
    const double present = content_.marks[content_.present].number;
    const QString strong = QString::number(present, 'f', 0);
    const double strongWidth = numberWidth(strongMark(), strong);
    const QFont font = textFont(TextStyle::Mark);
    painter.setFont(font);
    painter.setPen(colour(Role::SecondText));
    const double step = wholeStep(content_.last - content_.first);
    for (double mark = std::ceil(content_.first / step) * step; mark <= content_.last; mark += step) {
        const QString text = QString::number(mark, 'f', 0);
        const double apart = std::fabs(across(mark) - across(present));
        if (apart >= (numberWidth(font, text) + strongWidth) / 2 + LabelSpace)
            drawNumber(painter, lineOf(across(mark)), Qt::AlignHCenter, text);
    }
    const QRectF titleLine(area.left(), area.bottom() + TitleMiddle - 10, area.width(), 20);
    painter.drawText(titleLine, Qt::AlignCenter,
                     QFontMetricsF(font).elidedText(content_.title, Qt::ElideMiddle, area.width()));
    painter.setFont(strongMark());
    painter.setPen(colour(Role::Accent));
    drawNumber(painter, lineOf(across(present)), Qt::AlignHCenter, strong);
}

void CurvePlot::paintLimit(QPainter& painter) const {
    const QRectF area = field();
    const double y = std::round(down(content_.limit)) + 0.5;
    QPen dashes(colour(Role::SecondText), devicePixelRatioF());
    dashes.setCosmetic(true);
    dashes.setDashPattern({3, 3});
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(dashes);
    painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
}

// On a plate, since the curve may run through the words.
void CurvePlot::paintLimitWords(QPainter& painter) const {
    const QRectF area = field();
    const double middle = std::round(down(content_.limit)) + 0.5 + LimitMiddle;
    const QFont font = textFont(TextStyle::Mark);
    const double width = numberWidth(font, content_.limitText);
    fillPlate(painter, QRectF(area.right() - width - 4, middle - 8, width + 4, 16), 3, colour(Role::Card));
    painter.setFont(font);
    painter.setPen(colour(Role::SecondText));
    drawNumber(painter, QRectF(area.left(), middle - 10, area.width(), 20), Qt::AlignRight,
               content_.limitText);
}

void CurvePlot::paintCurve(QPainter& painter) const {
    const QColor line = colour(Role::GraphLine1);
    const QPointF present = placeOf(content_.present);
    QColor faint = line;
    faint.setAlphaF(0.45F);
    painter.fillRect(QRectF(std::round(present.x()), present.y(), 1, field().bottom() - present.y()), faint);
    QPainterPath path(placeOf(0));
    for (int i = 1; i < content_.marks.size(); ++i)
        path.lineTo(placeOf(i));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(path, QPen(line, LineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (int i = 0; content_.marks.size() <= MostDots && i < content_.marks.size(); ++i)
        drawDot(painter, placeOf(i), DotSize, line);
    painter.setPen(QPen(line, RingWidthOfPoint));
    painter.setBrush(colour(Role::Card));
    const double radius = (RingSize - RingWidthOfPoint) / 2;
    painter.drawEllipse(present, radius, radius);
    if (pointed_ >= 0)
        drawDot(painter, placeOf(pointed_), PointedSize, line);
}

void CurvePlot::paintEvent(QPaintEvent*) {
    ZoomedPainter painter(*this);
    if (hasFocus())
        strokePlate(painter, figureRect(*this), FieldRadius, colour(Role::Accent), RingWidth);
    if (content_.marks.isEmpty())
        return;
    paintShares(painter);
    paintNumbers(painter);
    paintLimit(painter);
    paintCurve(painter);
    paintLimitWords(painter);
}

}  // namespace lorvane::desktop
