// The small dialogs of the study screen.
#include "screen/small_dialogs.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/names.h"
#include "base/number_text.h"
#include "screen/questions.h"
#include "session/assignments.h"
#include "session/field_words.h"
#include "session/structure.h"

namespace lorvane {

namespace {

constexpr int mostDecimals = 4;
constexpr const char* notANumber = "Please enter a number              ";

constexpr const char* alphaBox = "frmAlpha.txtAlpha";
constexpr const char* deltaBox = "frmDelta.txtDelta";
constexpr const char* meanBox = "frmSetMean.txtMean";
constexpr const char* spanBox = "frmSetMean.txtSpan";
constexpr const char* maxCostBox = "txtMaxCost";
constexpr const char* valueBox = "frmValue.txtValue";

std::string groupBox(int group) { return indexedName("frmGroupNames.txtGroupName", group); }
std::string levelBox(int level) { return indexedName("frmLevelNames.txtLevelNames", level); }
std::string lowerBox(int level) { return indexedName("frmLimits.txtLL", level); }
std::string upperBox(int level) { return indexedName("frmLimits.txtUL", level); }

Panel panel(std::string caption) {
    Panel made;
    made.Caption = std::move(caption);
    return made;
}

DialogField field(std::string control, Panel label = {}, std::string labelName = {}) {
    DialogField made;
    made.control = std::move(control);
    made.label = std::move(label);
    made.labelName = std::move(labelName);
    return made;
}

// Decimals of a number as it was typed, 0 to 4.
int typedDecimals(const std::string& text) {
    const std::string_view body = trimmed(text);
    const std::size_t point = body.find('.');
    if (point == std::string_view::npos)
        return 0;
    return std::min(static_cast<int>(body.size() - point - 1), mostDecimals);
}

// What the rows of the level names stand for, the individuals first.
const char* levelRole(int level, int levels) {
    if (level == 1)
        return "Individual";
    return level == levels ? "Cluster" : "Next level";
}

std::string typedName(const TextBox& box) { return std::string(trimmed(box.Text)); }

std::string capitalised(std::string text) {
    text[0] = static_cast<char>(text[0] - 'a' + 'A');
    return text;
}

// "From 0.001 to 0.49"
std::string rangeWords(std::string_view field) { return capitalised(fieldOf(field).limits.words()); }

// A share as the messages write it, ".49".
std::string pointNumber(double share) { return shortestText(share).substr(1); }

}  // namespace

// Words
// --------------------------------------------------------------------------------------------------------

SmallDialogs::SmallDialogs(Design& design)
    : design_(design), session_(design.session()), alpha_(makeAlpha()), delta_(makeDelta()),
      mean_(makeMean()), groupNames_(makeGroupNames()), levelNames_(makeLevelNames()), limits_(makeLimits()),
      maxCost_(makeMaxCost()), example_(makeExample()), value_(makeValue()), error_(makeError()) {}

Dialog SmallDialogs::makeAlpha() {
    return {"frmAlpha",
            WindowId::frmAlpha,
            "pnlLimits",
            {field(alphaBox, panel("Alpha"))},
            {{"frmAlpha.cmdOK", "OK", [this] { applyAlpha(); }}},
            false,
            panel("Alpha"),
            panel("The criterion for statistical significance"),
            panel(rangeWords("txtAlpha"))};
}

Dialog SmallDialogs::makeDelta() {
    return {"frmDelta",
            WindowId::frmDelta,
            "pnlLimits",
            {field(deltaBox, panel("Distance"))},
            {{"frmDelta.Command1", "OK", [this] { applyDelta(); }}},
            false,
            panel("Limits for risks"),
            panel("The smallest distance of any risk from 0 and from 1"),
            panel(rangeWords("txtDelta"))};
}

Dialog SmallDialogs::makeMean() {
    return {"frmSetMean",
            WindowId::frmSetMean,
            "pnlExplain",
            {field(meanBox, panel("Overall mean"), "frmSetMean.pnlHeading"), field(spanBox, panel("Span"))},
            {{"frmSetMean.cmdCancel", "Cancel", [this] { close(mean_); }},
             {"frmSetMean.cmdOK", "OK", [this] { applyMean(); }}}};
}

Dialog SmallDialogs::makeGroupNames() {
    return {"frmGroupNames",
            WindowId::frmGroupNames,
            "pnlLimits",
            {field(groupBox(1)), field(groupBox(2))},
            {{"frmGroupNames.cmdGroupNames(1)", "Cancel", [this] { close(groupNames_); }},
             {"frmGroupNames.cmdGroupNames(0)", "Apply", [this] { applyGroupNames(); }}},
            false,
            panel("Group names"),
            panel("The names are used in labels only")};
}

Dialog SmallDialogs::makeLevelNames() {
    Dialog dialog{"frmLevelNames",
                  WindowId::frmLevelNames,
                  "pnlLimits",
                  {},
                  {{"frmLevelNames.cmdLevelNames(1)", "Cancel", [this] { close(levelNames_); }},
                   {"frmLevelNames.cmdLevelNames(0)", "Apply", [this] { applyLevelNames(); }}},
                  false,
                  panel("Level names"),
                  panel("Name the units of every level, in the plural")};
    for (int level = highestLevel; level >= lowestLevel; --level)
        dialog.fields.push_back(field(levelBox(level), {}, indexedName("frmLevelNames.pnlLabel", level)));
    return dialog;
}

Dialog SmallDialogs::makeLimits() {
    Dialog dialog{"frmLimits",
                  std::nullopt,
                  "pnlLimits",
                  {},
                  {{"frmLimits.Command2", "Use spans", [this] { enterRisksAs(RangeModes::span); }},
                   {"frmLimits.Command3", "Use limits", [this] { enterRisksAs(RangeModes::limits); }},
                   {"frmLimits.Command1", "Apply", [this] { applyLimits(); }}},
                  false,
                  panel("Limits of risks"),
                  panel("Enter the lower and the upper limit of the risks at each level")};
    for (int level = highestLevel; level >= 2; --level) {
        dialog.fields.push_back(field(lowerBox(level)));
        dialog.fields.push_back(field(upperBox(level)));
    }
    return dialog;
}

Dialog SmallDialogs::makeMaxCost() {
    return {"pic",
            std::nullopt,
            "pnlLimits",
            {field(maxCostBox, panel("Maximum cost"))},
            {{"cmdSetMaxCost(1)", "Cancel", [this] { close(maxCost_); }},
             {"cmdSetMaxCost(0)", "Apply", [this] { applyMaxCost(); }}},
            false,
            panel("Set the maximum possible cost"),
            panel("The program will display the current cost as a percentage of the value"),
            panel("This affects the display only, and has no impact on the computations.")};
}

Dialog SmallDialogs::makeExample() {
    return {"frmOD",
            std::nullopt,
            "pnlLimits",
            {},
            {{"frmOD.optA", "Use the example", [this] { applyExample(); }}},
            false,
            panel("Example of the optimal design"),
            panel("Two levels, randomized at the top"),
            panel("The present levels are replaced.")};
}

Dialog SmallDialogs::makeValue() {
    return {"frmValue",
            std::nullopt,
            "pnlLimits",
            {field(valueBox)},
            {{"frmValue.cmdCancel", "Cancel", [this] { close(value_); }},
             {"frmValue.cmdOK", "OK", [this] { applyValue(); }}},
            false,
            {},
            panel("Enter a value")};
}

Dialog SmallDialogs::makeError() {
    return {"frmErr", std::nullopt, "pnlText", {}, {{"frmErr.Command1", "Close", [this] { close(error_); }}}};
}

// Windows
// ------------------------------------------------------------------------------------------------------

template <typename Self>
auto SmallDialogs::listOf(Self& self) {
    return std::vector{&self.alpha_,  &self.delta_,   &self.mean_,    &self.groupNames_, &self.levelNames_,
                       &self.limits_, &self.maxCost_, &self.example_, &self.value_,      &self.error_};
}

std::vector<Dialog*> SmallDialogs::dialogs() { return listOf(*this); }

std::vector<const Dialog*> SmallDialogs::all() const { return listOf(*this); }

bool SmallDialogs::isOpen(const Dialog& dialog) const {
    return dialog.window ? design_.isOpen(*dialog.window) : dialog.open;
}

void SmallDialogs::show(Dialog& dialog) {
    if (dialog.window)
        design_.SynchForms(*dialog.window, WindowAction::open);
    dialog.open = true;
    ++dialog.openings;
}

void SmallDialogs::close(Dialog& dialog) {
    if (dialog.window)
        design_.SynchForms(*dialog.window, WindowAction::unload);
    dialog.open = false;
}

void SmallDialogs::refuse(const Dialog& dialog, const std::string& text) {
    design_.ask(dialog.title.Caption, text);
}

bool SmallDialogs::holds(std::string_view field, double value) const {
    return limitsOf(session_.study(), fieldOf(field)).holds(value);
}

// Alpha and the limits of all risks
// ----------------------------------------------------------------------------

void SmallDialogs::openAlpha() {
    alpha_.box(alphaBox).Text = shortestText(session_.study().txtAlpha);
    show(alpha_);
}

void SmallDialogs::applyAlpha() {
    const Field& field = fieldOf("txtAlpha");
    const auto alpha = readNumber(alpha_.box(alphaBox).Text);
    if (!alpha)
        refuse(alpha_, notANumber);
    else if (*alpha < field.limits.low)
        refuse(alpha_, "Alpha must be " + pointNumber(field.limits.low) + " or higher         ");
    else if (*alpha > field.limits.high)
        refuse(alpha_, "Alpha must be " + pointNumber(field.limits.high) + " or lower         ");
    else {
        close(alpha_);
        enterValue(session_, {&field, 0}, *alpha);
    }
}

void SmallDialogs::openDelta() {
    delta_.box(deltaBox).Text = fixedText(session_.study().limits.txtDelta, 4);
    show(delta_);
}

void SmallDialogs::applyDelta() {
    const Field& field = fieldOf("txtDelta");
    TextBox& box = delta_.box(deltaBox);
    const auto delta = readNumber(box.Text);
    if (!delta) {
        design_.ask("Limits", notANumber);
        return;
    }
    if (!field.limits.holds(*delta)) {
        box.Text = fixedText(std::clamp(*delta, field.limits.low, field.limits.high), 4);
        design_.ask("Limits", "Value has been reset to " + box.Text);
        return;
    }
    close(delta_);
    enterValue(session_, {&field, 0}, *delta);
}

// Mean and span
// ------------------------------------------------------------------------------------------------

void SmallDialogs::openMean() {
    const Study& s = session_.study();
    const std::string& control = s.controlName();
    mean_.title.Caption = "Set " + control + " group mean and span";
    mean_.sense.Caption = "Enter values for the " + control + " group";
    mean_.box(meanBox).Text = shortestText(s.txtMean);
    mean_.box(spanBox).Text = shortestText(s.txtMRange(1));
    mean_.note.Caption = "Span of scores for " + s.txtName(1) +
                         ". The span is 4 standard deviations. This span implies that the standard "
                         "deviation of scores within " +
                         control + " is " + shortestText(s.txtMRange(1) / spanOfOneSd) + ".";
    show(mean_);
}

void SmallDialogs::applyMean() {
    const std::string& meanText = mean_.box(meanBox).Text;
    const std::string& spanText = mean_.box(spanBox).Text;
    const auto mean = readNumber(meanText);
    const auto span = readNumber(spanText);
    if (!mean || !span) {
        refuse(mean_, notANumber);
        return;
    }
    if (!holds("txtMean", *mean) || !holds("txtSD", *span / spanOfOneSd)) {
        refuse(mean_, "Please enter a mean and a span that scores can have              ");
        return;
    }
    close(mean_);
    session_.edit({"mean and span"}, [&](SessionState& state) {
        Study& s = state.study;
        s.txtMean = *mean;
        s.decimals.txtMean = typedDecimals(meanText);
        s.txtMRange(1) = *span;
        s.decimals.txtMRange = typedDecimals(spanText);
        s.txtSD = *span / spanOfOneSd;
        s.decimals.txtSD = s.decimals.txtMRange;
    });
}

// Names
// --------------------------------------------------------------------------------------------------------

void SmallDialogs::openGroupNames() {
    for (int group = 1; group <= 2; ++group) {
        DialogField& shown = groupNames_.fields[static_cast<std::size_t>(group - 1)];
        shown.box.Text = shown.label.Caption = session_.study().txtGroupName(group);
    }
    show(groupNames_);
}

bool SmallDialogs::groupNamesChanged() const {
    const Study& s = session_.study();
    return groupNames_.box(groupBox(1)).Text != s.txtGroupName(1) ||
           groupNames_.box(groupBox(2)).Text != s.txtGroupName(2);
}

void SmallDialogs::applyGroupNames() {
    const std::string treated = typedName(groupNames_.box(groupBox(1)));
    const std::string control = typedName(groupNames_.box(groupBox(2)));
    if (treated == control) {
        refuse(groupNames_, "Please use a unique name for each group              ");
        return;
    }
    close(groupNames_);
    session_.edit({"group names"}, [&](SessionState& state) {
        state.study.txtGroupName(1) = treated;
        state.study.txtGroupName(2) = control;
    });
}

void SmallDialogs::openLevelNames() {
    const Study& s = session_.study();
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        const bool used = level <= s.NumLevels;
        DialogField& shown = levelNames_.fields[static_cast<std::size_t>(highestLevel - level)];
        shown.box = {s.txtName(level), used, used};
        shown.label.Caption = levelRole(level, s.NumLevels);
        shown.label.Visible = used;
    }
    show(levelNames_);
}

