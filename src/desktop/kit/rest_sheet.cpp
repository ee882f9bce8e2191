// Painting of the sheet. All lengths are those of 100 %.
#include "desktop/kit/rest_sheet.h"

#include <QFontMetricsF>

#include "desktop/kit/icons.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr double SignSize = 28;
constexpr double SignSpace = 14;
constexpr double LineHeight = 27;
constexpr double Padding = 14;
constexpr double PreferredWidth = 364;
constexpr double PreferredHeight = 240;
constexpr double LeastHeight = 130;

}  // namespace

void RestSheet::setText(const QString& text) {
    if (text == text_)
        return;
    text_ = text;
    setAccessibleName(text);
    update();
}

void RestSheet::setSquare(bool square) {
    if (square == square_)
        return;
    square_ = square;
    update();
}

QSize RestSheet::sizeHint() const { return {zoomed(*this, PreferredWidth), zoomed(*this, PreferredHeight)}; }

QSize RestSheet::minimumSizeHint() const { return {0, zoomed(*this, LeastHeight)}; }

void RestSheet::paintEvent(QPaintEvent*) {
    ZoomedPainter painter(*this);
    const QRectF bounds = figureRect(*this);
    fillPlate(painter, bounds, square_ ? 0 : CardRadius, colour(Role::DetailsRest));
    const QStringList lines = text_.split(QLatin1Char('\n'));
    const double height = SignSize + SignSpace + static_cast<double>(lines.size()) * LineHeight;
    double top = bounds.center().y() - height / 2;
    QColor sign = colour(Role::DetailsRestText);
    sign.setAlphaF(0.7F);
    drawIcon(painter, Icon::Details, QRectF(bounds.center().x() - SignSize / 2, top, SignSize, SignSize),
             sign);
    top += SignSize + SignSpace;
    painter.setFont(textFont(TextStyle::PanelHeading));
    painter.setPen(colour(Role::DetailsRestText));
    for (const QString& line : lines) {
        painter.drawText(QRectF(Padding, top, bounds.width() - 2 * Padding, LineHeight), Qt::AlignCenter,
                         line);
        top += LineHeight;
    }
}

}  // namespace lorvane::desktop
