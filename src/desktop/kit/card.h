// The sheet on which everything stands: round corners and a line, or a tinted band. Knows nothing of what
// stands on it.
#pragma once

#include <QWidget>

namespace lorvane::desktop {

/// What a card tells by its ground and its line.
enum class CardTone {
    Plain,    ///< a card
    Problem,  ///< a card that tells of a problem
    Accent,   ///< a band with a result
    Quiet,    ///< a band with something past or unimportant
};

/// Paints the sheet of a card. It is for widgets that look like cards and paint their content themselves.
void paintCard(QPainter& painter, const QRectF& bounds, CardTone tone);

/// A card that holds other widgets. It has no layout and no margins of its own.
class Card : public QWidget {
    Q_OBJECT

public:
    explicit Card(CardTone tone = CardTone::Plain, QWidget* parent = nullptr);

    /// The tone; another one repaints the card.
    void setTone(CardTone tone);
    CardTone tone() const { return tone_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    CardTone tone_;
};

}  // namespace lorvane::desktop
