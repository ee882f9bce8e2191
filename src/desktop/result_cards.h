// Power and cost side by side. Copies what the models tell and decides nothing.
#pragma once

#include <QTimer>
#include <QWidget>

#include "desktop/desk.h"
#include "search/power_curve.h"

namespace lorvane::desktop {

class CurvePlot;
class FigureCard;
class ShareRows;

/// The two cards of the answer, of equal width. While they are tall, the curve of power and the shares of the
/// cost stand below the figures. The curve is computed in the pauses of the event loop.
class ResultCards : public QWidget {
    Q_OBJECT

public:
    explicit ResultCards(Desk& desk, QWidget* parent = nullptr);

    /// Copies what has changed from the models.
    void sync();

private:
    void syncPower();
    void syncCost();
    void syncBelow();
    void goOnWithCurve();
    void syncCurve();

    Desk& desk_;
    FigureCard* power_ = nullptr;
    FigureCard* cost_ = nullptr;
    CurvePlot* plot_ = nullptr;
    ShareRows* shares_ = nullptr;
    PowerCurveRun run_;
    QTimer pauses_;             ///< runs while something of the curve is left to compute
    bool isBegun_ = false;      ///< the run has the study as it stood at computed_
    std::size_t computed_ = 0;  ///< computations of the session at the last look
};

}  // namespace lorvane::desktop
