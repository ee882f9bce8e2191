// The graph screen.
#include "graphs/graph_screen.h"

#include <cmath>
#include <utility>

#include "base/letter_case.h"
#include "base/money.h"
#include "base/names.h"
#include "base/number_text.h"
#include "base/use_problem.h"
#include "base/while_set.h"
#include "graphs/graph_rules.h"
#include "graphs/graph_sheet.h"
#include "session/field_book.h"
#include "validation/icc_messages.h"

namespace lorvane {

namespace {

constexpr const char* createGraph = "  Create graph";
constexpr double noEffect = 0.0001;

// The field of the effect in the study's metric, and the value without any effect; a risk ratio and two
// risks have none to look at.
struct TestedEffect {
    GraphFields field;
    double none;
};

std::optional<TestedEffect> testedEffect(const Study& s) {
    if (s.isMeans())
        return TestedEffect{GraphFields::d, 0};
    if (s.BinaryType == BinaryTypes::oddsRatio)
        return TestedEffect{GraphFields::OR, 1};
    if (s.BinaryType == BinaryTypes::riskDifference)
        return TestedEffect{GraphFields::RD, 0};
    return std::nullopt;
}

bool isWhole(double value) { return value == roundHalfToEven(value); }

}  // namespace

// Tells how far a computation is, in the status line.
class GraphScreen::Teller final : public Progress {
public:
    Teller(std::string& text, Progress& progress) : text_(text), before_(text), progress_(progress) {}
    ~Teller() override { text_ = before_; }

