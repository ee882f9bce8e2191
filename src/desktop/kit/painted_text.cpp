// Enters painted text with the accessibility of the application.
#include "desktop/kit/painted_text.h"

#include <QAccessibleWidget>

namespace lorvane::desktop {

namespace {

QAccessibleInterface* createText(const QString&, QObject* object) {
    auto* text = qobject_cast<PaintedText*>(object);
    return text ? new QAccessibleWidget(text, QAccessible::StaticText) : nullptr;
}

}  // namespace

PaintedText::PaintedText(QWidget* parent) : QWidget(parent) { QAccessible::installFactory(createText); }

}  // namespace lorvane::desktop
