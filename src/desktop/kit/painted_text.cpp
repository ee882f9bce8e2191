// Enters painted text with the accessibility of the application.
#include "desktop/kit/painted_text.h"

#include "desktop/kit/accessible.h"

namespace lorvane::desktop {

PaintedText::PaintedText(QWidget* parent) : QWidget(parent) { installAccessibility(); }

}  // namespace lorvane::desktop