    bool goOn() override {
        text_ = "Point " + std::to_string(++point_) + " of the graph is computed. Esc stops.";
        return progress_.goOn();
    }

private:
    std::string& text_;
    const std::string before_;
    Progress& progress_;
    int point_ = 0;
};

GraphScreen::GraphScreen(Design& design, const GraphOutside& outside, Progress& progress,
                         Hourglass* hourglass)
    : design_(design), progress_(progress), hourglass_(hourglass), files_(design, outside),
      axisDialog_(design, state_, [this] { GoRun(); }), lineDialog_(design, state_, [this] { GoRun(); }) {
    vsTable_.rows.assign(GraphRows::count, Grid::Row(1));
}

// Binding
// --------------------------------------------------------------------------------------------------

// A dialog that is open goes along with its variable.
void GraphScreen::setX(const GraphVariable& variable) {
    const bool isOther = variable != state_.XVar;
    state_.bindX(variable);
    if (isOther && axisDialog_.isOpen())
        axisDialog_.open();
}

void GraphScreen::setL(const GraphVariable& variable) {
    const bool isOther = variable != state_.LVar;
    state_.bindL(variable);
    if (!isOther || !lineDialog_.isOpen())
        return;
    if (variable)
        lineDialog_.open();
    else
        lineDialog_.close();
}

// From variables to a graph
// ---------------------------------------------------------------------------------

void GraphScreen::DoGraph() {
    design_.SuspendForms(FormSet::main);
    try {
        MakeGraph();
    } catch (...) {
        design_.RestoreForms(FormSet::main);
        throw;
    }
    design_.RestoreForms(FormSet::main);
}

void GraphScreen::GoRun() { MakeGraph(); }

// False where there is no other graph than before.
bool GraphScreen::MakeGraph() {
    if (!passesChecks() || !compute())
        return false;
    const bool opens = !isOpen();
    design_.SynchForms(WindowId::xPlot, WindowAction::open);
    if (opens)
        design_.RestoreForms(FormSet::graph);
    show();
    tellAboutGraph();
    warnAboutCovariates(state_.XVar);
    warnAboutCovariates(state_.LVar);
    return true;
}

bool GraphScreen::passesChecks() {
    const Study& s = design_.study();
    if (!s.result.xValid) {
        files_.ask({createGraph, "Please modify data and try again.             "});
        return false;
    }
    if (!state_.XVar)
        setX(numberAtTop(s));
    if (state_.LVar == state_.XVar)
        refuseSameVariable();
    if (lacksEffect() &&
        files_.ask({createGraph,
                    "You have not yet entered an effect size. Would you like to proceed anyway?       ",
                    {Answer::Yes, Answer::No},
                    Answer::No}) != Answer::Yes)
        return false;
    rebind();
    replaceWhatIsNotOnOffer();
    return true;
}

void GraphScreen::refuseSameVariable() {
    files_.ask({"Please modify the series variable",
                "Please click 'Series' on the menu and select 'None' or another variable.             \n"
                "The Series variable cannot be the same as the X-axis variable.                    "});
    setL({});
}

bool GraphScreen::lacksEffect() const {
    const Study& s = design_.study();
    const auto effect = testedEffect(s);
    if (!effect || state_.XVar.is(effect->field) || state_.LVar.is(effect->field))
        return false;
    return std::fabs(graphVariable(effect->field).in(s)-effect->none) < noEffect;
}

// A number that was chosen before the design changed follows the design.
void GraphScreen::rebind() {
    const Study& s = design_.study();
    if (state_.XVar && state_.XVar->isCount())
        setX(numberOfUnits(s, state_.XVar.level));
    if (state_.LVar && state_.LVar->isCount())
        setL(numberOfUnits(s, state_.LVar.level));
}

// Other variables of a former study would draw a level line.
void GraphScreen::replaceWhatIsNotOnOffer() {
    const Study& s = design_.study();
    replaced_.clear();
    if (state_.LVar && !state_.LVar.isOnOffer(s)) {
        setL({});
        replaced_ = "The study has no such series now, so it was left out.";
    }
    if (state_.XVar.isOnOffer(s))
        return;
    setX(numberAtTop(s));
    replaced_ = "The study has no such variable now, so another one is shown.";
    if (state_.LVar == state_.XVar)
        setL({});
}

// False when the user has stopped it; the graph before it stays then.
bool GraphScreen::compute() {
    const Waiting waiting(hourglass_);
    if (state_.ColorSet == 0)
        state_.ColorSet = 1;
    DrawnGraph graph{state_.request(), {}};
    {
        const WhileSet running(state_.GraphRun);
        Teller teller(pnlStatus_.Caption, progress_);
        graph.table = GraphCompute(design_.session().trial(), graph.request, teller);
    }
    const SessionState computed = design_.session().state();
    isOld_ = roundCounts();
    if (graph.table.stopped) {
        tell("The computation was stopped; the graph is as it was before.");
        return false;
    }
    state_.NumLines = graph.table.NumLines;
    state_.GraphMaxCost = graph.table.GraphMaxCost;
    drawn_ = std::move(graph);
    drawnFor_ = computed;
    return true;
}

// A graph leaves whole numbers of units behind, also where a file held others. It takes place in a copy of
// the study, so nothing else has to be put back.
bool GraphScreen::roundCounts() {
    const Study& s = design_.study();
    bool allWhole = true;
    for (int level = lowestLevel; level <= highestLevel; ++level)
        allWhole = allWhole && isWhole(s.txtNC(level)) && isWhole(s.txtNT(level)) && isWhole(s.txtNB(level));
    if (allWhole)
        return false;
    design_.session().edit({"whole numbers of units"}, [](SessionState& state) {
        for (int level = lowestLevel; level <= highestLevel; ++level) {
            for (auto* sizes : {&state.study.txtNC, &state.study.txtNT, &state.study.txtNB})
                (*sizes)(level) = roundHalfToEven((*sizes)(level));
        }
    });
    return true;
}

// From the numbers to the screen
// ----------------------------------------------------------------------------

void GraphScreen::show() {
    const GraphPoint before{state_.CurrentPoint.Series, state_.CurrentPoint.Point};
    const GraphPoint marked = GetInitialPoint(*drawn_, before).value_or(GraphPoint{});
    state_.CurrentPoint = {marked.Series, marked.Point};
    showChart();
}

// Everything but the numbers, which stay as they were computed.
void GraphScreen::showChart() {
    if (!drawn_)
        return;
    if (state_.showCost)
        state_.CostScale = costScaleOf(drawn_->table);
    txtHeader_[0] = graphHeader(drawnFor_.study, drawn_->subject());
    txtFooter_ = graphFooter(drawnFor_, drawn_->subject());
    chart_ = chartOf(*drawn_, state_, drawnFor_, txtHeader2_.Text);
    GraphFormatTable();
    ShowPoint();
}

void GraphScreen::ShowPoint() {
    const auto& point = state_.CurrentPoint;
    const bool hasMark = drawn_->hasPower(point.Series, point.Point);
    chart_.mark = {hasMark,
                   point.Series,
                   point.Point,
                   hasMark ? pointDetails(*drawn_, state_, drawnFor_.study) : "",
                   hasMark && state_.DisplayOn,
                   state_.DetailsCorner};
}

void GraphScreen::GraphFormatTable() {
    const std::string& header = txtHeader_[0];
    tableTitle_ = txtHeader2_.Text.empty() ? header : header + " " + txtHeader2_.Text;
    vsTable_ = drawn_->table.cells;
    vsTable_.rows[0][0] = tableTitle_;
}

// The most important of what there is to know.
void GraphScreen::tellAboutGraph() {
    if (isOld_)
        tell("Numbers of units are rounded now; F5 draws the graph of the rounded ones.");
    else if (drawn_->table.drawnByItself)
        tell("The range that was set lies outside the range on which the study is valid; the X-axis was set "
             "automatically.");
    else if (!replaced_.empty())
        tell(replaced_);
    else if (!design_.study().isTested())
        tell("This effect has no test; the graph shows its cost alone.");
    else if (!GetInitialPoint(*drawn_, {}))
        tell("No point of this graph has a power; modify the range or the study.");
    else
        tell(truncationNote(design_.study()));
}

void GraphScreen::warnAboutCovariates(const GraphVariable& variable) {
    const Study& s = design_.study();
    if (!lacksCovariates(s, variable))
        return;
    const std::string level = lowerCased(s.txtName(variable.level));
    files_.ask({"Compute power as a function of R-squared    ",
                "You are trying to specify an R-squared value for " + level +
                    " but there are no covariates at this level.               \n"
                    "Please return to the main screen and modify the number of " +
                    level + "-level covariates.           "});
}

void GraphScreen::tell(std::string text) { pnlStatus_.Caption = std::move(text); }

// What was told of another study may not stand beside this one.
void GraphScreen::forgetStudy() {
    if (lineDialog_.isOpen() && !state_.request().hasSeries())
        setL({});
    for (const WindowId window : {WindowId::frmXVar, WindowId::frmLVar, WindowId::frmTable})
        design_.SynchForms(window, WindowAction::unload);
    design_.SynchForms(WindowId::frmTipsGraph, WindowAction::withdraw);  // it tells nothing of the study
    design_.SynchForms(WindowId::xPlot, WindowAction::withdrawForGood);
    drawn_.reset();
    chart_ = {};
    vsTable_.rows.assign(GraphRows::count, Grid::Row(1));
    txtHeader2_.Text.clear();
    for (std::string* text : {&txtHeader_[0], &tableTitle_, &pnlStatus_.Caption})
        text->clear();
    txtFooter_ = {};
    state_.GraphMaxCost = 0;
    state_.CostScale = 1;
}

// After an edit the numbers are out of date.
void GraphScreen::follow(const Changed& changed) {
    if (changed.otherStudy) {
        forgetStudy();
        return;
    }
    if (!drawn_ || changed.reach != Reach::study)
        return;
    drawnFor_.scenarios = design_.session().scenarios();
    const bool isOld = !sameValues(drawnFor_, design_.session().state());
    if (isOld != std::exchange(isOld_, isOld))
        isOld ? tell("The study has changed; F5 draws the graph anew.") : tellAboutGraph();
}

// What the user does
// -----------------------------------------------------------------------------------------

void GraphScreen::chooseX(const GraphKey& key) {
    if (key.holds(state_.XVar)) {
        SetXVar();
        return;
    }
    setX(key.bound(design_.study()));
    GoRun();
}

void GraphScreen::chooseL(const GraphKey& key) {
    setL(key.bound(design_.study()));
    SetLVar();
}

void GraphScreen::SetLVar() {
    rebind();
    lineDialog_.open();
}

void GraphScreen::chooseNoSeries() {
    setL({});
    GoRun();
}

// The axis that a graph would have now.
void GraphScreen::bindAxis() {
    if (!state_.XVar)
        setX(numberAtTop(design_.study()));
    rebind();
    replaceWhatIsNotOnOffer();
}

void GraphScreen::SetXVar() {
    manualIsAsked_ = false;
    bindAxis();
    axisDialog_.open();
}

void GraphScreen::SetXAuto(bool automatically) {
    bindAxis();
    if (automatically) {
        state_.range().Mode = 0;
        GoRun();
    } else if (state_.range().Mode == 0) {
        SetXVar();
        manualIsAsked_ = true;
    }
}

bool GraphScreen::rangeIsByHand() const {
    return state_.range().Mode == 1 || (manualIsAsked_ && axisDialog_.isOpen());
}

std::string GraphScreen::axisTitle() const {
    const Study& s = design_.study();
    return GetTitleX(s, state_.XVar ? state_.XVar : numberAtTop(s));
}

std::string GraphScreen::seriesTitle() const { return GetTitleL(design_.study(), state_.LVar); }

void GraphScreen::move(Directions direction) {
    if (!drawn_)
        return;
    const auto& at = state_.CurrentPoint;
    const GraphPoint next = FindPoint(*drawn_, {at.Series, at.Point}, direction);
    pick(next.Series, next.Point);
}

void GraphScreen::pick(int series, int point) {
    if (!drawn_ || !drawn_->hasPower(series, point))
        return;
    state_.CurrentPoint = {series, point};
    ShowPoint();
}

void GraphScreen::toggleTable() {
    const bool opens = !design_.isOpen(WindowId::frmTable);
    design_.SynchForms(WindowId::frmTable, opens ? WindowAction::open : WindowAction::unload);
}

void GraphScreen::close() {
    if (axisDialog_.isOpen() || lineDialog_.isOpen()) {
        design_.ask("Dialog box open", "Please close the dialog box and try again.                ");
        return;
    }
    design_.SuspendForms(FormSet::graph);
    design_.RestoreForms(FormSet::main);
    design_.SynchForms(WindowId::xPlot, WindowAction::withdrawForGood);
}

void GraphScreen::SaveGraph(PictureSizes size) { tell(files_.SaveGraph(chart_, size)); }

void GraphScreen::copyGraph(PictureSizes size) { tell(files_.copyGraph(chart_, size)); }

void GraphScreen::SaveTable(GraphFiles::Then then) {
    if (drawn_)
        tell(files_.SaveTable(
            graphSheet({drawn_->table.axis, drawn_->table.NumLines, 0, vsTable_}, state_.showCostInTable),
            then));
}

void GraphScreen::copyTable() {
    if (drawn_)
        tell(files_.copyTable(graphTableText({drawn_->table.axis, drawn_->table.NumLines, 0, vsTable_},
                                             state_.showCostInTable)));
}

void GraphScreen::SaveHeader() { tell(files_.SaveHeader(headerAndFooter())); }

void GraphScreen::copyHeader() { tell(files_.copyHeader(headerAndFooter())); }

std::vector<std::string> GraphScreen::headerAndFooter() const {
    std::vector<std::string> texts = {txtHeader_[0]};
    if (!txtHeader2_.Text.empty())
        texts.push_back(txtHeader2_.Text);
    texts.insert(texts.end(), txtFooter_.begin(), txtFooter_.end());
    return texts;
}

bool GraphScreen::isRowShown(int row) const {
    return drawn_ && isShownRow(drawn_->table, row, state_.showCostInTable);
}

GraphScreen::Cell GraphScreen::markedCell() const {
    if (!chart_.mark.visible || !design_.isOpen(WindowId::frmTable))
        return {};
    return {GraphRows::power + chart_.mark.series, chart_.mark.point};
}

// Names and events
// ------------------------------------------------------------------------------------------

void GraphScreen::registerNames(ControlRegistry& registry) const {
    const GraphState& s = state_;
    registry.add("XVar", [&s]() -> ControlValue { return s.XVar.name(); });
    registry.add("LVar", [&s]() -> ControlValue { return s.LVar.name(); });
    const std::pair<const char*, const int*> numbers[] = {{"XRow", &s.XRow},
                                                          {"LRow", &s.LRow},
                                                          {"NumLines", &s.NumLines},
                                                          {"GraphMaxCost", &s.GraphMaxCost},
                                                          {"CostScale", &s.CostScale},
                                                          {"ColorSet", &s.ColorSet},
                                                          {"CurrentPoint.Series", &s.CurrentPoint.Series},
                                                          {"CurrentPoint.Point", &s.CurrentPoint.Point}};
    for (const auto& [name, number] : numbers)
        registry.add(name, number);
    registry.add("DisplayOn", &s.DisplayOn);
    registry.add("GraphRun", &s.GraphRun);
    registry.add("DetailsCorner", [&s]() -> ControlValue {
        constexpr const char* corners[] = {"TopLeft", "TopRight", "BottomLeft", "BottomRight"};
        return std::string(corners[static_cast<int>(s.DetailsCorner)]);
    });
    registry.add("xPlot.txtHeader(1)", &txtHeader_[0]);
    registry.add("xPlot.txtHeader(2)", &txtHeader2_.Text);
    for (std::size_t line = 0; line < txtFooter_.size(); ++line)
        registry.add(indexedName("xPlot.txtFooter", static_cast<int>(line) + 1), &txtFooter_[line]);
    registry.add("xPlot.pnlDetails.Caption", &chart_.mark.details);
    registry.add("xPlot.pnlDetails.Visible", &chart_.mark.detailsVisible);
    registry.add("xPlot.pnlStatus", pnlStatus_);
    registerTables(registry);
    axisDialog_.registerNames(registry);
    lineDialog_.registerNames(registry);
}

void GraphScreen::registerTables(ControlRegistry& registry) const {
    for (int row = 1; row < graphRows; ++row) {
        const XRange& range = state_.XRangeTable[static_cast<std::size_t>(row)];
        const std::string name = indexedName("XRangeTable", row);
        registry.add(name + ".Mode", &range.Mode);
        registry.add(name + ".Start", &range.Start);
        registry.add(name + ".End", &range.End);
        const LineValues& values = state_.LValueTable[static_cast<std::size_t>(row)];
        for (std::size_t slot = 0; slot < values.size(); ++slot)
            registry.add("LValueTable(" + std::to_string(row) + "," + std::to_string(slot) + ")",
                         &values[slot]);
    }
    registry.addGrid("frmTable.vsTable", vsTable_);
    for (int row = 0; row < GraphRows::count; ++row)
        registry.add(indexedName("frmTable.vsTable.RowHidden", row),
                     [this, row]() -> ControlValue { return !isRowShown(row); });
    registry.add("frmTable.vsTable.MarkedRow",
                 [this]() -> ControlValue { return static_cast<double>(markedCell().row); });
    registry.add("frmTable.vsTable.MarkedColumn",
                 [this]() -> ControlValue { return static_cast<double>(markedCell().column); });
    registry.add("frmTable.Caption", &tableTitle_);
}

void GraphScreen::registerEvents(EventRegistry& events) {
    events.addTextBox("xPlot.txtHeader(2)", txtHeader2_);
    events.onTyped("xPlot.txtHeader(2)", [this] { showChart(); });
    events.onPick("xPlot.CurrChart", [this](int series, int point) {
        if (!isOpen() || !drawn_ || !drawn_->hasPower(series, point))
            throw UseProblem("The graph has no point " + std::to_string(point) + " of line " +
                             std::to_string(series) + " to click.");
        pick(series, point);
    });
    events.onClose("xPlot", [this] { close(); });
    events.onClose("frmTable", [this] { design_.SynchForms(WindowId::frmTable, WindowAction::unload); });
    axisDialog_.registerEvents(events);
    lineDialog_.registerEvents(events);
}

}  // namespace lorvane
