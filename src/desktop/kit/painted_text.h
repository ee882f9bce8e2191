// Base of the widgets that paint their text themselves: screen readers get it as static text. Knows no
// content.
#pragma once

#include <QWidget>

namespace lorvane::desktop {

/// Its accessible name is what it shows; the widgets below set it along with their text.
class PaintedText : public QWidget {
    Q_OBJECT

public:
    explicit PaintedText(QWidget* parent = nullptr);
};

}  // namespace lorvane::desktop
