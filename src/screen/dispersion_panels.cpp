// Display models of the two dispersion panels.
#include "screen/dispersion_panels.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "base/names.h"
#include "base/number_text.h"
#include "screen/design_words.h"
#include "validation/dispersion_tables.h"
#include "validation/icc_messages.h"
#include "validation/logit_variance.h"

namespace lorvane {

namespace {

constexpr double widthWithoutSpan = 1;

void writeMessage(Panel& outer, Panel& inner, std::string message) {
    outer.Visible = !message.empty();
    inner.Caption = std::move(message);
}

std::string shownIf(bool shown, double value, int decimals) {
    return shown ? fixedText(value, decimals) : std::string();
}

// Decimals that tell a range apart: fewer for a wide one, three for risks.
int decimalsOfRange(const Study& s, double width) {
    if (s.isBinary())
        return 3;
    return width >= 100 ? 1 : 2;
}

void writeBar(SpanBar& bar, double low, double high, int decimals) {
    bar.Visible = true;
    bar.low = low;
    bar.high = high;
    bar.lowText = fixedText(low, decimals);
    bar.highText = fixedText(high, decimals);
}

std::string barText(const SpanBar& bar) { return bar.Visible ? bar.lowText + " to " + bar.highText : ""; }

std::vector<std::string> namesFrom(const Study& s, int lowest) {
    std::vector<std::string> names;
    for (int level = s.NumLevels; level >= lowest; --level)
        names.push_back(s.txtName(level));
    return names;
}

// ------------------------------------------------------------------ frmDisplayICC

void writeIccTitles(const Study& s, IccPanel& panel) {
    const std::string what = s.isMeans() ? "means" : "risks";
    const std::string& group = s.controlName();
    panel.pnlTitle.Caption = "  ICC and range of " + what;
    panel.lblUnit.Caption = "Unit";
    panel.lblIcc.Caption = "ICC";
    panel.lblSpan.Caption = "Span";
    panel.lblRange.Caption = "Range of " + what + " in the " + group + " group";
    panel.picture.pnlSchematic.Caption = "The " + group + (s.isMeans() ? "-group mean" : "-group risk") +
                                         " will vary across " + joinedNames(namesFrom(s, 2)) +
                                         " as shown here.";
    const bool riskDifference = s.isBinary() && s.BinaryType == BinaryTypes::riskDifference;
    panel.picture.pnlNote.Caption =
        riskDifference ? "For a risk difference, the ICC is that of the " + group + " group." : "";
    panel.Command1.Caption = "Close";
    panel.cmdDelta.Caption = "Limits of risks";
    panel.cmdOptions.Caption = "Enter limits";
    panel.cmdOptions.Visible = s.isBinary();
}

void writeIccRow(const Study& s, IccPanel& panel, int level, bool used) {
    const bool icc = used && level > 1;
    const bool span = used && (level > 1 || s.isMeans());
    const bool iccEntered = s.IccMetric == IccMetrics::icc;
    panel.txtICC(level) = s.txtICC(level);
    panel.txtSpan(level) = s.txtMRange(level);
    panel.pnlUnit(level).Caption = s.txtName(level);
    panel.pnlUnit(level).Visible = used;
    panel.pnlICC(level).Visible = icc;
    panel.pnlWidth(level).Visible = span;
    panel.pnlExample(level).Visible = span;
    panel.pnlICC(level).Caption =
        shownIf(icc && s.outcome.ShowICC(level), s.txtICC(level), s.decimals.txtICC);
    panel.pnlWidth(level).Caption =
        shownIf(span && s.outcome.ShowSpan(level), s.txtMRange(level), s.decimals.txtMRange);
    panel.iccSpin(level) = icc && iccEntered;
    panel.spanSpin(level) = span && (!iccEntered || level == 1);
}

// The scale runs over two spans of the individuals, or over all risks.
void writeIccScale(const Study& s, Schematic& picture) {
    const double half = s.txtMRange(1) == 0 ? widthWithoutSpan : s.txtMRange(1);
    picture.low = s.isMeans() ? s.txtMean - half : 0;
    picture.high = s.isMeans() ? s.txtMean + half : 1;
    picture.centre = s.isMeans() ? s.txtMean : s.txtPrev;
    picture.pnlVal.Caption = s.isMeans() ? "Mean " + fixedText(s.txtMean, s.decimals.txtMean)
                                         : "Risk " + fixedText(s.txtPrev, std::max(s.decimals.txtPrev, 2));
}

bool anyTruncated(const Study& s) {
    for (int level = 2; s.isBinary() && level <= s.NumLevels; ++level) {
        if (GetRange(s.txtPrev, spanOfLevel(s, level)).truncated)
            return true;
    }
    return false;
}

void writeIccBars(const Study& s, const IccVerdict& verdict, IccPanel& panel) {
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        SpanBar& bar = panel.picture.bars(level);
        bar = SpanBar();
        bar.isScores = level == 1;
        if (level <= s.NumLevels && verdict.sumIsGood && (level > 1 || s.isMeans())) {
            const IccRow row = iccRow(s, level);
            writeBar(bar, row.lower, row.upper, decimalsOfRange(s, s.txtMRange(1)));
        }
        panel.pnlExample(level).Caption = barText(bar);
    }
    panel.picture.pnlFooter.Caption = anyTruncated(s)
                                          ? "Range includes 95% of units."
                                          : "Range includes 95% of units, shown centered on mean.";
}

// ---------------------------------------------------------------- frmDisplayTauSq

const char* effectWord(const Study& s) {
    if (s.isMeans())
        return "(d)";
    return s.BinaryType == BinaryTypes::oddsRatio ? "(log odds ratio)" : "(risk differences)";
}

const char* effectSentence(const Study& s) {
    if (s.isMeans())
        return "The effect size (d) will vary across ";
    return s.BinaryType == BinaryTypes::oddsRatio ? "The effect size (the log odds ratio) will vary across "
                                                  : "The effect size (the risk difference) will vary across ";
}

const char* effectRange(const Study& s) {
    if (s.isMeans())
        return s.DType == DTypes::within ? "Range of the effect size d (within) across blocks"
                                         : "Range of the effect size d (total) across blocks";
    return s.BinaryType == BinaryTypes::oddsRatio
               ? "Range of the odds ratio (raw scale) across blocks"
               : "Range of the effect size (risk difference) across blocks";
}

void writeTauSqTitles(const Study& s, bool showOmega, TauSqPanel& panel) {
    const bool logScale = s.isBinary() && s.BinaryType == BinaryTypes::oddsRatio;
    panel.pnlTitle.Caption = std::string("Tau-squared and distribution of effect sizes ") + effectWord(s);
    panel.lblUnit.Caption = "Unit";
    panel.lblTauSq.Caption = logScale ? "Tau-sq (log scale)" : "Tau-sq";
    panel.lblSpan.Caption = logScale ? "Span (log scale)" : "Span";
    panel.lblOmega.Caption = "Omega";
    panel.lblOmega.Visible = showOmega;
    panel.lblRange.Caption = effectRange(s);
    panel.picture.pnlSchematic.Caption =
        effectSentence(s) + joinedNames(namesFrom(s, s.RandomizedLevel + 1)) + " as shown here.";
    panel.picture.pnlFooter.Caption = "Range includes 95% of effects, shown centered on mean.";
}

// A binary study with the span of effects entered shows tau-squared with five decimals, and the span with one
// to three.
bool showsSpanOfRisks(const Study& s) { return s.isBinary() && s.TauSqMetric == TauSqMetrics::spanOfEffects; }
int decimalsOfTauSq(const Study& s) { return showsSpanOfRisks(s) ? 5 : s.decimals.txtTauSq; }
int decimalsOfSpan(const Study& s) {
    return showsSpanOfRisks(s) ? std::clamp(s.decimals.txtDRange, 1, 3) : s.decimals.txtDRange;
}

// A negative tau-squared, as a file can hold, is a problem that still shows.
bool showsTauSq(const EffectDispersion& effect, int level) {
    const bool told = effect.ValidTauSq(level) || effect.txtTauSq(level) < 0;
    return told && effect.ShowTauSq(level);
}

void writeTauSqRow(const Study& s, bool showOmega, TauSqPanel& panel, int level) {
    const EffectDispersion& effect = s.effect;
    const bool blocked = level <= s.NumLevels && s.isBlocked(level);
    panel.pnlUnit(level).Caption = s.txtName(level);
    for (Panel* cell : {&panel.pnlUnit(level), &panel.pnlTauSq(level), &panel.pnlWidth(level),
                        &panel.pnlOmega(level), &panel.pnlExample(level)})
        cell->Visible = blocked;
    panel.pnlOmega(level).Visible = blocked && showOmega;
    panel.pnlTauSq(level).Caption =
        shownIf(blocked && showsTauSq(effect, level), effect.txtTauSq(level), decimalsOfTauSq(s));
    panel.pnlWidth(level).Caption =
        shownIf(blocked && effect.ValidSpan(level), effect.txtSpan(level), decimalsOfSpan(s));
    panel.pnlOmega(level).Caption =
        shownIf(blocked && effect.ValidOmega(level), effect.txtOmega(level), s.decimals.txtOmega);
    panel.tauSqSpin(level) = blocked && s.TauSqMetric == TauSqMetrics::tauSquared;
    panel.spanSpin(level) = blocked && s.TauSqMetric == TauSqMetrics::spanOfEffects;
    panel.omegaSpin(level) = blocked && s.TauSqMetric == TauSqMetrics::omega;
}

double effectOf(const Study& s) {
    if (s.isMeans())
        return s.txtd;
    return s.BinaryType == BinaryTypes::oddsRatio ? s.txtOR : s.txtRD;
}

void writeTauSqBars(const Study& s, TauSqPanel& panel) {
    Schematic& picture = panel.picture;
    picture.centre = effectOf(s);
    picture.pnlVal.Caption = "Effect " + fixedText(picture.centre, 2);
    double low = picture.centre, high = picture.centre;
    for (int level = 2; level <= highestLevel; ++level) {
        SpanBar& bar = picture.bars(level);
        bar = SpanBar();
        const bool told = level <= s.NumLevels && s.isBlocked(level) && s.effect.ValidTauSq(0);
        const TauSqRow row = told ? tauSqRow(s, level) : TauSqRow();
        if (row.hasLimits)
            writeBar(bar, row.lower, row.upper, s.isMeans() ? 2 : 3);
        low = std::min(low, bar.Visible ? bar.low : low);
        high = std::max(high, bar.Visible ? bar.high : high);
        panel.pnlExample(level).Caption = barText(bar);
    }
    const double margin = high > low ? (high - low) / 4 : widthWithoutSpan / 2;
    picture.low = low - margin;
    picture.high = high + margin;
}

// -------------------------------------------------------------------------- names

void registerPicture(ControlRegistry& registry, const std::string& window, const Schematic& picture) {
    registry.add(window + "pnlSchematic", picture.pnlSchematic);
    registry.add(window + "pnlFooter", picture.pnlFooter);
    registry.add(window + "pnlNote", picture.pnlNote);
    registry.add(window + "pnlVal", picture.pnlVal);
    registry.add(window + "Scale.Low", &picture.low);
    registry.add(window + "Scale.High", &picture.high);
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        const std::string name = indexedName(window + "bar", level);
        registry.add(name + ".Visible", &picture.bars(level).Visible);
        registry.add(name + ".Low", &picture.bars(level).low);
        registry.add(name + ".High", &picture.bars(level).high);
    }
}

