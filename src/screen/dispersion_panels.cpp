// Display models of the two dispersion panels.
#include "screen/dispersion_panels.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/number_text.h"
#include "validation/icc_messages.h"

namespace lorvane {

namespace {

void writeMessage(Panel& outer, Panel& inner, std::string message) {
    outer.Visible = !message.empty();
    inner.Caption = std::move(message);
}

std::string shownIf(int flag, double value, int decimals) {
    return flag == 1 ? fixedText(value, decimals) : std::string();
}

// A binary study with the span of effects entered shows tau-squared with five decimals, and the span with one
// to three.
int decimalsOfTauSq(const Study& s) {
    const bool spanOfRisks = s.isBinary() && s.TauSqMetric == TauSqMetrics::spanOfEffects;
    return spanOfRisks ? 5 : s.decimals.txtTauSq;
}

int decimalsOfSpan(const Study& s) {
    const bool spanOfRisks = s.isBinary() && s.TauSqMetric == TauSqMetrics::spanOfEffects;
    return spanOfRisks ? std::clamp(s.decimals.txtDRange, 1, 3) : s.decimals.txtDRange;
}

// A negative tau-squared, as a file can hold, is a problem that still shows.
int showsTauSq(const EffectDispersion& effect, int level) {
    const bool told = effect.ValidTauSq(level) == 1 || effect.txtTauSq(level) < 0;
    return told ? effect.ShowTauSq(level) : 0;
}

}  // namespace

void writeIccPanel(const Study& study, const IccVerdict& verdict, IccPanel& panel) {
    for (int level = 1; level <= study.NumLevels; ++level) {
        panel.txtICC(level) = study.txtICC(level);
        panel.txtSpan(level) = study.txtMRange(level);
        panel.pnlICC(level).Caption =
            shownIf(study.outcome.ShowICC(level), study.txtICC(level), study.decimals.txtICC);
        panel.pnlWidth(level).Caption =
            shownIf(study.outcome.ShowSpan(level), study.txtMRange(level), study.decimals.txtMRange);
    }
    panel.cmdDelta.Visible = verdict.offerDelta;
    writeMessage(panel.pnlMsgOuter, panel.pnlMsgInner, iccMessageText(study, verdict));
}

void writeTauSqPanel(const Study& study, TauSqMessage message, TauSqPanel& panel) {
    const EffectDispersion& effect = study.effect;
    for (int level = 2; level <= highestLevel; ++level) {
        const bool blocked = level <= study.NumLevels && study.isBlocked(level);
        panel.pnlTauSq(level).Caption =
            shownIf(blocked ? showsTauSq(effect, level) : 0, effect.txtTauSq(level), decimalsOfTauSq(study));
        panel.pnlWidth(level).Caption =
            shownIf(blocked ? effect.ValidSpan(level) : 0, effect.txtSpan(level), decimalsOfSpan(study));
        panel.pnlOmega(level).Caption =
            shownIf(blocked ? effect.ValidOmega(level) : 0, effect.txtOmega(level), study.decimals.txtOmega);
    }
    writeMessage(panel.pnlMsgOuter, panel.pnlMsgInner, tauSqMessageText(message));
}

}  // namespace lorvane
