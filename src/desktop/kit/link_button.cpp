// Painting of the words.
#include "desktop/kit/link_button.h"

#include <QFontMetrics>
#include <QPainter>

#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

constexpr int Height = 24;
constexpr int FocusLine = 2;  ///< under the words

}  // namespace

LinkButton::LinkButton(const QString& text, QWidget* parent) : QAbstractButton(parent) {
    setText(text);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
}

QSize LinkButton::sizeHint() const {
    const QFontMetrics metrics(textFont(TextStyle::BodyStrong));
    return {metrics.horizontalAdvance(text()), Height};
}

void LinkButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QFont font = textFont(TextStyle::BodyStrong);
    font.setUnderline(underMouse());
    painter.setFont(font);
    painter.setPen(colour(Role::Accent));
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter, text());
    if (hasFocus())
        painter.fillRect(0, height() - FocusLine, width(), FocusLine, colour(Role::Accent));
}

}  // namespace lorvane::desktop
