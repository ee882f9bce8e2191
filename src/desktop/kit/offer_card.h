// A line of text on a card with a button that takes up what it offers. Knows nothing of the offer.
#pragma once

#include <QString>

#include "desktop/kit/painted_text.h"

namespace lorvane::desktop {

class PushButton;

/// Words that are too long for the width end in three dots, and the tip has them whole.
class OfferCard : public PaintedText {
    Q_OBJECT

public:
    explicit OfferCard(QWidget* parent = nullptr);

    /// The text, and the words of the button; without these there is no button.
    void setOffer(const QString& text, const QString& button);
    const QString& text() const { return text_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    /// The user presses the button.
    void taken();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QRectF textArea() const;
    void arrange();

    QString text_;
    PushButton* button_;
};

}  // namespace lorvane::desktop