bool SmallDialogs::levelNamesChanged() const {
    const Study& s = session_.study();
    for (int level = lowestLevel; level <= s.NumLevels; ++level) {
        if (levelNames_.box(levelBox(level)).Text != s.txtName(level))
            return true;
    }
    return false;
}

void SmallDialogs::applyLevelNames() {
    const int levels = session_.study().NumLevels;
    PerLevel<std::string> names;
    for (int level = lowestLevel; level <= levels; ++level) {
        names(level) = typedName(levelNames_.box(levelBox(level)));
        for (int other = lowestLevel; other < level; ++other) {
            if (names(level) == names(other)) {
                refuse(levelNames_, "Please use a unique name for each level              ");
                return;
            }
        }
    }
    close(levelNames_);
    session_.edit({"level names"}, [&](SessionState& state) {
        for (int level = lowestLevel; level <= levels; ++level)
            state.study.txtName(level) = names(level);
    });
}

void SmallDialogs::closeAsking(Dialog& dialog, bool changed, const std::string& question,
                               void (SmallDialogs::*apply)()) {
    if (changed)
        askToApply(design_, *dialog.window, question, [this, apply] { (this->*apply)(); });
    else
        close(dialog);
}

// Limits of risks by level
// -------------------------------------------------------------------------------------

