// The optimal design wizard.
#include "search/optimal_window.h"

#include <algorithm>
#include <utility>

#include "base/money.h"
#include "base/names.h"
#include "base/number_text.h"
#include "screen/spin.h"
#include "search/optimal_texts.h"

namespace lorvane {

namespace {

constexpr const char* wizardTitle = "  Optimal design wizard";
constexpr const char* modifyData = "Please modify data and try again.            ";
constexpr const char* setOptions = "Set options above, then click <Compute>";
constexpr const char* numbersAreShown = "Numbers are shown here. Click <Paste> to copy to the main screen.";
constexpr const char* noSolution =
    "The program has not been able to find a solution. Please save the study and send it to the makers of "
    "Lorvane, so that they can look into it.";
constexpr const char* outOfMemory = "Cannot compute because the cost has exceeded the computer's memory.";
constexpr const char* stopped = "The search was stopped. Click <Compute> to start it again.";
constexpr const char* pasted = "Click <Reset> to modify options or <Close> to close this panel";
constexpr int resetButton = 1, computeButton = 2, pasteButton = 3, closeButton = 4;
constexpr double smallestSize = 1;
constexpr double largestSize = 1000000;
constexpr int powerDecimals = 5;

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

class WhileRunning {
public:
    explicit WhileRunning(bool& running) : running_(running) { running_ = true; }
    ~WhileRunning() { running_ = false; }
    WhileRunning(const WhileRunning&) = delete;
    WhileRunning& operator=(const WhileRunning&) = delete;

private:
    bool& running_;
};

}  // namespace

OptimalWindow::OptimalWindow(Design& design, DistributionLibrary& library, Progress& progress)
    : design_(design), library_(library), progress_(progress) {
    pnlAdjustOuter_.Visible = false;
    pnlAdjustInnerTitle_.Caption = "Notes";
    for (const auto& [button, caption] : {std::pair{resetButton, "Reset"},
                                          {computeButton, "Compute"},
                                          {pasteButton, "Paste"},
                                          {closeButton, "Close"}})
        cmdOpt_(button).Caption = caption;
    DisplayOptimalOptions();
    design_.follow(RefreshFollower::optimal, [this] { ReDisplayOptimal(); });
}

void OptimalWindow::registerNames(ControlRegistry& registry) const {
    const std::pair<const char*, const Panel*> panels[] = {
        {"pnlFindPower", &pnlFindPower_},       {"pnlOptimalTitle", &pnlOptimalTitle_},
        {"pnlOptimalInner", &pnlOptimalInner_}, {"pnlOptimalCost", &pnlOptimalCost_},
        {"pnlOptimalNote", &pnlOptimalNote_},   {"pnlAdjustOuter", &pnlAdjustOuter_},
        {"pnlAdjustInner", &pnlAdjustInner_},   {"pnlAdjustInnerTitle", &pnlAdjustInnerTitle_}};
    for (const auto& [name, panel] : panels)
        registry.add(std::string("frmOptimal.") + name, *panel);
    for (int button = resetButton; button <= closeButton; ++button)
        registry.add(indexedName("frmOptimal.cmdOpt", button), cmdOpt_(button));
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        const LevelRow& row = rows_(level);
        const auto named = [&](const char* stem) {
            return indexedName(std::string("frmOptimal.") + stem, level);
        };
        registry.add(named("optPanelName"), row.optPanelName);
        registry.add(named("pnlRole"), row.pnlRole);
        registry.add(named("OptimalpnlNT"), row.OptimalpnlNT);
        registry.add(named("OptimalpnlNC"), row.OptimalpnlNC);
        registry.add(named("OptimalpnlNB"), row.OptimalpnlNB);
        if (level > highestFreeLevel)
            continue;
        registry.add(named("optAuto"), row.optAuto);
        registry.add(named("optManual"), row.optManual);
        registry.add(named("txtNumReps"), &row.txtNumReps);
        registry.add(named("OptimalspnNT") + ".Visible", &row.OptimalspnNT);
        registry.add(named("OptimalspnNC") + ".Visible", &row.OptimalspnNC);
        registry.add(named("OptimalspnNB") + ".Visible", &row.OptimalspnNB);
    }
    registry.addGrid("vsA", vsA_);
}

