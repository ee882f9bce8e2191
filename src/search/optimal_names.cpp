// The optimal design wizard by its names: what can be read of it, and what can be done with it.
#include <string>
#include <utility>

#include "base/names.h"
#include "search/optimal_window.h"

namespace lorvane {

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
                                                           {"lblPlotBest", &lblPlotBest_},
                                                           {"lblPlotShown", &lblPlotShown_},
                                                           {"lblPlotProven", &lblPlotProven_},
                                                           {"pnlOther", &pnlOther_}};
    for (const auto& [name, panel] : panels)
        registry.add(std::string("frmOptimal.") + name, *panel);
    question_.registerNames(registry);
    registry.add("frmOptimal.State", [this]() -> ControlValue { return static_cast<double>(state_); });
    for (int button = resetButton; button <= closeButton; ++button)
        registry.add(indexedName("frmOptimal.cmdOpt", button), cmdOpt_(button));
    const std::pair<const char*, const Button*> buttons[] = {
        {"cmdCheapest", &cmdCheapest_}, {"cmdOther", &cmdOther_}, {"cmdNotes", &cmdNotes_}};
    for (const auto& [name, button] : buttons)
        registry.add(std::string("frmOptimal.") + name, *button);
    for (int level = lowestLevel; level <= highestLevel; ++level)
        registerRowNames(registry, level);
    registry.addGrid("vsA", outcome_.vsA());
    registry.addGrid("frmOptimal.vsTrials", outcome_.vsTrials());
}

void OptimalWindow::registerRowNames(ControlRegistry& registry, int level) const {
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
        return;
    registry.add(named("optAuto"), row.optAuto);
    registry.add(named("optManual"), row.optManual);
    registry.add(named("txtNumReps"), &row.txtNumReps);
    registry.add(named("txtNumReps") + ".Text", &row.size.Text);
    registry.add(named("txtNumReps") + ".Visible", &row.size.Visible);
    registry.add(named("OptimalspnNT") + ".Visible", &row.OptimalspnNT);
    registry.add(named("OptimalspnNC") + ".Visible", &row.OptimalspnNC);
    registry.add(named("OptimalspnNB") + ".Visible", &row.OptimalspnNB);
}

void OptimalWindow::registerEvents(EventRegistry& events) {
    for (int level = lowestLevel; level <= highestFreeLevel; ++level)
        registerRow(events, level);
    registerQuestion(events);
    registerButtons(events);
}

// A click into a field asks its question, too.
void OptimalWindow::registerQuestion(EventRegistry& events) {
    using Question = OptimalQuestion;
    using enum OptimalGoal;
    const std::string power = "frmOptimal.txtReqPower", budget = "frmOptimal.txtBudget";
    const std::pair<std::string, OptimalGoal> asking[] = {{"frmOptimal.optGoal(1)", cheapest},
                                                          {"frmOptimal.optGoal(2)", mostPower},
                                                          {power, cheapest},
                                                          {budget, mostPower}};
    for (const auto& [name, goal] : asking)
        events.onClick(name, [this, goal = goal] {
            changeQuestion([goal](Question& question) { return question.ask(goal); });
        });
    const std::pair<const char*, bool (Question::*)(int)> arrows[] = {
        {"frmOptimal.spnReqPower", &Question::spinPower}, {"frmOptimal.spnBudget", &Question::spinBudget}};
    for (const auto& [name, spin] : arrows)
        events.onSpin(name, [this, spin = spin](int direction) {
            changeQuestion([&](Question& question) { return (question.*spin)(direction); });
        });
    events.addTextBox(power, question_.field(cheapest));
    events.onTyped(power, [this] { changeQuestion(&Question::takePower); });
    events.addTextBox(budget, question_.field(mostPower));
    events.onTyped(budget, [this] { changeQuestion(&Question::takeBudget); });
    events.addNumber(budget,
                     {Question::leastBudget, Question::largestBudget, [this](double amount) {
                          changeQuestion([&](Question& question) { return question.setBudget(amount); });
                      }});
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
            if (isOpen() && cmdOpt_(button).Visible && cmdOpt_(button).Enabled)
                (this->*press)();
        });
    };
    onButton(resetButton, &OptimalWindow::ReDisplayOptimal);
    onButton(pasteButton, &OptimalWindow::paste);
    onButton(closeButton, &OptimalWindow::close);
    events.onClick(indexedName("frmOptimal.cmdOpt", computeButton), [this] { pressCompute(); });
    events.onClose("frmOptimal", [this] { close(); });
    registerOffers(events);
}

// What is not on offer cannot be looked at.
void OptimalWindow::registerOffers(EventRegistry& events) {
    events.onClick("frmOptimal.cmdCheapest", [this] { lookAt(&OptimalOutcome::showBest); });
    events.onClick("frmOptimal.cmdOther", [this] {
        if (outcome_.other())
            lookAt(&OptimalOutcome::showOther);
    });
    events.addGrid("frmOptimal.vsTrials", outcome_.vsTrials());
    events.onSelect("frmOptimal.vsTrials", [this] { lookAt(&OptimalOutcome::showSelected); });
    events.onClick("frmOptimal.cmdNotes", [this] { pnlAdjustOuter_.Visible = cmdNotes_.Visible; });
    events.onClick("frmOptimal.cmdAdjustClose", [this] { pnlAdjustOuter_.Visible = false; });
}

}  // namespace lorvane
