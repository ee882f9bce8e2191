// Power and cost side by side.
#include "desktop/result_cards.h"

#include <QHBoxLayout>

#include "desktop/kit/curve_plot.h"
#include "desktop/kit/figure_card.h"
#include "desktop/kit/share_rows.h"
#include "screen/cost_shares.h"

namespace lorvane::desktop {

namespace {

constexpr int cardGap = 14;
constexpr int powersInAPause = 8;

}  // namespace

ResultCards::ResultCards(Desk& desk, QWidget* parent)
    : QWidget(parent), desk_(desk), power_(new FigureCard), cost_(new FigureCard), plot_(new CurvePlot),
      shares_(new ShareRows) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(cardGap);
    power_->setObjectName(QStringLiteral("pnlPower"));
    cost_->setObjectName(QStringLiteral("pnlCost"));
    row->addWidget(power_, 1);
    row->addWidget(cost_, 1);
    power_->setBelow(plot_);
    cost_->setBelow(shares_);
    for (FigureCard* card : {power_, cost_})
        connect(card, &FigureCard::belowShown, this, &ResultCards::syncBelow);
    connect(&pauses_, &QTimer::timeout, this, &ResultCards::goOnWithCurve);
    connect(plot_, &CurvePlot::focused, this,
            [this] { plot_->setAccessibleDescription(shownText(powerCurveHint(desk_.study()))); });
    connect(plot_, &CurvePlot::chosen, &desk_, [this](int mark) {
        desk_.enterValue(topUnits(desk_.study()), plot_->content().marks[mark].number);
    });
}

void ResultCards::sync() {
    syncPower();
    syncCost();
    syncBelow();
}

// Nothing of the curve is computed here, since an edit is to be on the screen first.
void ResultCards::syncBelow() {
    if (cost_->isTall()) {
        QList<ShareRow> rows;
        for (const CostShare& share : costShares(desk_.session().state()))
            rows.append({shownText(share.name), shownText(share.units), shownText(share.unitCosts),
                         shownText(share.amount), shownText(share.percent), share.share});
        shares_->setRows(rows);
    }
    if (!power_->isTall())
        return;
    const std::size_t computed = desk_.session().computations();
    if (isBegun_ && computed == computed_ && !pauses_.isActive())
        return syncCurve();
    isBegun_ = isBegun_ && computed == computed_;
    computed_ = computed;
    pauses_.start(0);
}

void ResultCards::goOnWithCurve() {
    if (!isBegun_)
        run_.begin(desk_.session());
    isBegun_ = true;
    if (run_.goOn(powersInAPause))
        return;
    pauses_.stop();
    syncCurve();
}

void ResultCards::syncCurve() {
    CurveContent content;
    const Study& study = desk_.study();
    if (const PowerCurve* curve = run_.curve()) {
        const MainScreen& screen = desk_.design().screen();
        content = {shownText(powerCurveTitle(study)),
                   {},
                   curve->range.first,
                   curve->range.last,
                   static_cast<int>(curve->present),
                   screen.pnlPowerTick.Flood / 100,
                   shownText(screen.pnlPowerTick.Caption)};
        for (const PowerPoint& point : curve->points)
            content.marks.append({point.units, point.power, shownText(powerPointWords(study, point))});
        plot_->setAccessibleName(shownText(powerCurveName(study)));
        plot_->setAccessibleDescription(shownText(powerCurveHint(study)));
    }
    plot_->setContent(content);
}

void ResultCards::syncPower() {
    const MainScreen& screen = desk_.design().screen();
    const lorvane::Figure& power = screen.pnlPower;
    const QString note = shownText(screen.pnlPowerNote.Caption);
    switch (power.state) {
    case FigureState::request:
        power_->setContent(FigureTrouble{shownText(power.Caption), shownText(screen.pnlPowerReason.Caption),
                                         note, shownText(screen.pnlPowerTip.Caption)});
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
