// The small dialogs of the study screen.
#include "screen/small_dialogs.h"

#include <algorithm>
#include <cmath>

#include "base/names.h"
#include "base/number_text.h"
#include "screen/ask_to_apply.h"
#include "screen/commands.h"
#include "screen/field_words.h"

namespace lorvane {

namespace {

constexpr double smallestAlpha = 0.001;
constexpr double largestAlpha = 0.49;
constexpr double smallestDelta = 0.0001;
constexpr double largestDelta = 0.1;
constexpr double spanOfOneSd = 4;
constexpr int mostDecimals = 4;

constexpr const char* notANumber = "Please enter a number              ";

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

// Only a value that arrows can move has a dialog of its own.
bool hasArrows(const std::string& field) {
    const SpinRows rows = spinRows();
    const std::string_view stem = splitName(field).stem;
    return std::any_of(rows.begin(), rows.end(), [&](const SpinRow& row) { return row.field == stem; });
}

std::string typedName(const TextBox& box) { return std::string(trimmed(box.Text)); }

}  // namespace

bool SmallDialogs::refuse(const std::string& title, const std::string& text) {
    design_.ask(title, text);
    return false;
}

void SmallDialogs::openAlpha() {
    alpha_.Text = shortestText(design_.study().txtAlpha);
    open(WindowId::frmAlpha);
}

bool SmallDialogs::applyAlpha() {
    const auto alpha = readNumber(alpha_.Text);
    if (!alpha)
        return refuse("Alpha", notANumber);
    if (*alpha < smallestAlpha)
        return refuse("Alpha", "Alpha must be .001 or higher         ");
    if (*alpha > largestAlpha)
        return refuse("Alpha", "Alpha must be .49 or lower         ");
    design_.study().txtAlpha = *alpha;
    close(WindowId::frmAlpha);
    design_.DoRefresh(true);
    return true;
}

void SmallDialogs::openDelta() {
    delta_.Text = fixedText(design_.study().limits.txtDelta, 4);
    open(WindowId::frmDelta);
}

void SmallDialogs::applyDelta() {
    const auto delta = readNumber(delta_.Text);
    if (!delta) {
        refuse("Limits", notANumber);
        return;
    }
    const double held = std::clamp(*delta, smallestDelta, largestDelta);
    if (held != *delta) {
        delta_.Text = fixedText(held, 4);
        refuse("Limits", "Value has been reset to " + delta_.Text);
        return;
    }
    design_.study().limits.txtDelta = *delta;
    close(WindowId::frmDelta);
    design_.DoRefresh(true);
}

bool SmallDialogs::holds(const char* field, double value) const {
    return design_.fields().limitsOf(*design_.fields().find(field)).holds(value);
}

void SmallDialogs::openMean() {
    const Study& s = design_.study();
    const std::string& control = s.controlName();
    mean_.title.Caption = "Set " + control + " group mean and span";
    mean_.prompt.Caption = "Enter values for the " + control + " group";
    mean_.heading.Caption = "Overall mean";
    mean_.txtMean.Text = shortestText(s.txtMean);
    mean_.txtSpan.Text = shortestText(s.txtMRange(1));
    mean_.explanation.Caption = "Span of scores for " + s.txtName(1) +
                                ". The span is 4 standard deviations. This span implies that the standard "
                                "deviation of scores within " +
                                control + " is " + shortestText(s.txtSD) + ".";
    open(WindowId::frmSetMean);
}

void SmallDialogs::applyMean() {
    const auto mean = readNumber(mean_.txtMean.Text);
    const auto span = readNumber(mean_.txtSpan.Text);
    if (!mean || !span) {
        refuse(mean_.title.Caption, notANumber);
        return;
    }
    if (!holds("txtMean", *mean) || !holds("txtSD", *span / spanOfOneSd)) {
        refuse(mean_.title.Caption, "Please enter a mean and a span that scores can have              ");
        return;
    }
    Study& s = design_.study();
    s.txtMean = *mean;
    s.decimals.txtMean = typedDecimals(mean_.txtMean.Text);
    s.txtMRange(1) = *span;
    s.decimals.txtMRange = typedDecimals(mean_.txtSpan.Text);
    s.txtSD = *span / spanOfOneSd;
    s.decimals.txtSD = s.decimals.txtMRange;
    close(WindowId::frmSetMean);
    design_.DoRefresh(true);
}

void SmallDialogs::openGroupNames() {
    for (int group = 1; group <= 2; ++group)
        groupNames_(group).Text = design_.study().txtGroupName(group);
    open(WindowId::frmGroupNames);
}

bool SmallDialogs::groupNamesChanged() const {
    const Study& s = design_.study();
    return groupNames_(1).Text != s.txtGroupName(1) || groupNames_(2).Text != s.txtGroupName(2);
}

bool SmallDialogs::applyGroupNames() {
    const std::string treated = typedName(groupNames_(1));
    const std::string control = typedName(groupNames_(2));
    if (treated == control)
        return refuse("Group names", "Please use a unique name for each group              ");
    design_.study().txtGroupName(1) = treated;
    design_.study().txtGroupName(2) = control;
    close(WindowId::frmGroupNames);
    design_.DoRefresh(true);
    return true;
}

void SmallDialogs::openLevelNames() {
    const Study& s = design_.study();
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        const bool used = level <= s.NumLevels;
        levelNames_(level) = {s.txtName(level), used, used};
        levelLabels_(level).Caption = levelRole(level, s.NumLevels);
        levelLabels_(level).Visible = used;
    }
    open(WindowId::frmLevelNames);
}

