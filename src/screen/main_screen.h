// Display model of the study screen: power and cost, the derived effect, the covariate cells and the outlines
// around cells at fault; and the two problem windows.
#pragma once

#include <string>

#include "engine/per_level.h"
#include "platform/controls.h"

namespace lorvane {

/// A coloured outline around the rectangle between two controls.
struct Outline {
    bool Visible = false;
    Colour colour;
    std::string from;
    std::string to;
};

struct MainScreen {
    Panel pnlPower;       ///< power as digits, or a request for other data
    Panel pnlPowerOuter;  ///< frame of the power bar
    Panel pnlPowerBar;
    Panel pnlCost{.Caption = "Cost = n/a"};
    Panel pnlCostOuter;
    Panel pnlCostBar;
    Panel SSPanel10;           ///< metric that a binary effect implies
    PerLevel<Panel> pnlLevel;  ///< role of the level
    PerLevel<Panel> pnlQ;
    PerLevel<Panel> pnlRsq;
    IndexedArray<Outline, 1, 7> outlines;

    /// Draws outline number around the rectangle between two controls.
    void OutlineProblem(int number, const Colour& colour, std::string from, std::string to);
};

/// Sets digits or graph for the power and for the cost (values of DisplayModes).
void DisplayPowerMode(MainScreen& screen, int Powermode);
void DisplayCostMode(MainScreen& screen, int Costmode);

/// The window that tells why a study gives no power.
struct ProblemWindow {
    Panel pnlErrTitle;
    Panel pnlErr;
};

/// The window that tells why an effect is not admissible.
struct EffectProblemWindow {
    Panel pnlErrESTitle;
    Panel pnlErrES;
};

}  // namespace lorvane
