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

constexpr const char* alphaBox = "frmAlpha.txtAlpha";
constexpr const char* deltaBox = "frmDelta.txtDelta";
constexpr const char* meanBox = "frmSetMean.txtMean";
constexpr const char* spanBox = "frmSetMean.txtSpan";
constexpr const char* maxCostBox = "txtMaxCost";

constexpr const char* limitsHelp =
    "The risks of a level spread around the event rate. On the scale of log odds a risk of 0 or 1 has no "
    "place, so every risk is kept at a small distance from both.\n\n"
    "Where the span of a level would go beyond these limits, it is shifted, not shortened: it keeps its "
    "width, "
    "and no longer has the event rate in its middle. The panel of the ICC tells so. A span that is wider "
    "than "
    "the room between the limits gives no power. Neither does an event rate beyond them.\n\n"
    "The distance is 0.001 in a new study. Any distance from 0.0001 to 0.1 can be set.";

std::string groupBox(int group) { return indexedName("frmGroupNames.txtGroupName", group); }
std::string levelBox(int level) { return indexedName("frmLevelNames.txtLevelNames", level); }
// Decimals of a number as it was typed, 0 to 4.
int typedDecimals(const std::string& text) {
    const std::string_view body = trimmed(text);
    const std::size_t point = body.find('.');
    if (point == std::string_view::npos)
        return 0;
    return std::min(static_cast<int>(body.size() - point - 1), mostDecimals);
}

// The text that gives the decimals shown back when it is applied, unless it would lose some of the number.
std::string withDecimals(double value, int decimals) {
    const std::string text = fixedText(value, decimals);
    return readNumber(text) == value ? text : shortestText(value);
}

// What the rows of the level names stand for, the individuals first.
const char* levelRole(int level, int levels) {
    if (level == 1)
        return "Individual";
    return level == levels ? "Cluster" : "Next level";
}

// A name that nobody has touched stays as it is, blanks and all.
std::string typedName(const DialogField& field) {
    return field.box.Text == field.atOpening ? field.atOpening : std::string(trimmed(field.box.Text));
}

// A share as the messages write it, ".49".
std::string pointNumber(double share) { return shortestText(share).substr(1); }

DialogField nameField(std::string control, std::string labelName = {}) {
    DialogField made = dialogField(std::move(control), {}, std::move(labelName));
    made.entry = DialogEntry::name;
    return made;
}

}  // namespace

// Words
// --------------------------------------------------------------------------------------------------------

SmallDialogs::SmallDialogs(Design& design)
    : design_(design), session_(design.session()), alpha_(makeAlpha()), delta_(makeDelta()),
      deltaHelp_(makeHelp()), mean_(makeMean()), groupNames_(makeGroupNames()), levelNames_(makeLevelNames()),
      maxCost_(makeMaxCost()), example_(makeExample()), error_(makeError()), value_(design), limits_(design) {
}

Dialog SmallDialogs::makeAlpha() {
    const FieldLimits& limits = fieldOf("txtAlpha").limits;
    return {"frmAlpha",
            WindowId::frmAlpha,
            "pnlLimits",
            {dialogField(alphaBox, panelOf("Alpha"))},
            {{"frmAlpha.cmdCancel", "Cancel", [this] { close(alpha_); }},
             {"frmAlpha.cmdOK", "OK", [this] { applyAlpha(); }}},
            false,
            panelOf("Alpha"),
            panelOf("The criterion for significance of the test"),
            panelOf("From " + pointNumber(limits.low) + " to " + pointNumber(limits.high))};
}

Dialog SmallDialogs::makeDelta() {
    Dialog dialog{"frmDelta",
                  WindowId::frmDelta,
                  "pnlLimits",
                  {dialogField(deltaBox, panelOf("Distance"))},
                  {{"frmDelta.cmdCancel", "Cancel", [this] { close(delta_); }},
                   {"frmDelta.Command1", "OK", [this] { applyDelta(); }}},
                  false,
                  panelOf("Limits for risks"),
                  panelOf("The smallest distance of any risk from 0 and from 1"),
                  panelOf(beginSentence(fieldOf("txtDelta").limits.words()))};
    dialog.sideButtons = {{"frmDelta.cmdHelp", "Help", [this] { show(deltaHelp_); }}};
    return dialog;
}

Dialog SmallDialogs::makeHelp() {
    return {"frmDeltaHelp",
            std::nullopt,
            "pnlText",
            {},
            {{"frmDeltaHelp.cmdClose", "Close", [this] { close(deltaHelp_); }}},
            false,
            panelOf("Setting limits for range of risk"),
            panelOf("How near to 0 and 1 a risk may lie"),
            panelOf(limitsHelp)};
}