bool SmallDialogs::levelNamesChanged() const {
    const Study& s = design_.study();
    for (int level = lowestLevel; level <= s.NumLevels; ++level) {
        if (levelNames_(level).Text != s.txtName(level))
            return true;
    }
    return false;
}

bool SmallDialogs::applyLevelNames() {
    Study& s = design_.study();
    for (int level = lowestLevel; level <= s.NumLevels; ++level) {
        for (int other = level + 1; other <= s.NumLevels; ++other) {
            if (typedName(levelNames_(level)) == typedName(levelNames_(other)))
                return refuse("Level names", "Please use a unique name for each level              ");
        }
    }
    for (int level = lowestLevel; level <= s.NumLevels; ++level)
        s.txtName(level) = typedName(levelNames_(level));
    close(WindowId::frmLevelNames);
    design_.DoRefresh(true);
    return true;
}

void SmallDialogs::closeNames(WindowId window, bool changed, bool (SmallDialogs::*apply)()) {
    if (changed)
        askToApply(design_, window, applyNamesQuestion, [this, apply] { (this->*apply)(); });
    else
        close(window);
}

void SmallDialogs::openLimits() {
    const Study& s = design_.study();
    for (int level = 2; level <= highestLevel; ++level) {
        const bool used = level <= s.NumLevels;
        limits_.txtLL(level) = {shortestText(s.limits.txtLL(level)), used, used};
        limits_.txtUL(level) = {shortestText(s.limits.txtUL(level)), used, used};
    }
    limitsOpen_ = true;
}

void SmallDialogs::applyLimits() {
    if (!limitsOpen_)
        return;
    Study& s = design_.study();
    for (int level = 2; level <= s.NumLevels; ++level) {
        if (!readNumber(limits_.txtLL(level).Text) || !readNumber(limits_.txtUL(level).Text)) {
            refuse("Limits", notANumber);
            return;
        }
    }
    for (int level = 2; level <= s.NumLevels; ++level) {
        s.limits.txtLL(level) = *readNumber(limits_.txtLL(level).Text);
        s.limits.txtUL(level) = *readNumber(limits_.txtUL(level).Text);
    }
    design_.DoRefresh(true);
}

// Chooses how the risks of a level are entered, and closes the dialog.
void SmallDialogs::enterRisksAs(int rangeMode) {
    design_.study().limits.RangeMode = rangeMode;
    limitsOpen_ = false;
    design_.DoRefresh(true);
}

void SmallDialogs::openMaxCost() {
    maxCost_.Text = shortestText(design_.study().MaxCost);
    maxCostOpen_ = true;
}

void SmallDialogs::applyMaxCost() {
    if (!maxCostOpen_)
        return;
    const auto cost = readNumber(maxCost_.Text);
    const StudyField& field = *design_.fields().find("MaxCost");
    if (!cost || !design_.fields().limitsOf(field).holds(*cost)) {
        refuse("Set maximum cost", "Please enter a cost " + field.limits.words() + "              ");
        return;
    }
    design_.study().MaxCost = *cost;
    maxCostOpen_ = false;
    design_.DoRefresh(true);
}

void SmallDialogs::openValue(const std::string& field) {
    const StudyField* found = design_.fields().find(field);
    if (found == nullptr || !hasArrows(field))
        return;
    const double value = std::get<double>(readField(*found));
    const int decimals = found->FmtDecDigits == nullptr ? 0 : *found->FmtDecDigits;
    value_.field = field;
    value_.title.Caption = fieldWords(design_.study(), field);
    value_.sense.Caption = "Enter a value";
    value_.limits.Caption = (found->FmtDecDigits == nullptr ? "A whole number " : "A number ") +
                            design_.fields().limitsOf(*found).words();
    value_.txtValue.Text = decimals == 0 ? shortestText(value) : fixedText(value, decimals);
    valueOpen_ = true;
}

