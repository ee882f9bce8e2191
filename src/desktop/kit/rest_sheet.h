// The yellow sheet of a panel that waits for something to be chosen. Knows nothing of what.
#pragma once

#include <QString>

#include "desktop/kit/painted_text.h"

namespace lorvane::desktop {

/// A sign over lines of text, both in its middle. Screen readers get the text.
class RestSheet : public PaintedText {
    Q_OBJECT

public:
    using PaintedText::PaintedText;

    /// The text, line by line.
    void setText(const QString& text);

    /// Without round corners, where it fills a window.
    void setSquare(bool square);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString text_;
    bool square_ = false;
};

}  // namespace lorvane::desktop
