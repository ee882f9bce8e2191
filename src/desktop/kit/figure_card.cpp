// Painting of a result about the middle of its card. Distances are from that middle to base lines and edges.
#include "desktop/kit/figure_card.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include "desktop/kit/card.h"
#include "desktop/kit/icons.h"
#include "desktop/kit/number_text.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

constexpr double Margin = 22;

constexpr double FigureLine = 4.5;
constexpr double NoteLine = 33.5;
constexpr double CheckSize = 16;
constexpr double NoteAfterCheck = 22;

constexpr double MessageLine = 0;
constexpr double TroubleNoteLine = 28;

constexpr double BarTop = -4;
constexpr double BarHeight = 16;
constexpr double BarRadius = 4;
constexpr double HeadLine = -18;
constexpr double MarkLine = 30;
constexpr double TickOverhang = 5;
constexpr double TickWidth = 2;
constexpr double TickGap = 1;    ///< bare card on both sides of a tick
constexpr double TextSpace = 8;  ///< least space between two texts below the bar

QString spoken(const Figure& figure) { return figure.words + figure.number; }
QString spoken(const FigureBar& bar) { return bar.name + QLatin1Char(' ') + bar.value; }
QString spoken(const FigureTrouble& trouble) { return trouble.message; }

QString spokenNote(const Figure& figure) { return figure.note; }
QString spokenNote(const FigureBar& bar) { return bar.tick ? bar.tick->text : bar.highText; }
QString spokenNote(const FigureTrouble& trouble) { return trouble.note; }

void setPen(QPainter& painter, TextStyle style, Role role) {
    painter.setFont(textFont(style));
    painter.setPen(colour(role));
}

void drawElided(QPainter& painter, const QPointF& baseline, const QString& text, double width) {
    painter.drawText(baseline, QFontMetricsF(painter.font()).elidedText(text, Qt::ElideRight, width));
}

void drawCentred(QPainter& painter, const QRectF& area, double baseline, const QString& text) {
    const QFontMetricsF metrics(painter.font());
    const double width = std::min(metrics.horizontalAdvance(text), area.width());
    drawElided(painter, QPointF(area.center().x() - width / 2, baseline), text, area.width());
}

/// The two fonts of a figure, both smaller by the same share when the line would not fit.
struct FigureFonts {
    QFont words = textFont(TextStyle::FigureWords);
    QFont number = textFont(TextStyle::Figure);
};

FigureFonts fittedFonts(const Figure& figure, double width) {
    FigureFonts fonts;
    const double wanted =
        QFontMetricsF(fonts.words).horizontalAdvance(figure.words) + numberWidth(fonts.number, figure.number);
    if (wanted <= width || width <= 0)
        return fonts;
    const double size = fonts.words.pointSizeF() * width / wanted;
    fonts.words.setPointSizeF(size);
    fonts.number.setPointSizeF(size);
    return fonts;
}

void paintTrack(QPainter& painter, const QRectF& track, double share) {
    QPainterPath shape;
    shape.addRoundedRect(track, BarRadius, BarRadius);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(shape, colour(Role::Field));
    QPainterPath filled;
    filled.addRect(
        QRectF(track.topLeft(), QSizeF(track.width() * std::clamp(share, 0.0, 1.0), track.height())));
    painter.fillPath(shape.intersected(filled), colour(Role::BarFill));
}

void paintTick(QPainter& painter, const QRectF& track, double x) {
    const double half = TickWidth / 2;
    painter.fillRect(QRectF(x - half - TickGap, track.top(), TickWidth + 2 * TickGap, track.height()),
                     colour(Role::Card));
    painter.fillRect(QRectF(x - half, track.top(), TickWidth, track.height() + TickOverhang),
                     colour(Role::Text));
}

}  // namespace