void SmallDialogs::applyValue() {
    if (!valueOpen_)
        return;
    const StudyField& field = *design_.fields().find(value_.field);
    const auto number = readNumber(value_.txtValue.Text);
    const FieldLimits limits = design_.fields().limitsOf(field);
    const bool whole = field.FmtDecDigits == nullptr;
    if (!number || !limits.holds(*number) || (whole && *number != std::floor(*number))) {
        refuse(value_.title.Caption, std::string("Please enter a ") + (whole ? "whole number " : "number ") +
                                         limits.words() + "              ");
        return;
    }
    valueOpen_ = false;
    design_.setValue(field.name, *number);
}

void SmallDialogs::registerNames(ControlRegistry& registry) const {
    registry.add("frmAlpha.txtAlpha.Text", &alpha_.Text);
    registry.add("frmDelta.txtDelta.Text", &delta_.Text);
    registry.add("frmSetMean.Caption", &mean_.title.Caption);
    registry.add("frmSetMean.pnlPrompt", mean_.prompt);
    registry.add("frmSetMean.pnlHeading", mean_.heading);
    registry.add("frmSetMean.pnlExplain", mean_.explanation);
    registry.add("frmSetMean.txtMean.Text", &mean_.txtMean.Text);
    registry.add("frmSetMean.txtSpan.Text", &mean_.txtSpan.Text);
    for (int group = 1; group <= 2; ++group)
        registry.add(indexedName("frmGroupNames.txtGroupName", group) + ".Text", &groupNames_(group).Text);
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        registry.add(indexedName("frmLevelNames.txtLevelNames", level) + ".Text", &levelNames_(level).Text);
        registry.add(indexedName("frmLevelNames.pnlLabel", level), levelLabels_(level));
    }
    registry.add("txtMaxCost.Text", &maxCost_.Text);
    registry.add("pic.Visible", &maxCostOpen_);
    registry.add("frmLimits.Visible", &limitsOpen_);
    registry.add("frmValue.Visible", &valueOpen_);
    registry.add("frmOD.Visible", &exampleOpen_);
    registry.add("frmSpreadICC.Visible", &spreadICCOpen_);
    registry.add("frmSpreadTauSq.Visible", &spreadTauSqOpen_);
    registry.add("frmValue.Caption", &value_.title.Caption);
    registry.add("frmValue.pnlLimits", value_.limits);
    registry.add("frmValue.txtValue.Text", &value_.txtValue.Text);
}

void SmallDialogs::registerEvents(EventRegistry& events) {
    registerNumbers(events);
    registerMean(events);
    registerNameDialogs(events);
    registerLimits(events);
    registerMaxCost(events);
    registerValue(events);
    registerExample(events);
    registerRawTables(events);
}

// The chooser of the example of the optimal design has one option.
void SmallDialogs::registerExample(EventRegistry& events) {
    events.onTool("OD", [this] { exampleOpen_ = true; });
    events.onClick("frmOD.optA", [this] {
        if (!exampleOpen_)
            return;
        exampleOpen_ = false;
        ResetForOD(design_);
    });
    events.onClose("frmOD", [this] { exampleOpen_ = false; });
}

void SmallDialogs::registerRawTables(EventRegistry& events) {
    events.onTool("Debug ICC", [this] { spreadICCOpen_ = true; });
    events.onTool("Debug Tau-sq", [this] { spreadTauSqOpen_ = true; });
    events.onClose("frmSpreadICC", [this] { spreadICCOpen_ = false; });
    events.onClose("frmSpreadTauSq", [this] { spreadTauSqOpen_ = false; });
}

// A button of a dialog that is not open does nothing.
void SmallDialogs::whileOpen(EventRegistry& events, const char* button, WindowId window,
                             std::function<void()> press) {
    events.onClick(button, [this, window, press = std::move(press)] {
        if (isOpen(window))
            press();
    });
}

