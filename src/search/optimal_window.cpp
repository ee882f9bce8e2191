// The optimal design wizard.
#include "search/optimal_window.h"

#include <algorithm>
#include <utility>

#include "base/money.h"
#include "base/names.h"
#include "base/number_text.h"
#include "base/while_set.h"
#include "search/optimal_marks.h"
#include "search/optimal_texts.h"
#include "session/field_words.h"
#include "session/spin_step.h"
#include "session/structure.h"

namespace lorvane {

namespace {

constexpr const char* pasted = "Click <Reset> to modify options or <Close> to close this panel";

}  // namespace

OptimalWindow::OptimalWindow(Design& design, Progress& progress)
    : design_(design), progress_(progress), question_(design) {
    pnlAdjustOuter_.Visible = false;
    pnlAdjustInnerTitle_.Caption = "Notes";
    for (const auto& [button, caption] :
         {std::pair{resetButton, "Reset"}, {computeButton, "Compute"}, {closeButton, "Close"}})
        cmdOpt_(button).Caption = caption;
    hideOffers();
    writeHeads();
    DisplayOptimalOptions();
}

bool OptimalWindow::isOpen() const { return design_.isOpen(WindowId::frmOptimal); }

// Open, or away for a message or with the study before, so that it can come back without its command.
bool OptimalWindow::canBeSeen() const {
    return isOpen() || design_.windows().state(WindowId::frmOptimal) == WindowStates::withdrawn;
}

// An edit takes the result away, also of a wizard that makes way: it must not be pasted onto another study.
void OptimalWindow::follow(const Changed& changed) {
    writeHeads();
    question_.follow(hasResult());
    if (changed.reach == Reach::study || changed.reach == Reach::anew)
        ReDisplayOptimal();
}

void OptimalWindow::open() {
    if (!design_.study().result.xValid) {
        design_.ask(wizardTitle, modifyData);
        return;
    }
    DisplayOptimalOptions();
    design_.SynchForms(WindowId::frmOptimal, WindowAction::open);
    ReDisplayOptimal();
}

// A script may press Compute where nobody has opened the wizard: it opens with the options as they were set.
void OptimalWindow::pressCompute() {
    if (!isOpen()) {
        design_.SynchForms(WindowId::frmOptimal, WindowAction::open);
        ReDisplayOptimal();
    }
    if (cmdOpt_(computeButton).Visible)
        ComputeOptimalDesign();
}

// With all lower levels as the study has them only the number of top units is searched for.
void OptimalWindow::openAndCompute(bool byHand) {
    open();
    if (!isOpen())
        return;
    for (int level = lowestLevel; level < design_.study().NumLevels; ++level)
        choose(level, byHand);
    ComputeOptimalDesign();
}

void OptimalWindow::close() {
    ReDisplayOptimal();
    design_.SynchForms(WindowId::frmOptimal, WindowAction::withdrawForGood);
}

// A size set by hand starts from the one that the study has.
void OptimalWindow::DisplayOptimalOptions() {
    const Study& s = design_.study();
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        LevelRow& row = rows_(level);
        row.optAuto = {"Use optimal number", true};
        row.optManual = {"Set manually", false};
        const double size = s.isBlocked(level) ? s.txtNB(level) : s.txtNT(level);
        setSize(level, std::clamp(size, smallestSize, largestSize));
    }
    question_.startAnew();
}

void OptimalWindow::setSize(int level, double size) {
    rows_(level).txtNumReps = size;
    rows_(level).size.Text = shortestText(size);
}

void OptimalWindow::writeHeads() {
    for (int group = 1; group <= lblGroup_.last; ++group)
        lblGroup_(group).Caption = design_.study().txtGroupName(group);
}

void OptimalWindow::ReDisplayOptimal() {
    if (running_ || !canBeSeen())
        return;
    question_.follow(false);
    pnlFindPower_.Caption = question_.heading();
    for (int level = lowestLevel; level <= highestLevel; ++level)
        writeRow(level);
    forgetResult();
    clearMarks(design_);
    say(State::message, "", setOptions);
    showButtons(true, true, false, true);
    primary_ = computeButton;
}

void OptimalWindow::forgetResult() {
    for (Panel* panel : {&pnlOptimalCost_, &pnlCostNumber_, &pnlOptimalNote_, &pnlOther_})
        panel->Caption.clear();
    outcome_.forget();
    pnlAdjustOuter_.Visible = false;
    hideOffers();
}

void OptimalWindow::hideOffers() {
    cmdOpt_(pasteButton).Caption = pasteBest;
    pnlOther_.Visible = cmdOther_.Visible = cmdCheapest_.Visible = cmdNotes_.Visible = false;
    lblPlotShown_.Visible = false;
}

