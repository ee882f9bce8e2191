// Places and painting of the rows. All figures are those of 100 %.
#include "desktop/kit/share_rows.h"

#include <QFontMetricsF>
#include <QHelpEvent>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "desktop/kit/number_text.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr double Margin = 8;
constexpr double HeightForTwoLines = 70;
constexpr double HighestRow = 92;
constexpr double BarHeight = 7;
constexpr double LineApart = 20;  ///< from the middle of the bar to those of the lines above and below
constexpr double WidestName = 150;
constexpr double NarrowestName = 76;
constexpr double Gap = 22;  ///< on both sides of the bar of a row in one line
constexpr double AmountGap = 16;

QFont nameFont() {
    QFont font = textFont(TextStyle::PanelHeading);
    font.setWeight(QFont::Medium);
    return font;
}
QFont amountFont() { return textFont(TextStyle::PanelHeading); }

QRectF lineAt(const QRectF& bounds, double middle) {
    return {bounds.left(), middle - 10, bounds.width(), 20};
}

void drawName(QPainter& painter, const QRectF& line, const QString& name) {
    painter.setFont(nameFont());
    painter.setPen(colour(Role::Text));
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetricsF(painter.font()).elidedText(name, Qt::ElideRight, line.width()));
}

void drawAmount(QPainter& painter, const QRectF& line, const QString& amount) {
    painter.setFont(amountFont());
    painter.setPen(colour(Role::Text));
    drawNumber(painter, line, Qt::AlignRight, amount);
}

void drawShare(QPainter& painter, const QRectF& track, double share) {
    drawBar(painter, track, BarHeight / 2, share, colour(Role::Field), colour(Role::BarFill));
}

template <typename Text>
double widest(const QList<ShareRow>& rows, const QFont& font, Text text) {
    double width = 0;
    for (const ShareRow& row : rows)
        width = std::max(width, numberWidth(font, row.*text));
    return width;
}

double nameWidth(const QList<ShareRow>& rows) {
    return std::clamp(widest(rows, nameFont(), &ShareRow::name), NarrowestName, WidestName);
}

}  // namespace

ShareRows::ShareRows(QWidget* parent) : PaintedText(parent) {}

void ShareRows::setRows(const QList<ShareRow>& rows) {
    if (rows == rows_)
        return;
    rows_ = rows;
    QStringList said;
    for (const ShareRow& row : rows)
        said.append(QStringLiteral("%1: %2, %3, %4").arg(row.name, row.details, row.amount, row.percent));
    setAccessibleName(said.join(QLatin1String("; ")));
    update();
}

double ShareRows::rowHeight() const {
    const double share = figureRect(*this).height() / std::max(1.0, static_cast<double>(rows_.size()));
    return std::min(HighestRow, share);
}

QRectF ShareRows::boundsOf(int row) const {
    const QRectF area = figureRect(*this).adjusted(Margin, 0, -Margin, 0);
    const double spare = area.height() - rowHeight() * static_cast<double>(rows_.size());
    return {area.left(), area.top() + spare / 2 + rowHeight() * row, area.width(), rowHeight()};
}

// A name that may be cut tells itself in full.
bool ShareRows::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return PaintedText::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    for (int i = 0; i < rows_.size(); ++i) {
        const bool isCut = QFontMetricsF(nameFont()).horizontalAdvance(rows_[i].name) > nameWidth(rows_);
        if (isCut && boundsOf(i).contains(figurePoint(*this, help->pos())))
            QToolTip::showText(help->globalPos(), rows_[i].name, this);
    }
    return true;
}

void ShareRows::paintLine(QPainter& painter, const ShareRow& row, const QRectF& bounds) const {
    const double middle = bounds.center().y();
    const QRectF line = lineAt(bounds, middle);
    const double names = nameWidth(rows_);
    const double numberRight =
        names + AmountGap + widest(rows_, textFont(TextStyle::Body), &ShareRow::number);
    const double amounts = widest(rows_, amountFont(), &ShareRow::amount);
    drawName(painter, QRectF(line.left(), line.top(), names, line.height()), row.name);
    painter.setFont(textFont(TextStyle::Body));
    painter.setPen(colour(Role::SecondText));
    drawNumber(painter, QRectF(line.left(), line.top(), numberRight, line.height()), Qt::AlignRight,
               row.number);
    drawAmount(painter, line, row.amount);
    const double barLeft = numberRight + Gap;
    const double barRight = line.width() - amounts - AmountGap;
    if (barRight > barLeft)
        drawShare(painter, QRectF(barLeft, middle - BarHeight / 2, barRight - barLeft, BarHeight), row.share);
}

void ShareRows::paintTwoLines(QPainter& painter, const ShareRow& row, const QRectF& bounds) const {
    const double middle = bounds.center().y();
    const QRectF above = lineAt(bounds, middle - LineApart);
    const QRectF below = lineAt(bounds, middle + LineApart);
    const double amount = numberWidth(amountFont(), row.amount) + AmountGap;
    drawName(painter, above.adjusted(0, 0, -amount, 0), row.name);
    drawAmount(painter, above, row.amount);
    drawShare(painter, QRectF(bounds.left(), middle - BarHeight / 2, bounds.width(), BarHeight), row.share);
    const QFont font = textFont(TextStyle::Caption);
    const double room = below.width() - numberWidth(font, row.percent) - AmountGap;
    painter.setFont(font);
    painter.setPen(colour(Role::SecondText));
    drawNumber(painter, below, Qt::AlignLeft,
               QFontMetricsF(font).elidedText(row.details, Qt::ElideRight, room));
    drawNumber(painter, below, Qt::AlignRight, row.percent);
}

void ShareRows::paintEvent(QPaintEvent*) {
    ZoomedPainter painter(*this);
    const bool isHigh = rowHeight() >= HeightForTwoLines;
    for (int i = 0; i < rows_.size(); ++i) {
        const QRectF bounds = boundsOf(i);
        if (i > 0)
            painter.fillRect(QRectF(bounds.left(), std::round(bounds.top()), bounds.width(), 1),
                             colour(Role::Line));
        if (isHigh)
            paintTwoLines(painter, rows_[i], bounds);
        else
            paintLine(painter, rows_[i], bounds);
    }
}

}  // namespace lorvane::desktop