void SmallDialogs::openLimits() {
    const Study& s = session_.study();
    for (int level = 2; level <= highestLevel; ++level) {
        const bool used = level <= s.NumLevels;
        limits_.box(lowerBox(level)) = {shortestText(s.limits.txtLL(level)), used, used};
        limits_.box(upperBox(level)) = {shortestText(s.limits.txtUL(level)), used, used};
        const std::size_t first = 2 * static_cast<std::size_t>(highestLevel - level);
        limits_.fields[first].label.Caption = s.txtName(level) + ", lower limit";
        limits_.fields[first + 1].label.Caption = s.txtName(level) + ", upper limit";
    }
    show(limits_);
}

void SmallDialogs::applyLimits() {
    const int levels = session_.study().NumLevels;
    for (int level = 2; level <= levels; ++level) {
        if (!readNumber(limits_.box(lowerBox(level)).Text) ||
            !readNumber(limits_.box(upperBox(level)).Text)) {
            design_.ask("Limits", notANumber);
            return;
        }
    }
    session_.edit({"limits of risks"}, [&](SessionState& state) {
        for (int level = 2; level <= levels; ++level) {
            state.study.limits.txtLL(level) = *readNumber(limits_.box(lowerBox(level)).Text);
            state.study.limits.txtUL(level) = *readNumber(limits_.box(upperBox(level)).Text);
        }
    });
}

