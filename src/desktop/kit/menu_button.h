// A flat button with a text and a chevron that opens a menu. Knows no menu entry.
#pragma once

#include <optional>

#include <QPushButton>

#include "desktop/kit/icons.h"

namespace lorvane::desktop {

/// The text is for the value in force, such as the alpha of the test. Its digits have one width.
class MenuButton : public QPushButton {
    Q_OBJECT

public:
    /// Opens nothing by itself: the owner gives it a menu with setMenu, or listens to clicked.
    explicit MenuButton(const QString& text = {}, QWidget* parent = nullptr);

    /// A drawing before the text.
    void setSign(Icon sign);

    /// The size that it asks for with a text.
    QSize sizeWith(const QString& text) const;

    QSize sizeHint() const override { return sizeWith(text()); }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double textLeft() const;

    std::optional<Icon> sign_;
};

}  // namespace lorvane::desktop
