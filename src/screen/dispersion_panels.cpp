// Display models of the two dispersion panels.
#include "screen/dispersion_panels.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "base/number_text.h"
#include "screen/design_words.h"
#include "session/field_words.h"
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

// What the user enters at a level of a column, or what follows from it.
struct CellContent {
    FieldRef field;
    bool shown = false;    // the level has the value
    bool entered = false;  // it is the form that the user works in
    bool atFault = false;
    std::string told;     // the caption
    std::string written;  // what was entered
};

void writeCell(const Study& s, const CellContent& content, Cell& cell) {
    cell.Visible = content.shown;
    cell.Caption = content.shown ? content.told : "";
    cell.number = content.shown && content.entered ? content.written : cell.Caption;
    cell.words = fieldWords(s, content.field);
    cell.rest = restWords(s, content.field);
    cell.spinVisible = content.shown && content.entered;
    cell.state = cell.spinVisible ? CellState::changeable : CellState::fixed;
    cell.trouble = cell.spinVisible && content.atFault;
}

void writeHead(ColumnHead& head, std::string caption, std::string brief) {
    head.Caption = std::move(caption);
    head.brief = std::move(brief);
}

// ------------------------------------------------------------------ frmDisplayICC

void writeIccTitles(const Study& s, IccPanel& panel) {
    const std::string what = s.isMeans() ? "means" : "risks";
    const std::string& group = s.controlName();
    panel.pnlTitle.Caption = "  ICC and range of " + what;
    writeHead(panel.lblUnit, "Unit", "Unit");
    writeHead(panel.lblIcc, "ICC", "ICC");
    writeHead(panel.lblSpan, "Span", "Span");
    writeHead(panel.lblRange, "Range of " + what + " in the " + group + " group", "Range of " + what);
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

// An effect at fault clears the flags of all levels, though it is not the ICCs that have to be changed.
bool isAtFault(const Study& s, int level) { return s.result.ValidES && !s.outcome.ValidICC(level); }

void writeIccRow(const Study& s, IccPanel& panel, int level, bool used) {
    const bool iccEntered = s.IccMetric == IccMetrics::icc;
    panel.txtICC(level) = s.txtICC(level);
    panel.txtSpan(level) = s.txtMRange(level);
    panel.pnlUnit(level).Caption = s.txtName(level);
    panel.pnlUnit(level).Visible = used;
    CellContent icc{{&fieldOf("txtICC"), level}, used && level > 1, iccEntered, isAtFault(s, level), {}, {}};
    icc.written = fixedText(s.txtICC(level), s.decimals.txtICC);
    icc.told = s.outcome.ShowICC(level) ? icc.written : "";
    writeCell(s, icc, panel.pnlICC(level));
    CellContent span{{&fieldOf("txtMRange"), level},
                     used && (level > 1 || s.isMeans()),
                     !s.entersLimits() && (!iccEntered || level == 1),
                     isAtFault(s, level),
                     {},
                     {}};
    span.written = fixedText(s.txtMRange(level), s.decimals.txtMRange);
    span.told = s.outcome.ShowSpan(level) ? span.written : "";
    writeCell(s, span, panel.pnlWidth(level));
    panel.pnlExample(level).Visible = span.shown;
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

// A span is moved to lie between 0 and 1, and for an odds ratio between the limits of the risks.
bool anyTruncated(const Study& s) {
    const bool oddsRatio = s.BinaryType == BinaryTypes::oddsRatio;
    for (int level = 2; s.isBinary() && level <= s.NumLevels; ++level) {
        const bool moved = oddsRatio && s.logit.truncation(level) != Truncations::none;
        if (moved || GetRange(s.txtPrev, spanOfLevel(s, level)).truncated)
            return true;
    }
    return false;
}

std::string footerText(const std::string& what, bool offCentre) {
    return "Range includes 95% of " + what + (offCentre ? "." : ", shown centered on mean.");
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
    panel.picture.Visible = s.outcome.ValidICC(0);
    panel.picture.pnlFooter.Caption = footerText("units", anyTruncated(s));
}

// ---------------------------------------------------------------- frmDisplayTauSq

bool isOnLogScale(const Study& s) { return s.isBinary() && s.BinaryType == BinaryTypes::oddsRatio; }

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

// The metric of the effect in the fewest letters, for heads and marks.
const char* effectSign(const Study& s) {
    if (s.isMeans())
        return "d";
    return s.BinaryType == BinaryTypes::oddsRatio ? "OR" : "RD";
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
    panel.pnlTitle.Caption = std::string("Tau-squared and distribution of effect sizes ") + effectWord(s);
    const std::string scale = isOnLogScale(s) ? " (log scale)" : "";
    writeHead(panel.lblUnit, "Unit", "Unit");
    writeHead(panel.lblTauSq, "Tau-sq" + scale, "Tau-sq");
    writeHead(panel.lblSpan, "Span" + scale, "Span");
    writeHead(panel.lblOmega, "Omega", "Omega");
    panel.lblOmega.Visible = showOmega;
    writeHead(panel.lblRange, effectRange(s), std::string("Range of ") + effectSign(s));
    panel.picture.pnlSchematic.Caption =
        effectSentence(s) + joinedNames(namesFrom(s, s.RandomizedLevel + 1)) + " as shown here.";
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

// Without ICCs that can be used it is they that have to be changed, not the dispersion of the effect.
bool isEffectAtFault(const Study& s, int level) {
    const EffectDispersion& effect = s.effect;
    const bool omegaAtFault = s.TauSqMetric == TauSqMetrics::omega && !effect.ValidOmega(level);
    return s.outcome.ValidICC(0) && (!effect.ValidTauSq(level) || !effect.ValidSpan(level) || omegaAtFault);
}

void writeTauSqRow(const Study& s, bool showOmega, TauSqPanel& panel, int level) {
    const EffectDispersion& effect = s.effect;
    const bool blocked = level <= s.NumLevels && s.isBlocked(level);
    panel.pnlUnit(level).Caption = s.txtName(level);
    panel.pnlUnit(level).Visible = panel.pnlExample(level).Visible = blocked;
    const auto write = [&](Cell& cell, const char* field, TauSqMetrics metric, std::string told,
                           std::string entered) {
        writeCell(s,
                  {{&fieldOf(field), level},
                   blocked,
                   s.TauSqMetric == metric,
                   blocked && isEffectAtFault(s, level),
                   std::move(told),
                   std::move(entered)},
                  cell);
    };
    write(panel.pnlTauSq(level), "txtTauSq", TauSqMetrics::tauSquared,
          shownIf(showsTauSq(effect, level), effect.txtTauSq(level), decimalsOfTauSq(s)),
          fixedText(s.txtTauSq(level), decimalsOfTauSq(s)));
    write(panel.pnlWidth(level), "txtDRange", TauSqMetrics::spanOfEffects,
          shownIf(effect.ValidSpan(level), effect.txtSpan(level), decimalsOfSpan(s)),
          fixedText(s.txtDRange(level), decimalsOfSpan(s)));
    write(panel.pnlOmega(level), "txtOmega", TauSqMetrics::omega,
          shownIf(effect.ValidOmega(level), effect.txtOmega(level), s.decimals.txtOmega),
          fixedText(s.txtOmega(level), s.decimals.txtOmega));
    panel.pnlOmega(level).Visible = blocked && showOmega;
}

double effectOf(const Study& s) {
    if (s.isMeans())
        return s.txtd;
    return s.BinaryType == BinaryTypes::oddsRatio ? s.txtOR : s.txtRD;
}

// As far to both sides as the widest range and the place of no effect, and half as far again. No odds ratio
// is below 0.
void writeEffectScale(const Study& s, Schematic& picture) {
    picture.origin = isOnLogScale(s) ? 1 : 0;
    double reach = std::abs(picture.centre - *picture.origin);
    for (int level = 2; level <= highestLevel; ++level) {
        const SpanBar& bar = picture.bars(level);
        if (bar.Visible)
            reach = std::max({reach, picture.centre - bar.low, bar.high - picture.centre});
    }
    const double half = reach > 0 ? reach * 1.5 : widthWithoutSpan / 2;
    picture.low = isOnLogScale(s) ? std::max(0.0, picture.centre - half) : picture.centre - half;
    picture.high = picture.centre + half;
}

// The range of an odds ratio is centred on the log scale alone.
bool isOffCentre(const Study& s) {
    const auto hasSpan = [&](int level) { return s.isBlocked(level) && s.effect.txtSpan(level) > 0; };
    bool any = false;
    for (int level = 2; level <= s.NumLevels; ++level)
        any = any || hasSpan(level);
    return anyTruncated(s) || (isOnLogScale(s) && any);
}

void writeTauSqBars(const Study& s, TauSqPanel& panel) {
    Schematic& picture = panel.picture;
    picture.Visible = s.effect.ValidTauSq(0);
    picture.centre = effectOf(s);
    picture.pnlVal.Caption = std::string(effectSign(s)) + " = " + fixedText(picture.centre, 2);
    picture.pnlFooter.Caption = footerText("effects", isOffCentre(s));
    for (int level = 2; level <= highestLevel; ++level) {
        SpanBar& bar = picture.bars(level);
        bar = SpanBar();
        const bool told = level <= s.NumLevels && s.isBlocked(level) && s.effect.ValidTauSq(0);
        const TauSqRow row = told ? tauSqRow(s, level) : TauSqRow();
        if (row.hasLimits)
            writeBar(bar, row.lower, row.upper, s.isMeans() ? 2 : 3);
        panel.pnlExample(level).Caption = barText(bar);
    }
    writeEffectScale(s, picture);
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

}  // namespace lorvane