// Chooses how the risks of a level are entered, and closes the dialog.
void SmallDialogs::enterRisksAs(RangeModes mode) {
    close(limits_);
    session_.edit({"entry of risks"}, [&](SessionState& state) { state.study.limits.RangeMode = mode; });
}

void SmallDialogs::enterIcc() {
    close(limits_);
    lorvane::enterIcc(session_);
}

void SmallDialogs::enterLimits() {
    enterSpan(session_, RangeModes::limits);
    openLimits();
}

// Top of the cost bar
// ------------------------------------------------------------------------------------------

void SmallDialogs::openMaxCost() {
    maxCost_.box(maxCostBox).Text = shortestText(session_.study().MaxCost);
    show(maxCost_);
}

void SmallDialogs::applyMaxCost() {
    const auto cost = readNumber(maxCost_.box(maxCostBox).Text);
    if (!cost || !holds("MaxCost", *cost)) {
        design_.ask("Set maximum cost",
                    "Please enter a cost " + fieldOf("MaxCost").limits.words() + "              ");
        return;
    }
    close(maxCost_);
    design_.setMaxCost(*cost);
}

// The example of the optimal design, whose chooser has one option
// ----------------------------------------------

void SmallDialogs::openExample() { show(example_); }

void SmallDialogs::applyExample() {
    close(example_);
    ResetForOD(session_);
}

