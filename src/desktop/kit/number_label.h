// A line of text with digits of one width, to be read only. Knows nothing of the number.
#pragma once

#include <QString>

#include "desktop/kit/painted_text.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

/// The text is neither cut nor wrapped.
class NumberLabel : public PaintedText {
    Q_OBJECT

public:
    /// The alignment is Qt::AlignLeft, Qt::AlignRight or Qt::AlignHCenter.
    explicit NumberLabel(Qt::Alignment alignment = Qt::AlignRight, QWidget* parent = nullptr);

    /// The text, which screen readers get too.
    void setText(const QString& text);
    const QString& text() const { return text_; }

    /// Size and weight of the text; TextStyle::Value at first.
    void setTextStyle(TextStyle style);

    /// Colour of the text; Role::Text at first. A disabled label takes Role::Quiet instead.
    void setTextRole(Role role);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Qt::Alignment alignment_;
    QString text_;
    TextStyle style_ = TextStyle::Value;
    Role role_ = Role::Text;
};

}  // namespace lorvane::desktop
