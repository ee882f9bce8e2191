// One of the large choices of the start screen. Knows neither the other ones nor what is chosen.
#pragma once

#include <QRadioButton>

#include "desktop/kit/icons.h"

namespace lorvane::desktop {

/// What a choice shows.
struct Choice {
    Icon icon = Icon::New;
    QString title;
    QString sense;  ///< one line below the title that tells what it means
};

/// A radio button as a card: siblings exclude each other, and the arrow keys go from one to the next.
class ChoiceCard : public QRadioButton {
    Q_OBJECT

public:
    explicit ChoiceCard(QWidget* parent = nullptr);

    /// What the card shows; screen readers get the title as name and the sense as description.
    void setChoice(const Choice& choice);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint& place) const override { return rect().contains(place); }
    void paintEvent(QPaintEvent* event) override;

private:
    void paintPlate(QPainter& painter) const;
    void paintWords(QPainter& painter) const;
    void paintDot(QPainter& painter) const;

    Choice choice_;
};

}  // namespace lorvane::desktop
