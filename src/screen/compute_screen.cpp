// What the computation shows.
#include "screen/compute_screen.h"

#include "base/arithmetic_fault.h"
#include "base/names.h"
#include "base/number_text.h"
#include "engine/effect_check.h"
#include "engine/power_test.h"

namespace lorvane {

namespace {

constexpr double fullBar = 100;

// Outlines 2 to 6 belong to the levels: level i has number i + 1.
constexpr int firstLevelOutline = 2;
constexpr int lastLevelOutline = 6;

}  // namespace

void ComputeScreen::openWindow(WindowId window) { windows_.SynchForms(window, WindowAction::open); }

void ComputeScreen::withdrawWindow(WindowId window) {
    windows_.SynchForms(window, WindowAction::withdrawForGood);
}

void ComputeScreen::showEffect() {
    screen_.SSPanel10.Caption = derivedEffectText(study_);
    screen_.SSPanel10.ForeColor = black;
}

void ComputeScreen::showEffectProblem() {
    effectProblems_.pnlErrESTitle.Caption = effectProblemTitle(study_);
    effectProblems_.pnlErrES.Caption = effectProblemText(study_);
    screen_.SSPanel10.Caption.clear();
    screen_.SSPanel10.ForeColor = problemColour;
}

void ComputeScreen::askForData(std::string_view request) {
    screen_.pnlPowerOuter.Visible = false;
    screen_.pnlPower.Visible = true;
    screen_.pnlPower.Align = Alignment::centred;
    screen_.pnlPower.Caption = request;
}

void ComputeScreen::showPower() {
    const double power = study_.result.txtPower;
    screen_.pnlPower.number = fixedText(power, 4);
    screen_.pnlPower.Caption = "Power = " + screen_.pnlPower.number;
    screen_.pnlPower.Align = Alignment::left;
    screen_.pnlPowerBar.Flood = SmallerOf(power * 100, fullBar);
    DisplayPowerMode(screen_, study_.Powermode);
}

// A cost of exactly 1 leaves the caption as it stands. The gap is deliberate.
void ComputeScreen::showCost() {
    const std::int32_t cost = study_.result.txtCost;
    if (cost != 1)
        screen_.pnlCost.number = cost < 1 ? "n/a" : ReFormatCurrency(cost, settings_.currency);
    screen_.pnlCost.Caption = "Cost = " + screen_.pnlCost.number;
    const double flood = cost / study_.MaxCost * 100;
    requireFinite("docompute", {flood});
    screen_.pnlCostBar.Flood = SmallerOf(flood, fullBar);
}

void ComputeScreen::restoreCovariateColours() {
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        screen_.pnlRsq(level).BackColor = normalBackground;
        screen_.pnlQ(level).BackColor = normalBackground;
    }
}

void ComputeScreen::clearOutlines() {
    for (int number = firstLevelOutline; number <= lastLevelOutline; ++number)
        screen_.outlines(number).Visible = false;
}

void ComputeScreen::outlineCovariates(int level) {
    screen_.OutlineProblem(level + 1, problemColour, indexedName("pnlQ", level),
                           indexedName("pnlRsq", level));
}

void ComputeScreen::outlineLevel(int level) {
    screen_.OutlineProblem(level + 1, problemColour, indexedName("pnlLevel", level),
                           indexedName("pnlRsq", level));
}

void ComputeScreen::tellProblem(std::string_view message, std::string_view title) {
    problems_.pnlErr.Caption = message;
    problems_.pnlErrTitle.Caption = title;
}

void ComputeScreen::openProblemWindow() {
    if (!silentTick_)
        openWindow(WindowId::frmProblems);
}

}  // namespace lorvane
