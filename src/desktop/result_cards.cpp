// Power and cost side by side.
#include "desktop/result_cards.h"

#include <QHBoxLayout>

#include "desktop/kit/figure_card.h"

namespace lorvane::desktop {

namespace {

constexpr int cardGap = 14;

}  // namespace

ResultCards::ResultCards(Desk& desk, QWidget* parent)
    : QWidget(parent), desk_(desk), power_(new FigureCard), cost_(new FigureCard) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(cardGap);
    row->addWidget(power_, 1);
    row->addWidget(cost_, 1);
}

void ResultCards::sync() {
    syncPower();
    syncCost();
}

void ResultCards::syncPower() {
    const MainScreen& screen = desk_.design().screen();
    const lorvane::Figure& power = screen.pnlPower;
    const QString note = shownText(screen.pnlPowerNote.Caption);
    switch (power.state) {
    case FigureState::request:
        power_->setContent(FigureTrouble{shownText(power.Caption), note});
        break;
    case FigureState::bar:
        power_->setContent(
            FigureBar{shownText(power.name), shownText(power.barNumber), screen.pnlPowerBar.Flood / 100,
                      shownText(power.low), shownText(power.high),
                      FigureTick{screen.pnlPowerTick.Flood / 100, shownText(screen.pnlPowerTick.Caption)}});
        break;
    case FigureState::digits:
        power_->setContent(
            Figure{shownText(power.words()), shownText(power.number), note, screen.powerIsReached});
        break;
    }
}

void ResultCards::syncCost() {
    const MainScreen& screen = desk_.design().screen();
    const lorvane::Figure& cost = screen.pnlCost;
    if (cost.state == FigureState::bar)
        cost_->setContent(FigureBar{shownText(cost.name),
                                    shownText(cost.barNumber),
                                    screen.pnlCostTop.Flood / 100,
                                    shownText(cost.low),
                                    shownText(cost.high),
                                    {}});
    else
        cost_->setContent(Figure{shownText(cost.words()), shownText(cost.number),
                                 shownText(screen.pnlCostNote.Caption), false});
}

}  // namespace lorvane::desktop
