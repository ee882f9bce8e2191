// Painting and wrapping of a message.
#include "desktop/kit/message_card.h"

#include <cmath>

#include <QEvent>
#include <QFontMetricsF>
#include <QPainter>

#include "desktop/kit/card.h"
#include "desktop/kit/icons.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr double Inset = 13;
constexpr double Padding = 9;
constexpr double SignSize = 16;
constexpr double TextAfterSign = 24;
constexpr int PreferredWidth = 240;
constexpr double Endless = 100000;

struct KindLook {
    CardTone tone;
    TextStyle style;
    Role text;
    bool sign;
};

/// In the order of MessageCard::Kind.
constexpr KindLook Looks[] = {
    {CardTone::Problem, TextStyle::BodyMedium, Role::ProblemText, true},
    {CardTone::Quiet, TextStyle::Body, Role::SecondText, false},
};

const KindLook& lookOf(MessageCard::Kind kind) { return Looks[static_cast<int>(kind)]; }

}  // namespace

MessageCard::MessageCard(Kind kind, QWidget* parent) : PaintedText(parent), kind_(kind) {
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void MessageCard::setKind(Kind kind) {
    if (kind == kind_)
        return;
    kind_ = kind;
    setMinimumHeight(heightForWidth(width()));
    updateGeometry();
    update();
}

void MessageCard::setText(const QString& text) {
    if (text == text_)
        return;
    text_ = text;
    setAccessibleName(text);
    setMinimumHeight(heightForWidth(width()));
    updateGeometry();
    update();
}

QFont MessageCard::font() const { return textFont(lookOf(kind_).style); }

QRectF MessageCard::textArea(double width) const {
    const double left = Inset + (lookOf(kind_).sign ? TextAfterSign : 0);
    const QRectF space(left, Padding, width - left - Inset, Endless);
    return {space.topLeft(), QFontMetricsF(font()).boundingRect(space, Qt::TextWordWrap, text_).size()};
}

QSize MessageCard::sizeHint() const {
    const int width = zoomed(*this, PreferredWidth);
    return {width, heightForWidth(width)};
}

int MessageCard::heightForWidth(int width) const {
    const double zoom = zoomOf(*this);
    return static_cast<int>(std::ceil((textArea(width / zoom).height() + 2 * Padding) * zoom));
}

void MessageCard::resizeEvent(QResizeEvent*) { setMinimumHeight(heightForWidth(width())); }

/// Another zoom is told as another style.
void MessageCard::changeEvent(QEvent* event) {
    PaintedText::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        setMinimumHeight(heightForWidth(width()));
}

void MessageCard::paintEvent(QPaintEvent*) {
    ZoomedPainter painter(*this);
    const KindLook& look = lookOf(kind_);
    const QRectF bounds = figureRect(*this);
    paintCard(painter, bounds, look.tone);
    painter.setFont(font());
    painter.setPen(colour(look.text));
    QRectF area = textArea(bounds.width());
    area.moveTop((bounds.height() - area.height()) / 2);
    area.setRight(bounds.width() - Inset);
    painter.drawText(area, Qt::TextWordWrap, text_);
    const double lineMiddle = area.top() + QFontMetricsF(font()).height() / 2;
    if (look.sign)
        drawIcon(painter, Icon::Warning, QRectF(Inset, lineMiddle - SignSize / 2, SignSize, SignSize),
                 colour(look.text));
}

}  // namespace lorvane::desktop
