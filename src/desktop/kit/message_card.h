// A card with one message: a problem with the warning sign, or a quiet remark. Knows nothing of the reason.
#pragma once

#include <QString>

#include "desktop/kit/painted_text.h"

namespace lorvane::desktop {

class MessageCard : public PaintedText {
    Q_OBJECT

public:
    enum class Kind { Problem, Quiet };

    explicit MessageCard(Kind kind = Kind::Problem, QWidget* parent = nullptr);

    void setKind(Kind kind);
    void setText(const QString& text);
    const QString& text() const { return text_; }

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// The place of the text in a card of a width.
    QRectF textArea(double width) const;
    QFont font() const;

    Kind kind_;
    QString text_;
};

}  // namespace lorvane::desktop