void SmallDialogs::registerNumbers(EventRegistry& events) {
    events.onTool("gfrmAlpha", [this] { openAlpha(); });
    events.addTextBox("frmAlpha.txtAlpha", alpha_);
    whileOpen(events, "frmAlpha.cmdOK", WindowId::frmAlpha, [this] { applyAlpha(); });
    events.onClose("frmAlpha", [this] {
        askToApply(design_, WindowId::frmAlpha, "Apply changes to alpha?          ",
                   [this] { applyAlpha(); });
    });
    events.onTool("gfrmDelta", [this] { openDelta(); });
    events.onClick("frmDisplayICC.cmdDelta", [this] { openDelta(); });
    events.addTextBox("frmDelta.txtDelta", delta_);
    whileOpen(events, "frmDelta.Command1", WindowId::frmDelta, [this] { applyDelta(); });
    events.onClose("frmDelta", [this] { close(WindowId::frmDelta); });
}

void SmallDialogs::registerMean(EventRegistry& events) {
    events.onTool("gfrmControlMean", [this] { openMean(); });
    events.addTextBox("frmSetMean.txtMean", mean_.txtMean);
    events.addTextBox("frmSetMean.txtSpan", mean_.txtSpan);
    whileOpen(events, "frmSetMean.cmdOK", WindowId::frmSetMean, [this] { applyMean(); });
    events.onClick("frmSetMean.cmdCancel", [this] { close(WindowId::frmSetMean); });
    events.onClose("frmSetMean", [this] { close(WindowId::frmSetMean); });
}

void SmallDialogs::registerNameDialogs(EventRegistry& events) {
    events.onTool("gfrmGroupNames", [this] { openGroupNames(); });
    for (int group = 1; group <= 2; ++group)
        events.addTextBox(indexedName("frmGroupNames.txtGroupName", group), groupNames_(group));
    whileOpen(events, "frmGroupNames.cmdGroupNames(0)", WindowId::frmGroupNames,
              [this] { applyGroupNames(); });
    events.onClick("frmGroupNames.cmdGroupNames(1)", [this] { close(WindowId::frmGroupNames); });
    events.onClose("frmGroupNames", [this] {
        closeNames(WindowId::frmGroupNames, groupNamesChanged(), &SmallDialogs::applyGroupNames);
    });
    events.onTool("gfrmLevelNames", [this] { openLevelNames(); });
    for (int level = lowestLevel; level <= highestLevel; ++level)
        events.addTextBox(indexedName("frmLevelNames.txtLevelNames", level), levelNames_(level));
    whileOpen(events, "frmLevelNames.cmdLevelNames(0)", WindowId::frmLevelNames,
              [this] { applyLevelNames(); });
    events.onClick("frmLevelNames.cmdLevelNames(1)", [this] { close(WindowId::frmLevelNames); });
    events.onClose("frmLevelNames", [this] {
        closeNames(WindowId::frmLevelNames, levelNamesChanged(), &SmallDialogs::applyLevelNames);
    });
}

void SmallDialogs::registerLimits(EventRegistry& events) {
    events.onTool("Enter ICC", [this] {
        limitsOpen_ = false;
        enterIcc(design_);
    });
    events.onTool("Enter limits", [this] {
        enterLimits(design_);
        openLimits();
    });
    events.onTool("FrmLimits", [this] { openLimits(); });
    events.onClick("frmDisplayICC.cmdOptions", [this] { openLimits(); });
    for (int level = 2; level <= highestLevel; ++level) {
        events.addTextBox(indexedName("frmLimits.txtLL", level), limits_.txtLL(level));
        events.addTextBox(indexedName("frmLimits.txtUL", level), limits_.txtUL(level));
    }
    events.onClick("frmLimits.Command1", [this] { applyLimits(); });
    events.onClick("frmLimits.Command2", [this] { enterRisksAs(RangeModes::span); });
    events.onClick("frmLimits.Command3", [this] { enterRisksAs(RangeModes::limits); });
    events.onClose("frmLimits", [this] { limitsOpen_ = false; });
}

void SmallDialogs::registerMaxCost(EventRegistry& events) {
    events.onTool("Set maximum cost", [this] { openMaxCost(); });
    events.addTextBox("txtMaxCost", maxCost_);
    events.onClick("cmdSetMaxCost(0)", [this] { applyMaxCost(); });
    events.onClick("cmdSetMaxCost(1)", [this] { maxCostOpen_ = false; });
    events.onClose("pic", [this] { maxCostOpen_ = false; });
}

void SmallDialogs::registerValue(EventRegistry& events) {
    events.addTextBox("frmValue.txtValue", value_.txtValue);
    events.onClick("frmValue.cmdOK", [this] { applyValue(); });
    events.onClick("frmValue.cmdCancel", [this] { valueOpen_ = false; });
    events.onClose("frmValue", [this] { valueOpen_ = false; });
}

}  // namespace lorvane
