// Painting of a result about the middle of its card, or near the top of a tall one. Distances are from that
// middle to base lines and edges, in the figures of 100 %.
#include "desktop/kit/figure_card.h"

#include <algorithm>
#include <cmath>

#include <QEvent>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

#include "desktop/kit/card.h"
#include "desktop/kit/icons.h"
#include "desktop/kit/number_text.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr double Margin = 22;

constexpr double FigureLine = 4.5;
constexpr double NoteLine = 33.5;
constexpr double SmallFigureLine = 3;
constexpr double SmallNoteLine = 25;
constexpr double CheckSize = 16;
constexpr double NoteAfterCheck = 22;

constexpr double UsualFigure = 40;
constexpr double LargeFigure = 44;  ///< where the card is zoomed
constexpr double SmallFigure = 30;
constexpr double HeightForUsual = 88;  ///< below, the figure is small

constexpr double TallHeight = 260;
constexpr double TallWidth = 420;
constexpr double TallMiddle = 53;  ///< of the figure in a tall card, from its top
constexpr double BelowTop = 49;    ///< from there to the widget below
constexpr double BelowBottom = 12;
constexpr double BelowMargin = Margin - FigureCard::RingRoom;

constexpr double MessageSize = 26;
constexpr double CompactMessageSize = 22;
constexpr double HeightForMessage = 120;  ///< below, the message is compact
constexpr double ReasonWidth = 450;
constexpr int ReasonLines = 2;
constexpr double ReasonHeight = 17;  ///< of a line
constexpr double NoteSize = 12.5;
constexpr double NoteHeight = 17;
constexpr double MessageGap = 8;
constexpr double NoteGap = 7;
constexpr double LeastMargin = 6;  ///< above and below the texts of a problem

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
QString spokenNote(const FigureTrouble& trouble) {
    return trouble.note.isEmpty() ? trouble.reason : trouble.reason + QLatin1Char(' ') + trouble.note;
}

QString tipOf(const FigureContent& content) {
    const auto* trouble = std::get_if<FigureTrouble>(&content);
    if (trouble == nullptr || trouble->note.isEmpty())
        return trouble == nullptr ? QString() : trouble->tip;
    return trouble->tip + QStringLiteral("\n\n") + trouble->note;
}

QFont sized(TextStyle style, double pixels) {
    QFont font = textFont(style);
    font.setPointSizeF(pixels * 0.75);
    return font;
}

void setPen(QPainter& painter, TextStyle style, Role role) {
    painter.setFont(textFont(style));
    painter.setPen(colour(role));
}

void drawElided(QPainter& painter, const QPointF& baseline, const QString& text, double width) {
    painter.drawText(baseline, QFontMetricsF(painter.font()).elidedText(text, Qt::ElideRight, width));
}

/// The text in lines of a width; what does not fit into the last one is cut.
QStringList linesOf(const QString& text, const QFont& font, double width) {
    QTextLayout layout(text, font);
    layout.beginLayout();
    QStringList lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const bool isLast = lines.size() == ReasonLines - 1;
        const QString rest = text.mid(line.textStart(), isLast ? -1 : line.textLength());
        lines.append(QFontMetricsF(font).elidedText(rest.trimmed(), Qt::ElideRight, width));
        if (isLast)
            break;
    }
    layout.endLayout();
    return lines;
}

/// One line in the middle of an area that begins at a height; gives the height below it.
double drawLine(QPainter& painter, const QRectF& area, double top, double height, const QString& text) {
    const QRectF line(area.left(), top, area.width(), height);
    painter.drawText(line, Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextDontClip,
                     QFontMetricsF(painter.font()).elidedText(text, Qt::ElideRight, area.width()));
    return line.bottom();
}

/// The two fonts of a figure, both smaller by the same share when the line would not fit.
struct FigureFonts {
    QFont words;
    QFont number;
};

FigureFonts fittedFonts(const Figure& figure, double pixels, double width) {
    FigureFonts fonts{sized(TextStyle::FigureWords, pixels), sized(TextStyle::Figure, pixels)};
    const double wanted =
        QFontMetricsF(fonts.words).horizontalAdvance(figure.words) + numberWidth(fonts.number, figure.number);
    if (wanted <= width || width <= 0)
        return fonts;
    const double size = fonts.words.pointSizeF() * width / wanted;
    fonts.words.setPointSizeF(size);
    fonts.number.setPointSizeF(size);
    return fonts;
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
    setToolTip(tipOf(content_));
    placeBelow();
    update();
}

void FigureCard::setBelow(QWidget* below) {
    below_ = below;
    below->setParent(this);
    below->hide();
    placeBelow();
}

bool FigureCard::isTall() const {
    const QSizeF size = figureRect(*this).size();
    return size.height() >= TallHeight && size.width() >= TallWidth &&
           !std::holds_alternative<FigureTrouble>(content_);
}