using PanelColumn = std::pair<const char*, const PerLevel<Panel>*>;

void registerColumns(ControlRegistry& registry, const std::string& window,
                     std::initializer_list<PanelColumn> columns) {
    for (const auto& [name, panels] : columns) {
        for (int level = lowestLevel; level <= highestLevel; ++level)
            registry.add(indexedName(window + name, level), (*panels)(level));
    }
}

}  // namespace

void writeIccPanel(const Study& study, const IccVerdict& verdict, IccPanel& panel) {
    writeIccTitles(study, panel);
    for (int level = lowestLevel; level <= highestLevel; ++level)
        writeIccRow(study, panel, level, level <= study.NumLevels);
    writeIccScale(study, panel.picture);
    writeIccBars(study, verdict, panel);
    panel.cmdDelta.Visible = verdict.offerDelta;
    writeMessage(panel.pnlMsgOuter, panel.pnlMsgInner, iccMessageText(study, verdict));
}

void writeTauSqPanel(const Study& study, TauSqMessage message, bool showOmega, TauSqPanel& panel) {
    writeTauSqTitles(study, showOmega, panel);
    for (int level = lowestLevel; level <= highestLevel; ++level)
        writeTauSqRow(study, showOmega, panel, level);
    writeTauSqBars(study, panel);
    writeMessage(panel.pnlMsgOuter, panel.pnlMsgInner, tauSqMessageText(message));
}

