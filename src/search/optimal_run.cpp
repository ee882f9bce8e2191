// The run of the wizard: the search for the question that is asked, and what it shows of the answer.
#include <utility>

#include "base/arithmetic_fault.h"
#include "base/number_text.h"
#include "base/while_set.h"
#include "platform/time_limit.h"
#include "search/optimal_marks.h"
#include "search/optimal_proof.h"
#include "search/optimal_window.h"
#include "search/proof_texts.h"
#include "session/field_words.h"

namespace lorvane {

namespace {

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
    case OptimalEnding::budgetTooLow:
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

// Writes how much is settled.
class Looking final : public Progress {
public:
    Looking(std::string& text, OptimalGoal goal, Progress& progress)
        : text_(text), goal_(goal), progress_(progress) {
        tell(0);
    }
    bool goOn() override { return progress_.goOn(); }
    void tell(double share) override { text_ = lookingWords(goal_, share); }

private:
    std::string& text_;
    OptimalGoal goal_;
    Progress& progress_;
};

// What the figures of a question are called.
struct FigureWords {
    const char* figure;
    const char* plot;
    const char* best;
    const char* backToBest;
};
constexpr FigureWords wordsOfCost{"Cost = ", "Cost of each trial", "cheapest", "Cheapest"};
constexpr FigureWords wordsOfPower{"Power = ", "Power of each trial", "most power", "Most power"};

}  // namespace

// A fault on the way leaves the wizard as it was before the run.
void OptimalWindow::ComputeOptimalDesign() {
    if (!design_.study().result.xValid) {
        say(State::problem, wizardTitle, modifyData);
        return;
    }
    try {
        const WhileSet running(running_);
        compute(options());
    } catch (const ArithmeticFault&) {
        ReDisplayOptimal();
        throw;
    }
}

void OptimalWindow::compute(const OptimalOptions& options) {
    for (int level = lowestLevel; level <= highestLevel; ++level)
        writeRow(level);
    forgetResult();
    showButtons(false, false, false, false);
    say(State::message, "", setOptions);
    for (int level = lowestLevel; level <= highestFreeLevel; ++level)
        rows_(level).optAuto.Enabled = rows_(level).optManual.Enabled = !isManual(level);
    if (options.goal == OptimalGoal::mostPower)
        computeMostPower(options);
    else
        computeCheapest(options);
}

void OptimalWindow::computeCheapest(const OptimalOptions& options) {
    pnlOptimalInner_.Caption +=
        "                          Iterating (" + std::to_string(options.iterations) + " iterations) .";
    Dots dots(pnlOptimalInner_.Caption, progress_);
    OptimalResult result = searchOptimalDesign(design_.session().trial(), options, dots);
    if (result.aTrialFailed)
        design_.ask(wizardTitle,
                    "The program has encountered a problem in trying to find the optimal design.");
    if (!endSearch(result))
        return;
    takeResult(result, options);
    prove(result, options);
    takeResult(std::move(result), options);
    offerNotes();
}

void OptimalWindow::computeMostPower(const OptimalOptions& options) {
    Looking looking(pnlOptimalInner_.Caption, options.goal, progress_);
    const Session& session = design_.session();
    TimeLimit limit(looking, session.clock(), longestProof);
    OptimalResult result = searchMostPower(session.trial(), options, limit);
    if (!endSearch(result))
        return;
    takeResult(std::move(result), options);
    offerNotes();
}

// The result stands while the proof goes on; nothing can be done with it before its end.
void OptimalWindow::prove(OptimalResult& result, const OptimalOptions& options) {
    showButtons(false, false, false, false);
    cmdNotes_.Visible = false;
    pnlOther_.Visible = true;
    Looking looking(pnlOther_.Caption, options.goal, progress_);
    const Session& session = design_.session();
    TimeLimit limit(looking, session.clock(), longestProof);
    proveCheapest(session.trial(), options, limit, result);
}

// Shows why there is no answer, or returns true. The refresh takes some of the flags back that tell why a
// search cannot run.
bool OptimalWindow::endSearch(const OptimalResult& result) {
    Session& session = design_.session();
    session.keepSearchOutcome(result.flags);
    const std::vector<ReadinessProblem> problems = readinessProblems(design_.study());
    session.refresh();
    for (int level = lowestLevel; level <= highestLevel; ++level)
        writeRow(level);
    if (result.ending != OptimalEnding::found)
        showNone(result, problems);
    return result.ending == OptimalEnding::found;
}

void OptimalWindow::showNone(const OptimalResult& result, const std::vector<ReadinessProblem>& problems) {
    if (result.ending == OptimalEnding::notReady) {
        for (const ReadinessProblem& problem : problems)
            markProblem(design_, problem);
    }
    const OptimalFailure failure =
        optimalFailure(design_.study(), result, problems, design_.settings().currency);
    say(stateAfter(result.ending), failure.title, failure.text);
    if (result.ending == OptimalEnding::noSolution) {
        pnlOptimalCost_.Caption = "Solution not found. ";
        pnlProblem_.Caption = trimmed(pnlOptimalCost_.Caption);
    }
    showButtons(true, true, false, true);
    primary_ = computeButton;
}

void OptimalWindow::takeResult(OptimalResult result, const OptimalOptions& options) {
    const Study& s = design_.study();
    const FigureWords& words = options.goal == OptimalGoal::mostPower ? wordsOfPower : wordsOfCost;
    pnlCostWords_.Caption = words.figure;
    lblPlot_.Caption = words.plot;
    lblPlotBest_.Caption = words.best;
    cmdCheapest_.Caption = words.backToBest;
    outcome_.take(std::move(result), s, options, design_.settings().currency);
    lblPlotProven_.Caption = outcome_.isProven() ? "optimum" : "cheaper";
    lblPlotProven_.Visible = outcome_.other().has_value();
    const std::string units = inSentence(outcome_.vsTrials().rows.front().front());
    lblPlotSize_.Caption = "Number of " + units + (s.isBlocked(s.NumLevels) ? "" : " per group");
    pnlOther_.Caption = outcome_.proof();
    cmdNotes_.Caption = "Notes (" + std::to_string(outcome_.notes().size()) + ")";
    pnlAdjustInner_.Caption = joined(outcome_.notes(), "\n\n");
    showDesign();
}

// The card tells of the other design already.
void OptimalWindow::offerNotes() {
    const std::size_t toldElsewhere = outcome_.otherNote() ? 1 : 0;
    pnlAdjustOuter_.Visible = outcome_.notes().size() > toldElsewhere;
}

// What is looked at is on offer, and the way to the other ones.
void OptimalWindow::showDesign() {
    const bool best = outcome_.showsBest();
    pnlCostNumber_.Caption = outcome_.figure();
    pnlOptimalCost_.Caption = pnlCostWords_.Caption + pnlCostNumber_.Caption;
    pnlOptimalNote_.Caption = outcome_.words();
    cmdCheapest_.Visible = !best;
    pnlOther_.Visible = !pnlOther_.Caption.empty();
    cmdOther_.Visible = outcome_.other().has_value() && !outcome_.showsOther();
    cmdNotes_.Visible = !outcome_.notes().empty();
    lblPlotShown_.Visible = !best;
    std::vector<std::string> paragraphs = {pnlOptimalCost_.Caption, pnlOptimalNote_.Caption};
    paragraphs.insert(paragraphs.end(), outcome_.notes().begin(), outcome_.notes().end());
    showSizes();
    say(State::result, "", joined(paragraphs, "\n"));
    showButtons(true, true, true, true);
    Button& paste = cmdOpt_(pasteButton);
    paste.Caption = best ? pasteBest : outcome_.showsOther() ? "Paste this design" : "Paste this trial";
    paste.Enabled = outcome_.shown().valid;
    primary_ = paste.Enabled ? pasteButton : closeButton;
}

}  // namespace lorvane
