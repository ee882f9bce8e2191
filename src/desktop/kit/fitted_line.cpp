// Painting of a line that gives way. All lengths are those of 100 %.
#include "desktop/kit/fitted_line.h"

#include <algorithm>

#include <QFontMetricsF>

#include "desktop/kit/number_text.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

QFont shrunk(QFont font, double share) {
    font.setPointSizeF(font.pointSizeF() * share);
    return font;
}

}  // namespace

FittedLine::FittedLine(const LineLook& look, QWidget* parent) : PaintedText(parent), look_(look) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void FittedLine::setText(const QString& words, const QString& number) {
    if (words == words_ && number == number_)
        return;
    words_ = words;
    number_ = number;
    setAccessibleName(words + number);
    updateGeometry();
    update();
}

void FittedLine::setCompanions(const QStringList& texts) {
    if (texts == companions_)
        return;
    companions_ = texts;
    update();
}

double FittedLine::wholeWidth() const {
    return numberWidth(textFont(look_.words), words_) + numberWidth(textFont(look_.number), number_);
}

/// How much smaller than told the line is, so that it fits into a width.
double FittedLine::shareOf(double width) const {
    double widest = wholeWidth();
    for (const QString& text : companions_)
        widest = std::max(widest, numberWidth(textFont(look_.number), text));
    return widest > 0 ? std::min(1.0, (width - 1) / widest) : 1;
}

QSize FittedLine::sizeHint() const {
    const double height = QFontMetricsF(textFont(look_.number)).height();
    return {zoomed(*this, wholeWidth() + 1), zoomed(*this, height)};
}

QSize FittedLine::minimumSizeHint() const { return {0, sizeHint().height()}; }

void FittedLine::paintEvent(QPaintEvent*) {
    const QRectF area = figureRect(*this);
    const double share = shareOf(area.width());
    const QFont wordsFont = shrunk(textFont(look_.words), share);
    const QFont numberFont = shrunk(textFont(look_.number), share);
    const double wordsWidth = numberWidth(wordsFont, words_);
    const double spare = area.width() - wordsWidth - numberWidth(numberFont, number_);
    const double left = look_.alignment & Qt::AlignRight ? spare : 0;
    const double baseline = centredBaseline(numberFont, area);
    ZoomedPainter painter(*this);
    painter.setFont(wordsFont);
    painter.setPen(colour(look_.wordsRole));
    drawNumber(painter, QPointF(left, baseline), words_);
    painter.setFont(numberFont);
    painter.setPen(colour(look_.numberRole));
    drawNumber(painter, QPointF(left + wordsWidth, baseline), number_);
}

}  // namespace lorvane::desktop
