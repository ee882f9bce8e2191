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

constexpr const char* setOptions = "Set options above, then click <Compute>";
constexpr const char* numbersAreShown = "Numbers are shown here. Click <Paste> to copy to the main screen.";
constexpr const char* pasteCheapest = "Paste";
constexpr const char* pasted = "Click <Reset> to modify options or <Close> to close this panel";

std::string joined(const std::vector<std::string>& paragraphs, const char* between) {
    std::string text;
    for (const std::string& paragraph : paragraphs)
        text += (text.empty() ? "" : between) + paragraph;
    return text;
}

OptimalWindow::State stateAfter(OptimalEnding ending) {
    switch (ending) {
    case OptimalEnding::found:
        return OptimalWindow::State::result;
    case OptimalEnding::notReady:
    case OptimalEnding::noSolution:
        return OptimalWindow::State::problem;
    case OptimalEnding::costOverflow:
    case OptimalEnding::stopped:
        break;
    }
    return OptimalWindow::State::message;
}

// Adds a dot to the running text at every look of the search.
class Dots final : public Progress {
public:
    Dots(std::string& text, Progress& progress) : text_(text), progress_(progress) {}
    bool goOn() override {
        text_ += ".";
        return progress_.goOn();
    }

private:
    std::string& text_;
    Progress& progress_;
};

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
    cmdOpt_(pasteButton).Caption = pasteCheapest;
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

void OptimalWindow::ComputeOptimalDesign() {
    if (!design_.study().result.xValid) {
        say(State::problem, wizardTitle, modifyData);
        return;
    }
    const WhileSet running(running_);
    const OptimalOptions options = this->options();
    for (int level = lowestLevel; level <= highestLevel; ++level)
        writeRow(level);
    forgetResult();
    showButtons(false, false, false, false);
    say(State::message, "", setOptions);
    pnlOptimalInner_.Caption +=
        "                          Iterating (" + std::to_string(options.iterations) + " iterations) .";
    for (int level = lowestLevel; level <= highestFreeLevel; ++level)
        rows_(level).optAuto.Enabled = rows_(level).optManual.Enabled = !isManual(level);
    Dots dots(pnlOptimalInner_.Caption, progress_);
    Session& session = design_.session();
    OptimalResult result = searchOptimalDesign(session.trial(), options, dots);
    session.keepSearchOutcome(result.flags);
    if (result.aTrialFailed)
        design_.ask(wizardTitle,
                    "The program has encountered a problem in trying to find the optimal design.");
    // The refresh takes some of the flags back that tell why the search cannot run.
    const std::vector<ReadinessProblem> problems = readinessProblems(design_.study());
    session.refresh();
    for (int level = lowestLevel; level <= highestLevel; ++level)
        writeRow(level);
    if (result.ending == OptimalEnding::found)
        showFound(std::move(result), options);
    else
        showNone(result, problems);
}

void OptimalWindow::showNone(const OptimalResult& result, const std::vector<ReadinessProblem>& problems) {
    if (result.ending == OptimalEnding::notReady) {
        for (const ReadinessProblem& problem : problems)
            markProblem(design_, problem);
    }
    const OptimalFailure failure = optimalFailure(design_.study(), result, problems);
    say(stateAfter(result.ending), failure.title, failure.text);
    if (result.ending == OptimalEnding::noSolution) {
        pnlOptimalCost_.Caption = "Solution not found. ";
        pnlProblem_.Caption = trimmed(pnlOptimalCost_.Caption);
    }
    showButtons(true, true, false, true);
    primary_ = computeButton;
}

void OptimalWindow::showFound(OptimalResult result, const OptimalOptions& options) {
    const Study& s = design_.study();
    outcome_.take(std::move(result), s, options, design_.settings().currency);
    const std::string units = inSentence(outcome_.vsTrials().rows.front().front());
    lblPlotSize_.Caption = "Number of " + units + (s.isBlocked(s.NumLevels) ? "" : " per group");
    if (outcome_.other())
        pnlOther_.Caption = outcome_.other()->words;
    const std::size_t notes = outcome_.notes().size();
    cmdNotes_.Caption = "Notes (" + std::to_string(notes) + ")";
    pnlAdjustInner_.Caption = joined(outcome_.notes(), "\n\n");
    pnlAdjustOuter_.Visible = notes > 0;
    showDesign();
}

// What is looked at is on offer, and the way to the other ones.
void OptimalWindow::showDesign() {
    const bool cheapest = outcome_.showsCheapest();
    pnlCostNumber_.Caption = outcome_.costText();
    pnlOptimalCost_.Caption = pnlCostWords_.Caption + pnlCostNumber_.Caption;
    pnlOptimalNote_.Caption = cheapest ? numbersAreShown : outcome_.words();
    cmdCheapest_.Visible = !cheapest;
    pnlOther_.Visible = outcome_.other().has_value();
    cmdOther_.Visible = pnlOther_.Visible && !outcome_.showsOther();
    cmdNotes_.Visible = !outcome_.notes().empty();
    lblPlotShown_.Visible = !cheapest && !outcome_.showsOther();
    std::vector<std::string> paragraphs = {pnlOptimalCost_.Caption, pnlOptimalNote_.Caption};
    paragraphs.insert(paragraphs.end(), outcome_.notes().begin(), outcome_.notes().end());
    showSizes();
    say(State::result, "", joined(paragraphs, "\n"));
    showButtons(true, true, true, true);
    Button& paste = cmdOpt_(pasteButton);
    paste.Caption = cheapest                ? pasteCheapest
                    : outcome_.showsOther() ? "Paste this design"
                                            : "Paste this trial";
    paste.Enabled = outcome_.shown().valid;
    primary_ = paste.Enabled ? pasteButton : closeButton;
}

void OptimalWindow::lookAt(void (OptimalOutcome::*design)()) {
    if (!hasResult())
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
