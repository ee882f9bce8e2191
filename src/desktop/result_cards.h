// Power and cost side by side. Copies what the models tell and decides nothing.
#pragma once

#include <QWidget>

#include "desktop/desk.h"

namespace lorvane::desktop {

class FigureCard;

/// The two cards of the answer, of equal width.
class ResultCards : public QWidget {
    Q_OBJECT

public:
    explicit ResultCards(Desk& desk, QWidget* parent = nullptr);

    /// Copies what has changed from the models.
    void sync();

private:
    void syncPower();
    void syncCost();

    Desk& desk_;
    FigureCard* power_ = nullptr;
    FigureCard* cost_ = nullptr;
};

}  // namespace lorvane::desktop