void OptimalWindow::registerEvents(EventRegistry& events) {
    events.onTool("gfrmOptimal", [this] { open(); });
    events.onTool("Find optimal n per cluster", [this] { openAndCompute(false); });
    events.onTool("Find M", [this] { openAndCompute(true); });
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

bool OptimalWindow::isOpen() const {
    return design_.windows().state(WindowId::frmOptimal) == WindowStates::open;
}

void OptimalWindow::open() {
    if (design_.study().result.xValid != 1) {
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
        row.txtNumReps = std::clamp(size, smallestSize, largestSize);
    }
    requiredPower_.reset();
}

double OptimalWindow::requiredPower() const { return requiredPower_.value_or(design_.study().ReqPower); }

void OptimalWindow::ReDisplayOptimal() {
    if (running_ || !isOpen())
        return;
    const Study& s = design_.study();
    pnlFindPower_.Caption = "Find the number of " + s.txtName(s.NumLevels) + " needed for power of " +
                            percentText(requiredPower()) + ", using the following settings";
    for (int level = lowestLevel; level <= highestLevel; ++level)
        writeRow(level);
    shown_ = false;
    pnlOptimalCost_.Caption.clear();
    pnlOptimalNote_.Caption.clear();
    pnlAdjustOuter_.Visible = false;
    vsA_.rows.clear();
    clearProblems();
    say("", setOptions);
    showButtons(true, true, false, true);
    primary_ = computeButton;
}

void OptimalWindow::writeRow(int level) {
    const Study& s = design_.study();
    LevelRow& row = rows_(level);
    row.Visible = level <= s.NumLevels;
    row.isTop = level == s.NumLevels;
    row.optPanelName.Caption = s.txtName(level);
    row.pnlRole.Caption = design_.screen().pnlLevel(level).Caption;
    const bool free = level < s.NumLevels;
    row.optAuto.Visible = row.optManual.Visible = free;
    row.optAuto.Enabled = row.optManual.Enabled = true;
    const bool manual = free && isManual(level);
    row.OptimalspnNT = row.OptimalspnNC = manual && !s.isBlocked(level);
    row.OptimalspnNB = manual && s.isBlocked(level);
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

void OptimalWindow::say(std::string title, std::string text) {
    pnlOptimalTitle_.Caption = std::move(title);
    pnlOptimalInner_.Caption = std::move(text);
}

void OptimalWindow::choose(int level, bool manual) {
    LevelRow& row = rows_(level);
    if (level >= design_.study().NumLevels || !row.optManual.Enabled)
        return;
    row.optManual.Value = manual;
    row.optAuto.Value = !manual;
    ReDisplayOptimal();
}

void OptimalWindow::setByHand(int level, double size) {
    rows_(level).txtNumReps = size;
    choose(level, true);
}

void OptimalWindow::writeNumber(int level, double size) {
    rows_(level).txtNumReps = roundHalfToEven(size);
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
    if (design_.study().result.xValid != 1) {
        say(wizardTitle, modifyData);
        return;
    }
    const WhileRunning running(running_);
    const OptimalOptions options = this->options();
    for (int level = lowestLevel; level <= highestLevel; ++level)
        writeRow(level);
    shown_ = false;
    showButtons(false, false, false, false);
    say("", setOptions);
    pnlOptimalInner_.Caption +=
        "                          Iterating (" + std::to_string(options.iterations) + " iterations) .";
    for (int level = lowestLevel; level <= highestFreeLevel; ++level)
        rows_(level).optAuto.Enabled = rows_(level).optManual.Enabled = !isManual(level);
    Dots dots(pnlOptimalInner_.Caption, progress_);
    result_ = searchOptimalDesign(design_.study(), library_, options, dots);
    if (result_.aTrialFailed)
        design_.ask(wizardTitle,
                    "The program has encountered a problem in trying to find the optimal design.");
    // The refresh takes some of the flags back that tell why the search cannot run.
    const std::vector<ReadinessProblem> problems = readinessProblems(design_.study());
    refreshUnchanged();
    for (int level = lowestLevel; level <= highestLevel; ++level)
        writeRow(level);
    show(options, problems);
}

// The study is as it was before the run, also as far as the disk is concerned.
void OptimalWindow::refreshUnchanged() {
    const bool asSaved = design_.isAsSaved();
    design_.DoRefresh(true);
    if (asSaved)
        design_.noteAsSaved();
}

void OptimalWindow::show(const OptimalOptions& options, const std::vector<ReadinessProblem>& problems) {
    switch (result_.ending) {
    case OptimalEnding::found:
        showFound(options);
        break;
    case OptimalEnding::notReady:
        showNotReady(problems);
        break;
    case OptimalEnding::noSolution:
        pnlOptimalCost_.Caption = "Solution not found. ";
        showWithout("", noSolution);
        break;
    case OptimalEnding::costOverflow:
        showWithout("", outOfMemory);
        break;
    case OptimalEnding::stopped:
        showWithout("", stopped);
        break;
    }
}

void OptimalWindow::showWithout(std::string title, std::string text) {
    say(std::move(title), std::move(text));
    showButtons(true, true, false, true);
    primary_ = computeButton;
}

// All failing fields are marked; the last reason is the one that is read.
void OptimalWindow::showNotReady(const std::vector<ReadinessProblem>& problems) {
    for (const ReadinessProblem& problem : problems)
        mark(design_, problem);
    if (problems.empty())
        showWithout(wizardTitle, modifyData);
    else
        showWithout(problems.back().title, problems.back().text);
}

void OptimalWindow::showFound(const OptimalOptions& options) {
    const Currency& currency = design_.settings().currency;
    const std::vector<std::string> notes = optimalNotes(design_.study(), result_, options, currency);
    shown_ = true;
    showSizes();
    showTrials();
    costFigure_ = optimalCostText(result_, currency);
    pnlOptimalCost_.Caption = "Cost = " + costFigure_;
    pnlOptimalNote_.Caption = numbersAreShown;
    std::vector<std::string> paragraphs = {pnlOptimalCost_.Caption, numbersAreShown};
    paragraphs.insert(paragraphs.end(), notes.begin(), notes.end());
    say("", joined(paragraphs, "\n"));
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
            rows_(level).txtNumReps = std::min(sizes(level), largestSize);
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

void OptimalWindow::paste() {
    if (!shown_)
        return;
    const WhileRunning running(running_);
    Study& s = design_.study();
    const LevelSizes& sizes = result_.cheapest().sizes;
    for (int level = lowestLevel; level <= s.NumLevels; ++level)
        s.txtNT(level) = s.txtNC(level) = s.txtNB(level) = sizes(level);
    design_.DoRefresh(true);
    say("", pasted);
    pnlOptimalNote_.Caption = pasted;
    showButtons(true, false, false, true);
    primary_ = closeButton;
}

}  // namespace lorvane
