// A line of words whose numbers stand out. Knows nothing of what they count.
#pragma once

#include <QString>

#include "desktop/kit/painted_text.h"

namespace lorvane::desktop {

/// Words in the second colour, numbers in semibold. It is as wide as every number of it may be long, so it
/// keeps its width while they count. The text is neither cut nor wrapped.
class StressedLabel : public PaintedText {
    Q_OBJECT

public:
    using PaintedText::PaintedText;

    /// The text, which screen readers get too.
    void setText(const QString& text);
    const QString& text() const { return text_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString text_;
};

}  // namespace lorvane::desktop
