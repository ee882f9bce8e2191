// The range of the X-axis and the values of the series.
#include "graphs/graph_dialogs.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/money.h"
#include "base/names.h"
#include "base/number_text.h"
#include "graphs/graph_rules.h"

namespace lorvane {

namespace {

constexpr int automatic = 0;
constexpr int byHand = 1;
constexpr int fewestLines = 2;

constexpr const char* setAutomatically = "X-axis will be set automatically";
constexpr const char* setByHand = "X-axis will use range shown above";
constexpr const char* addAndEnter = "Click <Add> and then enter a value.";

Panel panel(std::string caption) {
    Panel made;
    made.Caption = std::move(caption);
    return made;
}

DialogField numberField(std::string control, std::string label) {
    DialogField field;
    field.control = std::move(control);
    field.label = panel(std::move(label));
    return field;
}

// A box as a number, where it spells one.
ControlValue valueOf(const TextBox& box) {
    const auto value = readNumber(box.Text);
    return value ? ControlValue(*value) : ControlValue(box.Text);
}

// A box of a variable without decimals holds whole numbers.
std::optional<double> readBox(const TextBox& box, int decimals) {
    const auto value = readNumber(box.Text);
    return value && decimals == 0 ? std::optional(roundHalfToEven(*value)) : value;
}

}  // namespace

// What both are
// ----------------------------------------------------------------------------------------------

GraphDialog::GraphDialog(Design& design, GraphState& state, std::function<void()> draw)
    : design_(design), state_(state), draw_(std::move(draw)) {}

void GraphDialog::addButtons() {
    dialog_.buttons = {{dialog_.name + ".cmdCancel", "Cancel", [this] { cancel(); }},
                       {dialog_.name + ".Command1", "OK", [this] { accept(); }}};
}

void GraphDialog::registerNames(ControlRegistry& registry) const {
    dialog_.registerNames(registry);
    registry.add(dialog_.name + ".Title", &dialog_.title.Caption);
    for (const DialogField& field : dialog_.fields)
        registry.add(field.control, [&field] { return valueOf(field.box); });
}

void GraphDialog::registerEvents(EventRegistry& events) {
    dialog_.registerEvents(events, [this] { return isOpen(); });
    events.onClose(dialog_.name, [this] {
        if (isOpen())
            cancel();
    });
}

bool GraphDialog::isOpen() const { return design_.isOpen(*dialog_.window); }

void GraphDialog::close() { design_.SynchForms(*dialog_.window, WindowAction::unload); }

void GraphDialog::openDialog() {
    Init();
    dialog_.begin();
    design_.SynchForms(*dialog_.window, WindowAction::open);
}

void GraphDialog::tell(std::string text) {
    dialog_.note.Caption = std::move(text);
    dialog_.note.trouble = false;
    dialog_.note.BackColor = normalBackground;
}

void GraphDialog::tellRefused(std::string why) {
    dialog_.note.Caption = std::move(why);
    dialog_.note.trouble = true;
    dialog_.note.BackColor = refusedColour;
}

void GraphDialog::clearMarks() {
    for (DialogField& field : dialog_.fields)
        field.trouble = false;
}

// The range of the X-axis
// -----------------------------------------------------------------------------------

AxisDialog::AxisDialog(Design& design, GraphState& state, std::function<void()> draw)
    : GraphDialog(design, state, std::move(draw)) {
    dialog_ = {"frmXVar",
               WindowId::frmXVar,
               "pnlMsg",
               {numberField("frmXVar.txtXVar(1)", "Start"), numberField("frmXVar.txtXVar(2)", "End")}};
    addButtons();
    dialog_.sense = panel("Range of the X-axis");
    dialog_.options = {{"frmXVar.optManual(0)", {"Set automatically", true}, [this] { choose(automatic); }},
                       {"frmXVar.optManual(1)", {"Set manually"}, [this] { choose(byHand); }}};
}

void AxisDialog::Init() {
    const GraphVariable& x = state_.XVar;
    dialog_.title.Caption = GetTitleX(design_.study(), x);
    decimals_ = x->decimals;
    limits_ = axisLimitsOf(design_.study(), x);
    const XRange& range = state_.range();
    dialog_.fields[0].box.Text = shortestText(range.Start);
    dialog_.fields[1].box.Text = shortestText(range.End);
    choose(range.Mode == byHand ? byHand : automatic);
}

void AxisDialog::SetDisplay(int mode) {
    for (DialogField& field : dialog_.fields)
        field.box.Enabled = mode == byHand;
    tell(mode == byHand ? setByHand : setAutomatically);
}

void AxisDialog::choose(int mode) {
    clearMarks();
    dialog_.options[automatic].option.Value = mode == automatic;
    dialog_.options[byHand].option.Value = mode == byHand;
    SetDisplay(mode);
}

void AxisDialog::accept() {
    if (dialog_.options[byHand].option.Value) {
        acceptByHand();
        return;
    }
    tell(std::string(setAutomatically) + ".");
    XRange range = state_.range();
    range.Mode = automatic;
    range.Start = readBox(dialog_.fields[0].box, decimals_).value_or(range.Start);
    range.End = readBox(dialog_.fields[1].box, decimals_).value_or(range.End);
    keep(range);
}

// The study may have changed since the dialog was opened.
void AxisDialog::acceptByHand() {
    clearMarks();
    limits_ = axisLimitsOf(design_.study(), state_.XVar);
    if (refusesValues())
        return;
    const XRange range{byHand, *readBox(dialog_.fields[0].box, decimals_),
                       *readBox(dialog_.fields[1].box, decimals_)};
    if (range.Start == range.End) {
        dialog_.fields[0].trouble = dialog_.fields[1].trouble = true;
        tellRefused(equalEnds);
        return;
    }
    GraphRequest request = state_.request();
    request.range = range;
    if (axisOf(design_.session().trial(), request).isCutToNothing) {
        dialog_.fields[0].trouble = dialog_.fields[1].trouble = true;
        tellRefused(cutToNothing);
        return;
    }
    tell(setByHand);
    keep(range);
}

bool AxisDialog::refusesValues() {
    bool refused = false;
    for (DialogField& field : dialog_.fields) {
        const auto value = readBox(field.box, decimals_);
        field.trouble = !value || !limits_.holds(*value);
        refused = refused || field.trouble;
    }
    if (refused)
        tellRefused(rangeWords(limits_, decimals_));
    return refused;
}

void AxisDialog::keep(const XRange& range) {
    state_.range() = range;
    close();
    draw_();
}

// The values of the series
// ----------------------------------------------------------------------------------

LineDialog::LineDialog(Design& design, GraphState& state, std::function<void()> draw)
    : GraphDialog(design, state, std::move(draw)) {
    dialog_ = {"frmLVar", WindowId::frmLVar, "pnlMsg"};
    addButtons();
    dialog_.sense = panel("A line of the graph for each value");
    for (int line = 1; line <= mostLines; ++line)
        dialog_.fields.push_back(
            numberField(indexedName("frmLVar.txtLVar", line), "Value " + std::to_string(line)));
    dialog_.fieldButtons = {{"frmLVar.cmdAddRemove(0)", "Remove", [this] { setNumLines(NumLines_ - 1); }},
                            {"frmLVar.cmdAddRemove(1)", "Add", [this] { setNumLines(NumLines_ + 1); }}};
}

void LineDialog::registerNames(ControlRegistry& registry) const {
    GraphDialog::registerNames(registry);
    registry.add("frmLVar.NumLines", &NumLines_);
    registry.add("frmLVar.txtvalid", &txtvalid_);
}

void LineDialog::Init() {
    dialog_.title.Caption = GetTitleX(design_.study(), state_.LVar);
    txtvalid_ = 0;
    LineValues values = state_.lines();
    if (values[0] < fewestLines) {
        values[0] = fewestLines;
        values[1] = state_.LVar.in(design_.study());
        values[2] = 0;
    }
    for (std::size_t line = 1; line < values.size(); ++line)
        dialog_.fields[line - 1].box.Text = shortestText(values[line]);
    clearMarks();
    tell(addAndEnter);
    setNumLines(static_cast<int>(values[0]));
}

void LineDialog::setNumLines(int lines) {
    NumLines_ = std::clamp(lines, 1, mostLines);
    for (int line = 1; line <= mostLines; ++line) {
        DialogField& field = dialog_.fields[static_cast<std::size_t>(line - 1)];
        field.box.Enabled = line <= NumLines_;
        field.trouble = field.trouble && field.box.Enabled;
    }
}

void LineDialog::accept() {
    clearMarks();
    if (refusesValues()) {
        txtvalid_ = 0;
        return;
    }
    keepSorted();
    if (NumLines_ < fewestLines)
        state_.bindL({});
    close();
    txtvalid_ = 1;
    draw_();
}

// Of two reasons the last one is told.
bool LineDialog::refusesValues() {
    const GraphVariable& l = state_.LVar;
    const auto used = static_cast<std::size_t>(NumLines_);
    bool refused = false;
    std::vector<std::optional<double>> values;
    for (std::size_t i = 0; i < used; ++i) {
        values.push_back(readBox(dialog_.fields[i].box, l->decimals));
        dialog_.fields[i].trouble = !values[i] || !l->lineLimits.holds(*values[i]);
        refused = refused || dialog_.fields[i].trouble;
    }
    if (refused)
        tellRefused(rangeWords(l->lineLimits, l->decimals));
    for (std::size_t i = 0; i < used; ++i) {
        if (!values[i] || std::count(values.begin(), values.end(), values[i]) == 1)
            continue;
        dialog_.fields[i].trouble = refused = true;
        tellRefused(equalValues);
    }
    return refused;
}

void LineDialog::keepSorted() {
    const GraphVariable& l = state_.LVar;
    const auto used = static_cast<std::size_t>(NumLines_);
    std::vector<double> values;
    for (std::size_t i = 0; i < used; ++i)
        values.push_back(*readBox(dialog_.fields[i].box, l->decimals));
    values = sortedValues(l, std::move(values));
    LineValues& kept = state_.lines();
    kept[0] = NumLines_;
    for (std::size_t i = 0; i < used; ++i)
        dialog_.fields[i].box.Text = shortestText(values[i]);
    // Boxes beyond are kept for when they are used again.
    for (std::size_t i = 0; i < dialog_.fields.size(); ++i)
        kept[i + 1] = readBox(dialog_.fields[i].box, l->decimals).value_or(0);
}

// Without values there is no series at all.
void LineDialog::cancel() {
    state_.bindL({});
    close();
    draw_();
}

}  // namespace lorvane