void IccPanel::registerNames(ControlRegistry& registry) const {
    const std::string window = "frmDisplayICC.";
    registry.add("frmDisplayICC.Caption", &pnlTitle.Caption);
    for (const auto& [name, panel] : {std::pair{"lblUnit", &lblUnit},
                                      {"lblIcc", &lblIcc},
                                      {"lblSpan", &lblSpan},
                                      {"lblRange", &lblRange},
                                      {"pnlMsgOuter", &pnlMsgOuter},
                                      {"pnlMsgInner", &pnlMsgInner}})
        registry.add(window + name, *panel);
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        registry.add(indexedName(window + "txtICC", level), &txtICC(level));
        registry.add(indexedName(window + "txtSpan", level), &txtSpan(level));
        registry.add(indexedName(window + "spnIcc", level) + ".Visible", &iccSpin(level));
        registry.add(indexedName(window + "spnMRange", level) + ".Visible", &spanSpin(level));
    }
    registerColumns(
        registry, window,
        {{"pnlUnit", &pnlUnit}, {"pnlICC", &pnlICC}, {"pnlWidth", &pnlWidth}, {"pnlExample", &pnlExample}});
    registerPicture(registry, window, picture);
    registry.add(window + "cmdDelta", cmdDelta);
    registry.add(window + "cmdOptions", cmdOptions);
    registry.add(window + "Command1", Command1);
}