// One value
// ----------------------------------------------------------------------------------------------------

void SmallDialogs::activate(FieldRef field, const std::string& firstText) {
    if (field->arrows == ArrowRule::byStep)
        openValue(field, firstText);
    else if (field->arrows == ArrowRule::twoStates && firstText.empty())
        stepField(session_, field, readNumberField(session_.state(), field) == 1 ? -1 : 1);
}

// What was typed for another field, and not applied, is dropped.
void SmallDialogs::openValue(FieldRef field, const std::string& firstText) {
    const Study& s = session_.study();
    const double value = readNumberField(session_.state(), field);
    const int decimals = decimalsOf(s, *field.field);
    valueField_ = field;
    value_.title.Caption = value_.fields[0].label.Caption = fieldWords(s, field);
    value_.note.Caption =
        (field->decimals == nullptr ? "A whole number " : "A number ") + limitsOf(s, *field.field).words();
    value_.isBegun = !firstText.empty();
    value_.box(valueBox).Text = value_.isBegun  ? firstText
                                : decimals == 0 ? shortestText(value)
                                                : fixedText(value, decimals);
    show(value_);
}

void SmallDialogs::applyValue() {
    const auto number = readNumber(value_.box(valueBox).Text);
    const FieldLimits limits = limitsOf(session_.study(), *valueField_.field);
    const bool whole = valueField_->decimals == nullptr;
    if (!number || !limits.holds(*number) || (whole && *number != std::floor(*number))) {
        const std::string& text = value_.box(valueBox).Text;
        refuse(value_, std::string("Please enter a ") + (whole ? "whole number " : "number ") +
                           limits.words() + (hasDecimalComma(text) ? ", with a point, not a comma" : "") +
                           "              ");
        return;
    }
    close(value_);
    enterValue(session_, valueField_, *number);
}

// Names and events
// ---------------------------------------------------------------------------------------------

void SmallDialogs::registerNames(ControlRegistry& registry) const {
    for (const Dialog* dialog : all())
        dialog->registerNames(registry);
    registry.add("frmErr.pnlTitle", error_.title);
    for (const RawTable* table : {&spreadICC_, &spreadTauSq_})
        registry.add(std::string(table->name) + ".Visible", &table->open);
}

void SmallDialogs::registerEvents(EventRegistry& events) {
    for (Dialog* dialog : dialogs())
        dialog->registerEvents(events, [this, dialog] { return isOpen(*dialog); });
    for (Dialog* dialog : {&delta_, &mean_, &limits_, &maxCost_, &example_, &value_, &error_})
        events.onClose(dialog->name, [this, dialog] { close(*dialog); });
    events.onClose("frmAlpha", [this] {
        closeAsking(alpha_, true, "Apply changes to alpha?          ", &SmallDialogs::applyAlpha);
    });
    events.onClose("frmGroupNames", [this] {
        closeAsking(groupNames_, groupNamesChanged(), applyNamesQuestion, &SmallDialogs::applyGroupNames);
    });
    events.onClose("frmLevelNames", [this] {
        closeAsking(levelNames_, levelNamesChanged(), applyNamesQuestion, &SmallDialogs::applyLevelNames);
    });
    for (RawTable* table : {&spreadICC_, &spreadTauSq_})
        events.onClose(table->name, [table] { table->open = false; });
    events.onClick("frmDisplayICC.cmdDelta", [this] { openDelta(); });
    events.onClick("frmDisplayICC.cmdOptions", [this] { openLimits(); });
    events.onClick("frmDisplayICC.Command1",
                   [this] { design_.SynchForms(WindowId::frmDisplayICC, WindowAction::withdrawForGood); });
}

}  // namespace lorvane