void OptimalWindow::writeRow(int level) {
    const Study& s = design_.study();
    LevelRow& row = rows_(level);
    row.Visible = level <= s.NumLevels;
    row.isTop = level == s.NumLevels;
    row.optPanelName.Caption = s.txtName(level);
    row.pnlRole.Caption = design_.screen().pnlLevel(level).Caption;
    row.role = design_.screen().roles(level);
    const bool free = level < s.NumLevels;
    row.optAuto.Visible = row.optManual.Visible = free;
    row.optAuto.Enabled = row.optManual.Enabled = true;
    const bool manual = free && isManual(level);
    row.OptimalspnNT = row.OptimalspnNC = manual && !s.isBlocked(level);
    row.OptimalspnNB = manual && s.isBlocked(level);
    row.arrows =
        indexedName(s.isBlocked(level) ? "frmOptimal.OptimalspnNB" : "frmOptimal.OptimalspnNT", level);
    if (row.isTop)
        writeCells(level, "Find", "Find number");
    else if (manual)
        writeCells(level, "Set at " + shortestText(row.txtNumReps), "Set at " + shortestText(row.txtNumReps));
    else
        writeCells(level, "Use optimal", "Use optimal");
}

// A level has a cell an arm, or one for its blocks.
void OptimalWindow::writeCells(int level, const std::string& arms, const std::string& block) {
    LevelRow& row = rows_(level);
    const bool blocked = design_.study().isBlocked(level);
    row.OptimalpnlNT.Caption = row.OptimalpnlNC.Caption = arms;
    row.OptimalpnlNB.Caption = block;
    row.OptimalpnlNT.Visible = row.OptimalpnlNC.Visible = row.Visible && !blocked;
    row.OptimalpnlNB.Visible = row.Visible && blocked;
}

void OptimalWindow::showButtons(bool reset, bool compute, bool paste, bool close) {
    cmdOpt_(resetButton).Visible = reset;
    cmdOpt_(computeButton).Visible = compute;
    cmdOpt_(pasteButton).Visible = paste;
    cmdOpt_(closeButton).Visible = close;
}

// With a result the rows show what was found, in the place of what is searched for and of the sizes to set.
void OptimalWindow::say(State state, std::string title, std::string text) {
    state_ = state;
    pnlProblem_.Caption = trimmed(title);
    pnlOptimalTitle_.Caption = std::move(title);
    pnlOptimalInner_.Caption = std::move(text);
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        LevelRow& row = rows_(level);
        row.pnlSearched.Visible = row.isTop && !hasResult();
        row.size.Visible = (row.OptimalspnNT || row.OptimalspnNB) && !hasResult();
    }
}

// While a search runs the question stays as it was asked.
void OptimalWindow::changeQuestion(const std::function<bool(OptimalQuestion&)>& change) {
    if (running_)
        question_.follow(true);
    else if (change(question_))
        ReDisplayOptimal();
}

void OptimalWindow::choose(int level, bool manual) {
    LevelRow& row = rows_(level);
    if (level >= design_.study().NumLevels || !row.optManual.Enabled)
        return;
    row.optManual.Value = manual;
    row.optAuto.Value = !manual;
    ReDisplayOptimal();
}

void OptimalWindow::writeNumber(int level, double size) {
    setSize(level, roundHalfToEven(size));
    ReDisplayOptimal();
}

void OptimalWindow::spin(int level, int direction) {
    const FieldLimits limits{smallestSize, true, largestSize, true};
    const int step = design_.settings().IncN(level);
    const double value = spun(rows_(level).txtNumReps, direction, limits, 0, step);
    writeNumber(level, std::clamp(snapped(value, direction, step), limits.low, limits.high));
}

OptimalOptions OptimalWindow::options() const {
    OptimalOptions options;
    options.goal = question_.goal();
    options.budget = question_.budget();
    for (int level = lowestLevel; level <= highestFreeLevel; ++level) {
        options.manual(level) = level < design_.study().NumLevels && isManual(level);
        options.numReps(level) = rows_(level).txtNumReps;
    }
    options.iterations = design_.settings().IterationsForOptimal;
    options.power = design_.study().ReqPower;
    options.allowLowCellCounts = design_.settings().AllowLowCellCounts;
    return options;
}

void OptimalWindow::lookAt(void (OptimalOutcome::*design)()) {
    if (!hasResult() || running_)
        return;
    (outcome_.*design)();
    showDesign();
}

// A size that was found is where one set by hand starts from.
void OptimalWindow::showSizes() {
    const LevelSizes sizes = outcome_.shown().sizes;
    for (int level = lowestLevel; level <= design_.study().NumLevels; ++level) {
        const std::string size = shortestText(sizes(level));
        writeCells(level, size, size);
        if (!isManual(level))
            setSize(level, std::min(sizes(level), largestSize));
    }
}

void OptimalWindow::paste() {
    if (!hasResult())
        return;
    const WhileSet running(running_);
    pasteSizes(design_.session(), outcome_.shown().sizes);
    say(State::result, "", pasted);
    pnlOptimalNote_.Caption = pasted;
    showButtons(true, false, false, true);
    cmdCheapest_.Visible = cmdOther_.Visible = false;
    primary_ = closeButton;
}

}  // namespace lorvane
