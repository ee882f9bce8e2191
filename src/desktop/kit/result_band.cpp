// Painting and wrapping of the band.
#include "desktop/kit/result_band.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QPainter>
#include <QResizeEvent>

#include "desktop/kit/card.h"
#include "desktop/kit/icons.h"
#include "desktop/kit/number_text.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

constexpr double Inset = 16;
constexpr double Padding = 13;
constexpr double FigureInset = 18;
constexpr double FigureHeight = 52;
constexpr double NoteGap = 20;
constexpr double NotePadding = 8;
constexpr int BackInset = 12;
constexpr int BackHeight = 32;
constexpr int BackSign = 16;
constexpr double SignSize = 16;
constexpr double AfterSign = 24;
constexpr double LineGap = 4;
constexpr double Endless = 100000;

double wrappedHeight(TextStyle style, double width, const QString& text) {
    const QRectF room(0, 0, width, Endless);
    return QFontMetricsF(textFont(style)).boundingRect(room, Qt::TextWordWrap, text).height();
}

/// The tones in the order of BandContent.
constexpr CardTone Tones[] = {CardTone::Quiet, CardTone::Accent, CardTone::Problem};

struct Spoken {
    QString name;
    QString description;
};

Spoken spoken(const BandText& band) { return {band.text, {}}; }
Spoken spoken(const BandFigure& band) { return {band.words + band.number, band.note}; }
Spoken spoken(const BandProblem& band) { return {band.title, band.text}; }

}  // namespace

ResultBand::ResultBand(QWidget* parent) : PaintedText(parent), back_(plainButton(QString(), this)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    back_->setIcon(icon(Icon::Undo));
    back_->setIconSize(QSize(BackSign, BackSign));
    back_->hide();
    connect(back_, &PushButton::clicked, this, &ResultBand::backRequested);
    fit();
}

void ResultBand::setContent(const BandContent& content) {
    if (content == content_)
        return;
    content_ = content;
    const Spoken words = std::visit([](const auto& band) { return spoken(band); }, content_);
    setAccessibleName(words.name);
    setAccessibleDescription(words.description);
    placeBack();
    fit();
    update();
}

void ResultBand::placeBack() {
    const auto* figure = std::get_if<BandFigure>(&content_);
    back_->setVisible(figure != nullptr && !figure->back.isEmpty());
    if (back_->isHidden())
        return;
    back_->setText(figure->back);
    back_->ensurePolished();
    const int wide = back_->sizeHint().width();
    back_->setGeometry(width() - BackInset - wide, (height() - BackHeight) / 2, wide, BackHeight);
}

void ResultBand::fit() {
    const double wanted = std::visit([this](const auto& band) { return heightOf(band); }, content_);
    setFixedHeight(static_cast<int>(std::ceil(wanted)));
}

void ResultBand::resizeEvent(QResizeEvent* event) {
    if (event->size().width() != event->oldSize().width())
        fit();
    placeBack();
}

// A text at rest -------------------------------------------------------------------------------------------

double ResultBand::heightOf(const BandText& band) const {
    return wrappedHeight(TextStyle::Body, width() - 2 * Inset, band.text) + 2 * Padding;
}

void ResultBand::paint(QPainter& painter, const BandText& band) const {
    painter.setFont(textFont(TextStyle::Body));
    painter.setPen(colour(Role::SecondText));
    painter.drawText(QRectF(rect()).adjusted(Inset, Padding, -Inset, 0), Qt::TextWordWrap, band.text);
}

// A figure -------------------------------------------------------------------------------------------------

QRectF ResultBand::noteArea(const BandFigure& band) const {
    const double left = FigureInset + NoteGap +
                        QFontMetricsF(textFont(TextStyle::ResultWords)).horizontalAdvance(band.words) +
                        numberWidth(textFont(TextStyle::Result), band.number);
    const double right = back_->isHidden() ? Inset : width() - back_->x() + Inset;
    return QRectF(rect()).adjusted(left, 0, -right, 0);
}

double ResultBand::heightOf(const BandFigure& band) const {
    const double note = wrappedHeight(TextStyle::Body, noteArea(band).width(), band.note);
    return std::max(FigureHeight, note + 2 * NotePadding);
}

void ResultBand::paint(QPainter& painter, const BandFigure& band) const {
    const QFont words = textFont(TextStyle::ResultWords);
    QPointF place(FigureInset, centredBaseline(textFont(TextStyle::Result), QRectF(rect())));
    painter.setFont(words);
    painter.setPen(colour(Role::SecondText));
    painter.drawText(place, band.words);
    place.rx() += QFontMetricsF(words).horizontalAdvance(band.words);
    painter.setFont(textFont(TextStyle::Result));
    painter.setPen(colour(Role::Text));
    drawNumber(painter, place, band.number);
    painter.setFont(textFont(TextStyle::Body));
    painter.setPen(colour(Role::SecondText));
    painter.drawText(noteArea(band), Qt::TextWordWrap | Qt::AlignVCenter, band.note);
}

// A problem ------------------------------------------------------------------------------------------------

double ResultBand::heightOf(const BandProblem& band) const {
    const double room = width() - 2 * Inset - AfterSign;
    return wrappedHeight(TextStyle::BodyStrong, room, band.title) + LineGap +
           wrappedHeight(TextStyle::Body, room, band.text) + 2 * Padding;
}

void ResultBand::paint(QPainter& painter, const BandProblem& band) const {
    QRectF area = QRectF(rect()).adjusted(Inset + AfterSign, Padding, -Inset, 0);
    const double line = QFontMetricsF(textFont(TextStyle::BodyStrong)).height();
    drawIcon(painter, Icon::Warning, QRectF(Inset, area.top() + (line - SignSize) / 2, SignSize, SignSize),
             colour(Role::ProblemText));
    painter.setPen(colour(Role::ProblemText));
    painter.setFont(textFont(TextStyle::BodyStrong));
    painter.drawText(area, Qt::TextWordWrap, band.title);
    area.setTop(area.top() + LineGap + wrappedHeight(TextStyle::BodyStrong, area.width(), band.title));
    painter.setFont(textFont(TextStyle::Body));
    painter.drawText(area, Qt::TextWordWrap, band.text);
}

void ResultBand::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintCard(painter, QRectF(rect()), Tones[content_.index()]);
    std::visit([&](const auto& band) { paint(painter, band); }, content_);
}

}  // namespace lorvane::desktop