void FigureCard::placeBelow() {
    if (below_ == nullptr)
        return;
    const QRectF area =
        figureRect(*this).adjusted(BelowMargin, middle() + BelowTop, -BelowMargin, -BelowBottom);
    const double zoom = zoomOf(*this);
    if (isTall())
        below_->setGeometry(QRectF(area.topLeft() * zoom, area.size() * zoom).toRect());
    if (below_->isHidden() != isTall())
        return;
    below_->setVisible(isTall());
    if (isTall())
        emit belowShown();
}

QSize FigureCard::sizeHint() const { return {zoomed(*this, 400), zoomed(*this, 140)}; }

QSize FigureCard::minimumSizeHint() const { return {zoomed(*this, 240), zoomed(*this, 80)}; }

QRectF FigureCard::inner() const { return figureRect(*this).adjusted(Margin, 0, -Margin, 0); }

double FigureCard::figureSize() const {
    if (zoomOf(*this) > 1)
        return LargeFigure;
    return height() < HeightForUsual ? SmallFigure : UsualFigure;
}

// A large figure reaches higher.
double FigureCard::middle() const {
    return isTall() ? TallMiddle + std::max(0.0, figureSize() - UsualFigure) : inner().center().y();
}

bool FigureCard::event(QEvent* event) {
    if (event->type() == QEvent::StyleChange)
        placeBelow();
    return PaintedText::event(event);
}

void FigureCard::resizeEvent(QResizeEvent* event) {
    PaintedText::resizeEvent(event);
    placeBelow();
}

void FigureCard::paint(QPainter& painter, const Figure& figure) const {
    const QRectF area = inner();
    const bool isSmall = figureSize() == SmallFigure;
    const double figureLine = middle() + (isSmall ? SmallFigureLine : FigureLine);
    const double noteLine = middle() + (isSmall ? SmallNoteLine : NoteLine);
    const FigureFonts fonts = fittedFonts(figure, figureSize(), area.width());
    painter.setFont(fonts.words);
    painter.setPen(colour(Role::SecondText));
    painter.drawText(QPointF(area.left(), figureLine), figure.words);
    const double after = QFontMetricsF(fonts.words).horizontalAdvance(figure.words);
    painter.setFont(fonts.number);
    painter.setPen(colour(Role::Text));
    drawNumber(painter, QPointF(area.left() + after, figureLine), figure.number);

    const double noteLeft = area.left() + (figure.checked ? NoteAfterCheck : 0);
    setPen(painter, TextStyle::Body, Role::SecondText);
    drawElided(painter, QPointF(noteLeft, noteLine), figure.note, area.right() - noteLeft);
    const QRectF check(area.left(), noteLine - CheckSize + 3, CheckSize, CheckSize);
    if (figure.checked)
        drawIcon(painter, Icon::Check, check, colour(Role::Accent));
}

void FigureCard::paint(QPainter& painter, const FigureBar& bar) const {
    const QRectF area = inner();
    const double middle = std::round(this->middle());
    const QRectF track(area.left(), middle + BarTop, area.width(), BarHeight);
    setPen(painter, TextStyle::LevelName, Role::Text);
    painter.drawText(QPointF(area.left(), middle + HeadLine), bar.name);
    drawNumber(painter, QPointF(area.right() - numberWidth(painter.font(), bar.value), middle + HeadLine),
               bar.value);
    drawBar(painter, track, BarRadius, bar.share, colour(Role::Field), colour(Role::BarFill));
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
    const QFont reasonFont = textFont(TextStyle::Value);
    const QStringList lines = linesOf(trouble.reason, reasonFont, std::min(ReasonWidth, area.width()));
    const double messageSize = area.height() < HeightForMessage ? CompactMessageSize : MessageSize;
    const double messageHeight = messageSize * 1.2;
    double height =
        messageHeight + (lines.isEmpty() ? 0 : MessageGap) + ReasonHeight * static_cast<double>(lines.size());
    const double noted = height + NoteGap + NoteHeight;
    const bool showsNote = !trouble.note.isEmpty() && noted <= area.height() - 2 * LeastMargin;
    if (showsNote)
        height = noted;

    painter.setFont(sized(TextStyle::Message, messageSize));
    painter.setPen(colour(Role::ProblemText));
    double top = area.center().y() - height / 2;
    top = drawLine(painter, area, top, messageHeight, trouble.message) + MessageGap;
    painter.setFont(reasonFont);
    painter.setPen(colour(Role::Text));
    for (const QString& line : lines)
        top = drawLine(painter, area, top, ReasonHeight, line);
    painter.setFont(sized(TextStyle::Body, NoteSize));
    painter.setPen(colour(Role::SecondText));
    if (showsNote)
        drawLine(painter, area, top + NoteGap, NoteHeight, trouble.note);
}

void FigureCard::paintEvent(QPaintEvent*) {
    ZoomedPainter painter(*this);
    const bool trouble = std::holds_alternative<FigureTrouble>(content_);
    paintCard(painter, figureRect(*this), trouble ? CardTone::Problem : CardTone::Plain);
    std::visit([&](const auto& shown) { paint(painter, shown); }, content_);
}

}  // namespace lorvane::desktop