FigureCard::FigureCard(QWidget* parent) : PaintedText(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void FigureCard::setContent(const FigureContent& content) {
    if (content == content_)
        return;
    content_ = content;
    std::visit(
        [this](const auto& shown) {
            setAccessibleName(spoken(shown));
            setAccessibleDescription(spokenNote(shown));
        },
        content_);
    update();
}

QSize FigureCard::sizeHint() const { return {400, 140}; }

QSize FigureCard::minimumSizeHint() const { return {240, 88}; }

QRectF FigureCard::inner() const { return QRectF(rect()).adjusted(Margin, 0, -Margin, 0); }

void FigureCard::paint(QPainter& painter, const Figure& figure) const {
    const QRectF area = inner();
    const double middle = area.center().y();
    const FigureFonts fonts = fittedFonts(figure, area.width());
    painter.setFont(fonts.words);
    painter.setPen(colour(Role::SecondText));
    painter.drawText(QPointF(area.left(), middle + FigureLine), figure.words);
    const double after = QFontMetricsF(fonts.words).horizontalAdvance(figure.words);
    painter.setFont(fonts.number);
    painter.setPen(colour(Role::Text));
    drawNumber(painter, QPointF(area.left() + after, middle + FigureLine), figure.number);

    const double noteLeft = area.left() + (figure.checked ? NoteAfterCheck : 0);
    setPen(painter, TextStyle::Body, Role::SecondText);
    drawElided(painter, QPointF(noteLeft, middle + NoteLine), figure.note, area.right() - noteLeft);
    const QRectF check(area.left(), middle + NoteLine - CheckSize + 3, CheckSize, CheckSize);
    if (figure.checked)
        drawIcon(painter, Icon::Check, check, colour(Role::Accent));
}

void FigureCard::paint(QPainter& painter, const FigureBar& bar) const {
    const QRectF area = inner();
    const double middle = std::round(area.center().y());
    const QRectF track(area.left(), middle + BarTop, area.width(), BarHeight);
    setPen(painter, TextStyle::LevelName, Role::Text);
    painter.drawText(QPointF(area.left(), middle + HeadLine), bar.name);
    drawNumber(painter, QPointF(area.right() - numberWidth(painter.font(), bar.value), middle + HeadLine),
               bar.value);
    paintTrack(painter, track, bar.share);
    if (bar.tick)
        paintTick(painter, track, std::round(track.left() + track.width() * bar.tick->share));
    paintBarTexts(painter, bar, track);
}

void FigureCard::paintBarTexts(QPainter& painter, const FigureBar& bar, const QRectF& track) const {
    setPen(painter, TextStyle::Caption, Role::SecondText);
    const double baseline = track.top() - BarTop + MarkLine;
    const auto widthOf = [&](const QString& text) { return numberWidth(painter.font(), text); };
    const double highLeft = track.right() - widthOf(bar.highText);
    drawNumber(painter, QPointF(track.left(), baseline), bar.lowText);
    drawNumber(painter, QPointF(highLeft, baseline), bar.highText);
    if (!bar.tick)
        return;
    // Near an end the text of the tick makes room for the text of the end.
    const double width = widthOf(bar.tick->text);
    const double first = track.left() + widthOf(bar.lowText) + TextSpace;
    const double last = std::max(first, highLeft - TextSpace - width);
    const double wanted = track.left() + track.width() * bar.tick->share - width / 2;
    drawNumber(painter, QPointF(std::clamp(wanted, first, last), baseline), bar.tick->text);
}

void FigureCard::paint(QPainter& painter, const FigureTrouble& trouble) const {
    const QRectF area = inner();
    const double middle = area.center().y();
    setPen(painter, TextStyle::Message, Role::ProblemText);
    drawCentred(painter, area, middle + MessageLine, trouble.message);
    setPen(painter, TextStyle::Body, Role::SecondText);
    drawCentred(painter, area, middle + TroubleNoteLine, trouble.note);
}

void FigureCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const bool trouble = std::holds_alternative<FigureTrouble>(content_);
    paintCard(painter, QRectF(rect()), trouble ? CardTone::Problem : CardTone::Plain);
    std::visit([&](const auto& shown) { paint(painter, shown); }, content_);
}

}  // namespace lorvane::desktop
