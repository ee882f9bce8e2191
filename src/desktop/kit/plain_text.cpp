// What Qt would read into a text, taken out of it.
#include "desktop/kit/plain_text.h"

#include <QLabel>

namespace lorvane::desktop {

void keepPlain(QWidget& widget) {
    if (auto* label = qobject_cast<QLabel*>(&widget))
        label->setTextFormat(Qt::PlainText);
}

QString literalCaption(QString text) { return text.replace(QLatin1Char('&'), QLatin1String("&&")); }

QString literalTitle(QString text) { return text.replace(QLatin1String("[*]"), QLatin1String("[*][*]")); }

}  // namespace lorvane::desktop
