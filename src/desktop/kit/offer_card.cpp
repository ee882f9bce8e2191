// Painting of the card and the place of its button.
#include "desktop/kit/offer_card.h"

#include <QFontMetricsF>

#include "desktop/kit/card.h"
#include "desktop/kit/icons.h"
#include "desktop/kit/number_text.h"
#include "desktop/kit/push_button.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr double Height = 44;
constexpr double Width = 400;
constexpr double SignInset = 15;
constexpr double SignSize = 16;
constexpr double TextInset = 42;
constexpr double ButtonInset = 9;
constexpr double ButtonHeight = 28;

}  // namespace

OfferCard::OfferCard(QWidget* parent) : PaintedText(parent), button_(plainButton(QString(), this)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    button_->setStyleSheet(QStringLiteral("QPushButton, QPushButton:focus { min-height: 0; }"));
    connect(button_, &PushButton::clicked, this, &OfferCard::taken);
}

void OfferCard::setOffer(const QString& text, const QString& button) {
    button_->setText(button);
    button_->setVisible(!button.isEmpty());
    text_ = text;
    setAccessibleName(text);
    arrange();
    update();
}

QSize OfferCard::sizeHint() const { return {zoomed(*this, Width), zoomed(*this, Height)}; }

QRectF OfferCard::textArea() const {
    const QRectF whole = figureRect(*this);
    const double taken = button_->isHidden() ? 0 : (width() - button_->x()) / zoomOf(*this);
    return whole.adjusted(TextInset, 0, -taken - ButtonInset, 0);
}

void OfferCard::arrange() {
    button_->ensurePolished();
    const QSize size(button_->sizeHint().width(), zoomed(*this, ButtonHeight));
    button_->setGeometry(width() - zoomed(*this, ButtonInset) - size.width(), (height() - size.height()) / 2,
                         size.width(), size.height());
    const double wanted = QFontMetricsF(textFont(TextStyle::Body)).horizontalAdvance(text_);
    setToolTip(wanted > textArea().width() ? text_ : QString());
}

void OfferCard::resizeEvent(QResizeEvent*) { arrange(); }

void OfferCard::paintEvent(QPaintEvent*) {
    ZoomedPainter painter(*this);
    const QRectF whole = figureRect(*this);
    paintCard(painter, whole, CardTone::Plain);
    drawIcon(painter, Icon::Note, QRectF(SignInset, (whole.height() - SignSize) / 2, SignSize, SignSize),
             colour(Role::SecondText));
    const QRectF area = textArea();
    painter.setFont(textFont(TextStyle::Body));
    painter.setPen(colour(Role::Text));
    painter.drawText(QPointF(area.left(), centredBaseline(painter.font(), area)),
                     QFontMetricsF(painter.font()).elidedText(text_, Qt::ElideRight, area.width()));
}

}  // namespace lorvane::desktop