Dialog SmallDialogs::makeMean() {
    return {"frmSetMean",
            WindowId::frmSetMean,
            "pnlExplain",
            {dialogField(meanBox, panelOf("Overall mean"), "frmSetMean.pnlHeading"),
             dialogField(spanBox, panelOf("Span"))},
            {{"frmSetMean.cmdCancel", "Cancel", [this] { close(mean_); }},
             {"frmSetMean.cmdOK", "OK", [this] { applyMean(); }}}};
}

Dialog SmallDialogs::makeGroupNames() {
    return {"frmGroupNames",
            WindowId::frmGroupNames,
            "pnlLimits",
            {nameField(groupBox(1)), nameField(groupBox(2))},
            {{"frmGroupNames.cmdGroupNames(1)", "Cancel", [this] { close(groupNames_); }},
             {"frmGroupNames.cmdGroupNames(0)", "Apply", [this] { applyGroupNames(); }}},
            false,
            panelOf("Group names"),
            panelOf("The names are used in labels only")};
}

Dialog SmallDialogs::makeLevelNames() {
    Dialog dialog{"frmLevelNames",
                  WindowId::frmLevelNames,
                  "pnlLimits",
                  {},
                  {{"frmLevelNames.cmdLevelNames(1)", "Cancel", [this] { close(levelNames_); }},
                   {"frmLevelNames.cmdLevelNames(0)", "Apply", [this] { applyLevelNames(); }}},
                  false,
                  panelOf("Level names"),
                  panelOf("Name the units of every level, in the plural")};
    for (int level = highestLevel; level >= lowestLevel; --level)
        dialog.fields.push_back(nameField(levelBox(level), indexedName("frmLevelNames.pnlLabel", level)));
    return dialog;
}

Dialog SmallDialogs::makeMaxCost() {
    return {"pic",
            std::nullopt,
            "pnlLimits",
            {dialogField(maxCostBox, panelOf("Maximum cost"))},
            {{"cmdSetMaxCost(1)", "Cancel", [this] { close(maxCost_); }},
             {"cmdSetMaxCost(0)", "Apply", [this] { applyMaxCost(); }}},
            false,
            panelOf("Set the maximum possible cost"),
            panelOf("The program will display the current cost as a percentage of the value"),
            panelOf("This affects the display only, and has no impact on the computations.")};
}

Dialog SmallDialogs::makeExample() {
    return {"frmOD",
            std::nullopt,
            "pnlLimits",
            {},
            {{"frmOD.cmdCancel", "Cancel", [this] { close(example_); }},
             {"frmOD.optA", "Use the example", [this] { applyExample(); }}},
            false,
            panelOf("Example of the optimal design"),
            panelOf("Two levels, randomized at the top"),
            panelOf("The present levels are replaced.")};
}

Dialog SmallDialogs::makeError() {
    return {"frmErr", std::nullopt, "pnlText", {}, {{"frmErr.Command1", "Close", [this] { close(error_); }}}};
}

// Windows
// ------------------------------------------------------------------------------------------------------

template <typename Self>
auto SmallDialogs::listOf(Self& self) {
    return std::vector{&self.alpha_,      &self.delta_,         &self.deltaHelp_, &self.mean_,
                       &self.groupNames_, &self.levelNames_,    &self.maxCost_,   &self.example_,
                       &self.error_,      &self.value_.dialog()};
}

std::vector<Dialog*> SmallDialogs::dialogs() { return listOf(*this); }

std::vector<const Dialog*> SmallDialogs::all() const { return listOf(*this); }

void SmallDialogs::refuse(Dialog& dialog, const std::string& text, const std::vector<std::string>& controls) {
    lorvane::refuse(design_, dialog, dialog.title.Caption, text, controls);
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
        refuse(alpha_, notANumber, {alphaBox});
    else if (*alpha < field.limits.low)
        refuse(alpha_, "Alpha must be " + pointNumber(field.limits.low) + " or higher         ", {alphaBox});
    else if (*alpha > field.limits.high)
        refuse(alpha_, "Alpha must be " + pointNumber(field.limits.high) + " or lower         ", {alphaBox});
    else {
        close(alpha_);
        enterValue(session_, {&field, 0}, *alpha);
    }
}

void SmallDialogs::openDelta() {
    delta_.box(deltaBox).Text = fixedText(session_.study().limits.txtDelta, 4);
    show(delta_);
}

