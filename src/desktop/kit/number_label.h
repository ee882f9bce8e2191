// A line of text with tabular digits that is only read. Knows nothing of the number.
#pragma once

#include <QString>

#include "desktop/kit/painted_text.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

class NumberLabel : public PaintedText {
    Q_OBJECT

public:
    explicit NumberLabel(Qt::Alignment alignment = Qt::AlignRight, QWidget* parent = nullptr);

    void setText(const QString& text);
    const QString& text() const { return text_; }

    /// Size and weight; Value at first.
    void setTextStyle(TextStyle style);

    /// Colour; Text at first. Disabled it is quiet.
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
