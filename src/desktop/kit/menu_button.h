// A flat button that shows a value and a chevron, and opens what its owner gives it. Knows no menu entry.
#pragma once

#include <optional>

#include <QPushButton>

#include "desktop/kit/icons.h"

namespace lorvane::desktop {

class MenuButton : public QPushButton {
    Q_OBJECT

public:
    /// Give it a menu with setMenu, or listen to clicked.
    explicit MenuButton(const QString& text = {}, QWidget* parent = nullptr);

    /// A drawing before the text.
    void setSign(Icon sign);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double textLeft() const;

    std::optional<Icon> sign_;
};

}  // namespace lorvane::desktop
