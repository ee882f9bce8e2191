// The dialog of the limits of risks.
#include "screen/limits_dialog.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/arithmetic_fault.h"
#include "base/names.h"
#include "base/number_text.h"
#include "validation/effect_dispersion.h"
#include "validation/icc_messages.h"
#include "validation/icc_span.h"

namespace lorvane {

namespace {

constexpr int lowestWithRisks = 2;
constexpr int fewestDecimals = 2;
constexpr int mostDecimals = 4;

constexpr const char* howItWorks =
    "Implied values follow every change. While limits are in use, the arrows of span and ICC rest.";

enum ColumnOrder : std::size_t { spans, iccs, tauSqs, effectSpans, omegas };

std::string lowerBox(int level) { return indexedName("frmLimits.txtLL", level); }
std::string upperBox(int level) { return indexedName("frmLimits.txtUL", level); }

std::size_t fieldNumber(int level) { return 2 * static_cast<std::size_t>(highestLevel - level); }

int typedDecimals(const std::string& text) {
    const std::size_t point = trimmed(text).find('.');
    const auto behind = point == std::string_view::npos ? 0 : trimmed(text).size() - point - 1;
    return std::clamp(static_cast<int>(behind), fewestDecimals, mostDecimals);
}

// The shortest form with two decimals at least, and with four at most: a limit that follows from a span has
// many.
std::string limitText(double limit) {
    const std::string text = shortestText(std::round(limit * 1e4) / 1e4);
    const std::string fixed = fixedText(limit, fewestDecimals);
    return text.size() < fixed.size() ? fixed : text;
}

// What was entered; a limit that nobody has touched keeps the digits that its text leaves out.
double limitOf(const DialogField& field, double stored) {
    return field.box.Text == limitText(stored) ? stored : *readNumber(field.box.Text);
}

const FieldLimits& limitsOfRisks() { return fieldOf("txtLL").limits; }

}  // namespace

LimitsDialog::LimitsDialog(Design& design)
    : design_(design), session_(design.session()), implied_{{"pnlSpan", panelOf("Span"), {}},
                                                            {"pnlICC", panelOf("ICC"), {}},
                                                            {"pnlTauSq", panelOf("Tau-sq"), {}},
                                                            {"pnlDRange", panelOf("Span of effects"), {}},
                                                            {"pnlOmega", panelOf("Omega"), {}}} {
    dialog_ = {"frmLimits",
               std::nullopt,
               "pnlLimits",
               {},
               {{"frmLimits.Command1", "Apply", [this] { apply(); }},
                {"frmLimits.cmdCancel", "Cancel", [this] { cancel(); }},
                {"frmLimits.Command3", "Use limits", [this] { useLimits(); }}},
               false,
               panelOf("Enter limits")};
    dialog_.heading = panelOf("Limits of risks");
    dialog_.sideButtons = {{"frmLimits.Command2", "Use spans", [this] { useSpans(); }}};
    dialog_.cancel = 1;
    makeFields();
}

void LimitsDialog::makeFields() {
    for (int level = highestLevel; level >= lowestWithRisks; --level) {
        dialog_.fields.push_back(dialogField(lowerBox(level)));
        dialog_.fields.push_back(dialogField(upperBox(level)));
    }
}

std::string LimitsDialog::arrowsOf(const DialogField& field) {
    std::string arrows = field.control;
    return arrows.replace(arrows.find("txt"), 3, "spn");
}

const DialogField& LimitsDialog::lower(int level) const { return dialog_.fields[fieldNumber(level)]; }
const DialogField& LimitsDialog::upper(int level) const { return dialog_.fields[fieldNumber(level) + 1]; }

// Opening and following
// --------------------------------------------------------------------------------------------------------

void LimitsDialog::open(bool byChange) {
    openedAt_ = byChange ? std::optional(session_.undoDepth()) : std::nullopt;
    const Study& s = session_.study();
    for (int level = lowestWithRisks; level <= highestLevel; ++level) {
        const bool used = level <= s.NumLevels;
        dialog_.box(lowerBox(level)) = {limitText(s.limits.txtLL(level)), used, used};
        dialog_.box(upperBox(level)) = {limitText(s.limits.txtUL(level)), used, used};
    }
    dialog_.open = true;
    follow();
    lorvane::open(design_, dialog_);
}

void LimitsDialog::follow() {
    if (!dialog_.open)
        return;
    const Study& s = session_.study();
    for (int level = lowestWithRisks; level <= highestLevel; ++level) {
        const bool used = level <= s.NumLevels;
        names_(level).Visible = used;
        names_(level).Caption = s.txtName(level);
        for (const std::size_t side : {0U, 1U}) {
            DialogField& field = dialog_.fields[fieldNumber(level) + side];
            field.box.Visible = field.box.Enabled = used;
            field.label.Caption = s.txtName(level) + (side == 0 ? ", lower limit" : ", upper limit");
        }
    }
    dialog_.sense.Caption =
        "Enter the lower and the upper limit of the risks at each level. The prevalence is " +
        fixedText(s.txtPrev, std::max(s.decimals.txtPrev, fewestDecimals)) + ".";
    showImplied();
}

// What the limits imply, tried on a copy of the study
// --------------------------------------------------------------------------------------------------------

void LimitsDialog::clearImplied() {
    for (Column& column : implied_) {
        for (int level = lowestWithRisks; level <= highestLevel; ++level)
            column.cells(level).Caption.clear();
    }
}

void LimitsDialog::tell(std::string text, bool trouble) {
    dialog_.note.Caption = std::move(text);
    dialog_.note.trouble = trouble;
}

void LimitsDialog::showImplied() {
    clearImplied();
    tell(howItWorks, false);
    const Study& now = session_.study();
    const bool complete =
        std::all_of(dialog_.fields.begin(), dialog_.fields.end(), [](const DialogField& field) {
            return !field.box.Visible || readNumber(field.box.Text).has_value();
        });
    if (!now.isBinary() || !complete)
        return;
    Study trial = now;
    writeLimits(trial);
    try {
        const IccVerdict verdict = SynchICC(trial);
        SynchTauSq(trial);
        if (!trial.outcome.ValidICC(0))
            tell(iccMessageText(trial, verdict), true);
    } catch (const ArithmeticFault&) {
        return;
    }
    for (int level = lowestWithRisks; level <= trial.NumLevels; ++level)
        writeImplied(trial, level);
}

// A value that cannot be told is left empty, and so is one that a level does not have.
void LimitsDialog::writeImplied(const Study& trial, int level) {
    const auto write = [&](ColumnOrder column, bool shown, double value, int decimals) {
        implied_[column].cells(level).Caption = shown ? fixedText(value, decimals) : "";
    };
    const double span = trial.limits.txtUL(level) - trial.limits.txtLL(level);
    const int decimals = std::max(typedDecimals(lower(level).box.Text), typedDecimals(upper(level).box.Text));
    const bool known = span >= 0 && trial.outcome.ValidICC(level);
    write(spans, known, span, decimals);
    write(iccs, known, trial.txtICC(level), mostDecimals);
    const EffectDispersion& effect = trial.effect;
    const bool blocked = known && trial.isBlocked(level);
    write(tauSqs, blocked && effect.ShowTauSq(level), effect.txtTauSq(level), mostDecimals);
    write(effectSpans, blocked && effect.ShowSpan(level), effect.txtSpan(level), fewestDecimals);
    write(omegas, blocked && effect.ShowOmega(level), effect.txtOmega(level), mostDecimals);
}

// Fields and buttons
// --------------------------------------------------------------------------------------------------------

// One unit of the last decimal that is typed.
void LimitsDialog::step(DialogField& field, int direction) {
    const auto limit = readNumber(field.box.Text);
    if (!limit || !field.box.Enabled)
        return;
    const int decimals = typedDecimals(field.box.Text);
    const double moved = *limit + direction * std::pow(10, -decimals);
    field.box.Text = fixedText(std::clamp(moved, limitsOfRisks().low, limitsOfRisks().high), decimals);
}

bool LimitsDialog::refusesLimits() {
    std::vector<std::string> faulty;
    bool areNumbers = true;
    for (const DialogField& field : dialog_.fields) {
        const auto limit = readNumber(field.box.Text);
        if (!field.box.Visible || (limit && limitsOfRisks().holds(*limit)))
            continue;
        faulty.push_back(field.control);
        areNumbers = areNumbers && limit.has_value();
    }
    if (!faulty.empty())
        refuse(design_, dialog_, "Limits",
               areNumbers ? "Please enter limits " + limitsOfRisks().words() + "              " : notANumber,
               faulty);
    return !faulty.empty();
}

// A study of risks has its limits in force from here on, and their distances as its spans.
void LimitsDialog::writeLimits(Study& study) const {
    RiskLimits& limits = study.limits;
    for (int level = lowestWithRisks; level <= study.NumLevels; ++level) {
        limits.txtLL(level) = limitOf(lower(level), limits.txtLL(level));
        limits.txtUL(level) = limitOf(upper(level), limits.txtUL(level));
        if (study.isBinary())
            study.txtMRange(level) = std::max(limits.txtUL(level) - limits.txtLL(level), 0.0);
    }
    if (!study.isBinary())
        return;
    study.IccMetric = IccMetrics::span;
    limits.RangeMode = RangeModes::limits;
}

void LimitsDialog::apply() {
    if (refusesLimits())
        return;
    dialog_.begin();
    session_.edit({"limits of risks"}, [&](SessionState& state) { writeLimits(state.study); });
}

void LimitsDialog::useLimits() {
    if (refusesLimits())
        return;
    close(design_, dialog_);
    session_.edit({"limits of risks"}, [&](SessionState& state) {
        writeLimits(state.study);
        state.study.limits.RangeMode = RangeModes::limits;
    });
}

// The command that opened the dialog has put limits in force; without anything applied since, they go again.
void LimitsDialog::cancel() {
    close(design_, dialog_);
    if (openedAt_ == session_.undoDepth())
        session_.undo();
    openedAt_.reset();
}

void LimitsDialog::useSpans() {
    close(design_, dialog_);
    session_.edit({"entry of risks"},
                  [](SessionState& state) { state.study.limits.RangeMode = RangeModes::span; });
}

// Names and events
// --------------------------------------------------------------------------------------------------------

void LimitsDialog::registerNames(ControlRegistry& registry) const {
    dialog_.registerNames(registry);
    for (const Column& column : implied_) {
        for (int level = lowestWithRisks; level <= highestLevel; ++level)
            registry.add(indexedName(std::string("frmLimits.") + column.name, level), column.cells(level));
    }
}

void LimitsDialog::registerEvents(EventRegistry& events) {
    dialog_.registerEvents(events, [this] { return isOpen(design_, dialog_); });
    events.onClose(dialog_.name, [this] { close(design_, dialog_); });
    for (DialogField& field : dialog_.fields) {
        const auto changed = [this, &field](const auto& change) {
            change();
            dialog_.takeTyped(field);
            showImplied();
        };
        events.onTyped(field.control, [changed] { changed([] {}); });
        events.onSpin(arrowsOf(field), [this, changed, &field](int direction) {
            if (dialog_.open)
                changed([&] { step(field, direction); });
        });
    }
}

}  // namespace lorvane
