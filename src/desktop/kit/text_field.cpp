// Sizes and the problem state of the field; the style sheet draws it.
#include "desktop/kit/text_field.h"

#include <QStyle>

#include "desktop/kit/text_style.h"

namespace lorvane::desktop {

TextField::TextField(Size size, QWidget* parent) : QLineEdit(parent) {
    const bool large = size == Size::Large;
    setFixedHeight(large ? 38 : 32);
    setProperty("large", large);
    setFont(textFont(large ? TextStyle::Entry : TextStyle::Body));
    setAlignment(large ? Qt::AlignRight : Qt::AlignLeft);
}

void TextField::setProblem(bool problem) {
    if (property("problem").toBool() == problem)
        return;
    setProperty("problem", problem);
    style()->unpolish(this);
    style()->polish(this);
}

}  // namespace lorvane::desktop
