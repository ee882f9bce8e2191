// The optimal design wizard.
#include "search/optimal_window.h"

#include <algorithm>
#include <utility>

#include "base/money.h"
#include "base/names.h"
#include "base/number_text.h"
#include "base/while_set.h"
#include "search/optimal_texts.h"
#include "session/field_words.h"
#include "session/spin_step.h"
#include "session/structure.h"

namespace lorvane {

namespace {

constexpr const char* setOptions = "Set options above, then click <Compute>";
constexpr const char* numbersAreShown = "Numbers are shown here. Click <Paste> to copy to the main screen.";
constexpr const char* pasted = "Click <Reset> to modify options or <Close> to close this panel";
constexpr int resetButton = 1, computeButton = 2, pasteButton = 3, closeButton = 4;
constexpr double smallestSize = 1;
constexpr double largestSize = 1000000;
constexpr int powerDecimals = 5;
constexpr int shownPowerDecimals = 4;

// Number of the outline and the cells of every field that a reason marks, from the lowest level that has it.
struct MarkedField {
    std::string_view field;
    int outline;
    int lowestLevel;
    bool blockedOnly;
};
constexpr MarkedField markedFields[] = {{"pnlModel", 2, 1, false},
                                        {"pnlICC", 3, 2, false},
                                        {"pnlTauSq", 4, 2, true},
                                        {"pnlCostT", 5, 1, false},
                                        {"pnlQ", 6, 1, false}};
constexpr const char* effectField = "pnlEffectSize";
constexpr int effectOutline = 7;

std::string percentText(double power) { return shortestText(roundHalfToEven(power * 100 * 100) / 100) + "%"; }

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

void mark(Design& design, const ReadinessProblem& problem) {
    const Study& s = design.study();
    for (const char* field : problem.fields) {
        if (std::string_view(field) == effectField)
            design.outline(effectOutline, effectField, effectField);
        for (const MarkedField& marked : markedFields) {
            if (marked.field != field)
                continue;
            const int lowest = marked.blockedOnly ? s.RandomizedLevel + 1 : marked.lowestLevel;
            design.outline(marked.outline, indexedName(field, s.NumLevels),
                           indexedName(problem.fields.back(), lowest));
        }
    }
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

OptimalWindow::OptimalWindow(Design& design, Progress& progress) : design_(design), progress_(progress) {
    pnlAdjustOuter_.Visible = false;
    pnlAdjustInnerTitle_.Caption = "Notes";
    for (const auto& [button, caption] : {std::pair{resetButton, "Reset"},
                                          {computeButton, "Compute"},
                                          {pasteButton, "Paste"},
                                          {closeButton, "Close"}})
        cmdOpt_(button).Caption = caption;
    writeHeads();
    DisplayOptimalOptions();
}

void OptimalWindow::registerNames(ControlRegistry& registry) const {
    const std::pair<const char*, const Panel*> panels[] = {{"pnlFindPower", &pnlFindPower_},
                                                           {"pnlOptimalTitle", &pnlOptimalTitle_},
                                                           {"pnlOptimalInner", &pnlOptimalInner_},
                                                           {"pnlOptimalCost", &pnlOptimalCost_},
                                                           {"pnlOptimalNote", &pnlOptimalNote_},
                                                           {"pnlAdjustOuter", &pnlAdjustOuter_},
                                                           {"pnlAdjustInner", &pnlAdjustInner_},
                                                           {"pnlAdjustInnerTitle", &pnlAdjustInnerTitle_},
                                                           {"pnlProblem", &pnlProblem_},
                                                           {"pnlCostWords", &pnlCostWords_},
                                                           {"pnlCostNumber", &pnlCostNumber_},
                                                           {"lblLevel", &lblLevel_},
                                                           {"lblGroup(1)", &lblGroup_(1)},
                                                           {"lblGroup(2)", &lblGroup_(2)},
                                                           {"lblPlot", &lblPlot_},
                                                           {"lblPlotSize", &lblPlotSize_},
                                                           {"lblPlotBest", &lblPlotBest_}};
    for (const auto& [name, panel] : panels)
        registry.add(std::string("frmOptimal.") + name, *panel);
    registry.add("frmOptimal.State", [this]() -> ControlValue { return static_cast<double>(state_); });
    for (int button = resetButton; button <= closeButton; ++button)
        registry.add(indexedName("frmOptimal.cmdOpt", button), cmdOpt_(button));
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        const LevelRow& row = rows_(level);
        const auto named = [&](const char* stem) {
            return indexedName(std::string("frmOptimal.") + stem, level);
        };
        registry.add(named("optPanelName"), row.optPanelName);
        registry.add(named("pnlRole"), row.pnlRole);
        registry.add(named("pnlSearched"), row.pnlSearched);
        registry.add(named("OptimalpnlNT"), row.OptimalpnlNT);
        registry.add(named("OptimalpnlNC"), row.OptimalpnlNC);
        registry.add(named("OptimalpnlNB"), row.OptimalpnlNB);
        if (level > highestFreeLevel)
            continue;
        registry.add(named("optAuto"), row.optAuto);
        registry.add(named("optManual"), row.optManual);
        registry.add(named("txtNumReps"), &row.txtNumReps);
        registry.add(named("txtNumReps") + ".Text", &row.size.Text);
        registry.add(named("txtNumReps") + ".Visible", &row.size.Visible);
        registry.add(named("OptimalspnNT") + ".Visible", &row.OptimalspnNT);
        registry.add(named("OptimalspnNC") + ".Visible", &row.OptimalspnNC);
        registry.add(named("OptimalspnNB") + ".Visible", &row.OptimalspnNB);
    }
    registry.addGrid("vsA", vsA_);
    registry.addGrid("frmOptimal.vsTrials", vsTrials_);
}

void OptimalWindow::registerEvents(EventRegistry& events) {
    for (int level = lowestLevel; level <= highestFreeLevel; ++level)
        registerRow(events, level);
    registerButtons(events);
}

void OptimalWindow::registerRow(EventRegistry& events, int level) {
    const auto named = [&](const char* stem) {
        return indexedName(std::string("frmOptimal.") + stem, level);
    };
    events.onClick(named("optAuto"), [this, level] { choose(level, false); });
    events.onClick(named("optManual"), [this, level] { choose(level, true); });
    for (const char* stem : {"OptimalspnNT", "OptimalspnNC", "OptimalspnNB"})
        events.onSpin(named(stem), [this, level](int direction) { spin(level, direction); });
    events.addNumber(named("txtNumReps"),
                     {smallestSize, largestSize, [this, level](double size) { writeNumber(level, size); }});
}

// A button that is not shown does nothing.
void OptimalWindow::registerButtons(EventRegistry& events) {
    const auto onButton = [&](int button, void (OptimalWindow::*press)()) {
        events.onClick(indexedName("frmOptimal.cmdOpt", button), [this, button, press] {
            if (isOpen() && cmdOpt_(button).Visible)
                (this->*press)();
        });
    };
    onButton(resetButton, &OptimalWindow::ReDisplayOptimal);
    onButton(pasteButton, &OptimalWindow::paste);
    onButton(closeButton, &OptimalWindow::close);
    events.onClick(indexedName("frmOptimal.cmdOpt", computeButton), [this] { pressCompute(); });
    events.onClose("frmOptimal", [this] { close(); });
    events.onClick("frmOptimal.cmdAdjustClose", [this] { pnlAdjustOuter_.Visible = false; });
}

bool OptimalWindow::isOpen() const { return design_.isOpen(WindowId::frmOptimal); }

// Open, or away for a message or with the study before, so that it can come back without its command.
bool OptimalWindow::canBeSeen() const {
    return isOpen() || design_.windows().state(WindowId::frmOptimal) == WindowStates::withdrawn;
}

// An edit takes the result away, also of a wizard that makes way: it must not be pasted onto another study.
void OptimalWindow::follow(const Changed& changed) {
    writeHeads();
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
    requiredPower_.reset();
}

void OptimalWindow::setSize(int level, double size) {
    rows_(level).txtNumReps = size;
    rows_(level).size.Text = shortestText(size);
}

void OptimalWindow::writeHeads() {
    for (int group = 1; group <= lblGroup_.last; ++group)
        lblGroup_(group).Caption = design_.study().txtGroupName(group);
}

double OptimalWindow::requiredPower() const { return requiredPower_.value_or(design_.study().ReqPower); }

void OptimalWindow::ReDisplayOptimal() {
    if (running_ || !canBeSeen())
        return;
    const Study& s = design_.study();
    pnlFindPower_.Caption = "Find the number of " + s.txtName(s.NumLevels) + " needed for power of " +
                            percentText(requiredPower()) + ", using the following settings";
    for (int level = lowestLevel; level <= highestLevel; ++level)
        writeRow(level);
    forgetResult();
    clearProblems();
    say(State::message, "", setOptions);
    showButtons(true, true, false, true);
    primary_ = computeButton;
}

void OptimalWindow::forgetResult() {
    for (Panel* panel : {&pnlOptimalCost_, &pnlCostNumber_, &pnlOptimalNote_})
        panel->Caption.clear();
    pnlAdjustOuter_.Visible = false;
    vsA_.rows.clear();
    vsTrials_.rows.clear();
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

// The computation marks its own problems under the same numbers.
void OptimalWindow::clearProblems() {
    for (const MarkedField& marked : markedFields) {
        if (splitName(design_.screen().outlines(marked.outline).from).stem == marked.field)
            design_.clearOutline(marked.outline);
    }
    design_.clearOutline(effectOutline);
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
    for (int level = lowestLevel; level <= highestFreeLevel; ++level) {
        options.manual(level) = level < design_.study().NumLevels && isManual(level);
        options.numReps(level) = rows_(level).txtNumReps;
    }
    options.iterations = design_.settings().IterationsForOptimal;
    options.power = requiredPower();
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
    result_ = searchOptimalDesign(session.trial(), options, dots);
    session.keepSearchOutcome(result_.flags);
    if (result_.aTrialFailed)
        design_.ask(wizardTitle,
                    "The program has encountered a problem in trying to find the optimal design.");
    // The refresh takes some of the flags back that tell why the search cannot run.
    const std::vector<ReadinessProblem> problems = readinessProblems(design_.study());
    session.refresh();
    for (int level = lowestLevel; level <= highestLevel; ++level)
        writeRow(level);
    show(options, problems);
}

void OptimalWindow::show(const OptimalOptions& options, const std::vector<ReadinessProblem>& problems) {
    if (result_.ending == OptimalEnding::found)
        showFound(options);
    else
        showNone(problems);
}

void OptimalWindow::showNone(const std::vector<ReadinessProblem>& problems) {
    if (result_.ending == OptimalEnding::notReady) {
        for (const ReadinessProblem& problem : problems)
            mark(design_, problem);
    }
    const OptimalFailure failure = optimalFailure(design_.study(), result_, problems);
    say(stateAfter(result_.ending), failure.title, failure.text);
    if (result_.ending == OptimalEnding::noSolution) {
        pnlOptimalCost_.Caption = "Solution not found. ";
        pnlProblem_.Caption = trimmed(pnlOptimalCost_.Caption);
    }
    showButtons(true, true, false, true);
    primary_ = computeButton;
}

void OptimalWindow::showFound(const OptimalOptions& options) {
    const Currency& currency = design_.settings().currency;
    const std::vector<std::string> notes = optimalNotes(design_.study(), result_, options, currency);
    showSizes();
    showTrials();
    showTable();
    pnlCostNumber_.Caption = optimalCostText(result_, currency);
    pnlOptimalCost_.Caption = pnlCostWords_.Caption + pnlCostNumber_.Caption;
    pnlOptimalNote_.Caption = numbersAreShown;
    std::vector<std::string> paragraphs = {pnlOptimalCost_.Caption, numbersAreShown};
    paragraphs.insert(paragraphs.end(), notes.begin(), notes.end());
    say(stateAfter(result_.ending), "", joined(paragraphs, "\n"));
    pnlAdjustInner_.Caption = joined(notes, "\n\n");
    pnlAdjustOuter_.Visible = !notes.empty();
    showButtons(true, true, true, true);
    primary_ = pasteButton;
}

// A size that was found is where one set by hand starts from.
void OptimalWindow::showSizes() {
    const LevelSizes& sizes = result_.cheapest().sizes;
    for (int level = lowestLevel; level <= design_.study().NumLevels; ++level) {
        const std::string size = shortestText(sizes(level));
        writeCells(level, size, size);
        if (!isManual(level))
            setSize(level, std::min(sizes(level), largestSize));
    }
}

void OptimalWindow::showTrials() {
    const Study& s = design_.study();
    vsA_.rows = {{""}};
    for (int level = s.NumLevels; level >= lowestLevel; --level)
        vsA_.rows.push_back({"Level " + std::to_string(level)});
    vsA_.rows.push_back({"Cost"});
    vsA_.rows.push_back({"Power"});
    for (std::size_t i = 0; i < result_.trials.size(); ++i) {
        const Trial& trial = result_.trials[i];
        auto row = vsA_.rows.begin();
        row++->push_back(std::to_string(i + 1));
        for (int level = s.NumLevels; level >= lowestLevel; --level)
            row++->push_back(shortestText(trial.sizes(level)));
        row++->push_back(std::to_string(trial.cost));
        row++->push_back(fixedText(trial.power, powerDecimals));
    }
}

// The trials for people to read, in a table and in words beside their plot.
void OptimalWindow::showTable() {
    const Study& s = design_.study();
    Grid::Row heads;
    for (int level = s.NumLevels; level >= lowestLevel; --level)
        heads.emplace_back(trimmed(s.txtName(level)));
    const std::string units = inSentence(heads.front());
    lblPlotSize_.Caption = "Number of " + units + (s.isBlocked(s.NumLevels) ? "" : " per group");
    heads.insert(heads.end(), {"Cost", "Power"});
    vsTrials_.rows = {std::move(heads)};
    for (const Trial& trial : result_.trials) {
        Grid::Row& row = vsTrials_.rows.emplace_back();
        for (int level = s.NumLevels; level >= lowestLevel; --level)
            row.push_back(shortestText(trial.sizes(level)));
        row.push_back(groupedText(trial.cost));
        row.push_back(fixedText(trial.power, shownPowerDecimals));
    }
}

void OptimalWindow::paste() {
    if (!hasResult())
        return;
    const WhileSet running(running_);
    pasteSizes(design_.session(), result_.cheapest().sizes);
    say(State::result, "", pasted);
    pnlOptimalNote_.Caption = pasted;
    showButtons(true, false, false, true);
    primary_ = closeButton;
}

}  // namespace lorvane
