// A card with one message: a problem with the warning sign, or a quiet remark. Knows nothing of the reason.
#pragma once

#include <QString>

#include "desktop/kit/painted_text.h"

namespace lorvane::desktop {

/// The text wraps, and the card keeps at least the height that this takes at its width.
class MessageCard : public PaintedText {
    Q_OBJECT

public:
    /// A problem has the warning sign and the colours of a problem; a quiet remark has neither.
    enum class Kind { Problem, Quiet };

    explicit MessageCard(Kind kind = Kind::Problem, QWidget* parent = nullptr);

    /// The kind and the text; screen readers get the text.
    void setKind(Kind kind);
    void setText(const QString& text);
    const QString& text() const { return text_; }

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// The place of the text in a card of a width.
    QRectF textArea(double width) const;
    QFont font() const;

    Kind kind_;
    QString text_;
};

}  // namespace lorvane::desktop