// A value beyond a limit is reset to it, and has to be confirmed.
void SmallDialogs::applyDelta() {
    const Field& field = fieldOf("txtDelta");
    TextBox& box = delta_.box(deltaBox);
    const auto delta = readNumber(box.Text);
    if (!delta) {
        lorvane::refuse(design_, delta_, "Limits", notANumber, {deltaBox});
        return;
    }
    if (!field.limits.holds(*delta)) {
        box.Text = fixedText(std::clamp(*delta, field.limits.low, field.limits.high), 4);
        lorvane::refuse(design_, delta_, "Limits", "Value has been reset to " + box.Text, {});
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
    mean_.box(meanBox).Text = withDecimals(s.txtMean, s.decimals.txtMean);
    mean_.box(spanBox).Text = withDecimals(s.txtMRange(1), s.decimals.txtMRange);
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
        refuse(mean_, notANumber, {mean ? spanBox : meanBox});
        return;
    }
    const bool hasMean = holds("txtMean", *mean);
    if (!hasMean || !holds("txtSD", *span / spanOfOneSd)) {
        refuse(mean_, "Please enter a mean and a span that scores can have              ",
               {hasMean ? spanBox : meanBox});
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

void SmallDialogs::applyGroupNames() {
    const std::string treated = typedName(groupNames_.fields[0]);
    const std::string control = typedName(groupNames_.fields[1]);
    if (treated == control) {
        refuse(groupNames_, "Please use a unique name for each group              ",
               {groupBox(1), groupBox(2)});
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

void SmallDialogs::applyLevelNames() {
    const int levels = session_.study().NumLevels;
    PerLevel<std::string> names;
    for (int level = lowestLevel; level <= levels; ++level) {
        names(level) = typedName(levelNames_.fields[static_cast<std::size_t>(highestLevel - level)]);
        for (int other = lowestLevel; other < level; ++other) {
            if (names(level) == names(other)) {
                refuse(levelNames_, "Please use a unique name for each level              ",
                       {levelBox(level), levelBox(other)});
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

void SmallDialogs::enterIcc() {
    close(limits_.dialog());
    lorvane::enterIcc(session_);
}

void SmallDialogs::enterLimits() {
    const bool isChange = !session_.study().entersLimits();
    enterSpan(session_, RangeModes::limits);
    limits_.open(isChange);
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
        lorvane::refuse(design_, maxCost_, "Set maximum cost",
                        "Please enter a cost " + fieldOf("MaxCost").limits.words() + "              ",
                        {maxCostBox});
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
    if (!restWords(session_.study(), field).empty())
        openLimits();
    else if (field->arrows == ArrowRule::byStep)
        value_.open(field, firstText);
    else if (field->arrows == ArrowRule::twoStates && firstText.empty())
        stepField(session_, field, readNumberField(session_.state(), field) == 1 ? -1 : 1);
}

// Names and events
// ---------------------------------------------------------------------------------------------

void SmallDialogs::registerNames(ControlRegistry& registry) const {
    for (const Dialog* dialog : all())
        dialog->registerNames(registry);
    limits_.registerNames(registry);
    registry.add("frmErr.pnlTitle", error_.title);
    for (const RawTable* table : {&spreadICC_, &spreadTauSq_})
        registry.add(std::string(table->name) + ".Visible", &table->open);
}

void SmallDialogs::registerEvents(EventRegistry& events) {
    for (Dialog* dialog : dialogs())
        dialog->registerEvents(events, [this, dialog] { return isOpen(*dialog); });
    limits_.registerEvents(events);
    for (Dialog* dialog : {&delta_, &deltaHelp_, &mean_, &maxCost_, &example_, &error_, &value_.dialog()})
        events.onClose(dialog->name, [this, dialog] { close(*dialog); });
    events.onClose("frmAlpha", [this] {
        closeAsking(alpha_, isOpen(alpha_), "Apply changes to alpha?          ", &SmallDialogs::applyAlpha);
    });
    events.onClose("frmGroupNames", [this] {
        closeAsking(groupNames_, isOpen(groupNames_) && groupNames_.isChanged(), applyNamesQuestion,
                    &SmallDialogs::applyGroupNames);
    });
    events.onClose("frmLevelNames", [this] {
        closeAsking(levelNames_, isOpen(levelNames_) && levelNames_.isChanged(), applyNamesQuestion,
                    &SmallDialogs::applyLevelNames);
    });
    for (RawTable* table : {&spreadICC_, &spreadTauSq_})
        events.onClose(table->name, [table] { table->open = false; });
    events.onClick("frmDisplayICC.cmdDelta", [this] { openDelta(); });
    events.onClick("frmDisplayICC.cmdOptions", [this] { openLimits(); });
    events.onClick("frmDisplayICC.Command1",
                   [this] { design_.SynchForms(WindowId::frmDisplayICC, WindowAction::withdrawForGood); });
}

}  // namespace lorvane
