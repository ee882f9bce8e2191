// Painting of a choice.
#include "desktop/kit/choice_card.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStyleOption>

#include "desktop/kit/number_text.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/selected_row.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

constexpr int Width = 296;
constexpr int Height = 68;
constexpr double SignLeft = 18;
constexpr double SignSize = 22;
constexpr double WordsLeft = 54;
constexpr int DotSize = 16;
constexpr int DotInset = 16;
constexpr double CheckedLine = 1.5;
constexpr double RingInset = 3.5;

/// The lines of the words within the card.
const QRectF TitleLine(WordsLeft, 14, 0, 20);
const QRectF SenseLine(WordsLeft, 34, 0, 20);

}  // namespace

ChoiceCard::ChoiceCard(QWidget* parent) : QRadioButton(parent) {
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ChoiceCard::setChoice(const Choice& choice) {
    choice_ = choice;
    setAccessibleName(choice.title);
    setAccessibleDescription(choice.sense);
    update();
}

QSize ChoiceCard::sizeHint() const { return {Width, Height}; }

void ChoiceCard::paintPlate(QPainter& painter) const {
    const QRectF bounds(rect());
    const bool hovered = underMouse() && isEnabled();
    const Role fill = isChecked() ? Role::AccentTint : hovered ? Role::Field : Role::Card;
    fillPlate(painter, bounds.adjusted(0.5, 0.5, -0.5, -0.5), CardRadius, colour(fill));
    if (isChecked())
        strokePlate(painter, bounds, CardRadius, colour(Role::Accent), CheckedLine);
    else
        strokePlate(painter, bounds, CardRadius, colour(hovered ? Role::StrongLine : Role::Line), 1);
    if (showsKeyboardFocus(*this))
        strokePlate(painter, bounds.adjusted(RingInset, RingInset, -RingInset, -RingInset),
                    CardRadius - RingInset, colour(Role::Accent), RingWidth);
}

void ChoiceCard::paintWords(QPainter& painter) const {
    struct Line {
        const QString& text;
        const QRectF& area;
        TextStyle style;
        Role role;
    };
    const Line lines[] = {{choice_.title, TitleLine, TextStyle::PanelHeading, Role::Text},
                          {choice_.sense, SenseLine, TextStyle::Caption, Role::SecondText}};
    const double room = width() - WordsLeft - 2 * DotInset - DotSize;
    for (const Line& line : lines) {
        painter.setFont(textFont(line.style));
        painter.setPen(colour(isEnabled() ? line.role : Role::Quiet));
        painter.drawText(QPointF(WordsLeft, centredBaseline(painter.font(), line.area)),
                         QFontMetricsF(painter.font()).elidedText(line.text, Qt::ElideRight, room));
    }
}

/// The same dot as of any radio button; the focus is seen on the card.
void ChoiceCard::paintDot(QPainter& painter) const {
    QStyleOption option;
    option.initFrom(this);
    option.state &= ~QStyle::State_HasFocus;
    option.state |= isChecked() ? QStyle::State_On : QStyle::State_Off;
    option.rect = QRect(width() - DotInset - DotSize, (height() - DotSize) / 2, DotSize, DotSize);
    style()->drawPrimitive(QStyle::PE_IndicatorRadioButton, &option, &painter, this);
}

void ChoiceCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPlate(painter);
    const Role sign = !isEnabled() ? Role::Quiet : isChecked() ? Role::Accent : Role::SecondText;
    drawIcon(painter, choice_.icon, QRectF(SignLeft, (height() - SignSize) / 2, SignSize, SignSize),
             colour(sign));
    paintWords(painter);
    paintDot(painter);
}

}  // namespace lorvane::desktop