void TauSqPanel::registerNames(ControlRegistry& registry) const {
    const std::string window = "frmDisplayTauSq.";
    registry.add("frmDisplayTauSq.Caption", &pnlTitle.Caption);
    for (const auto& [name, panel] : {std::pair{"lblUnit", &lblUnit},
                                      {"lblTauSq", &lblTauSq},
                                      {"lblSpan", &lblSpan},
                                      {"lblOmega", &lblOmega},
                                      {"lblRange", &lblRange},
                                      {"pnlMsgOuter", &pnlMsgOuter},
                                      {"pnlMsgInner", &pnlMsgInner}})
        registry.add(window + name, *panel);
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        registry.add(indexedName(window + "spnTauSq", level) + ".Visible", &tauSqSpin(level));
        registry.add(indexedName(window + "spnDRange", level) + ".Visible", &spanSpin(level));
        registry.add(indexedName(window + "spnOmega", level) + ".Visible", &omegaSpin(level));
    }
    registerColumns(registry, window,
                    {{"pnlUnit", &pnlUnit},
                     {"pnlTauSq", &pnlTauSq},
                     {"pnlWidth", &pnlWidth},
                     {"pnlOmega", &pnlOmega},
                     {"pnlExample", &pnlExample}});
    registerPicture(registry, window, picture);
}

}  // namespace lorvane
