// Dispersion of the effect over blocked levels.
#include "validation/effect_dispersion.h"

#include <cmath>

#include "base/arithmetic_fault.h"

namespace lorvane {

namespace {

constexpr double widestSpanOfRiskDifferences = 1.99;

void setFlags(EffectDispersion& effect, int level, bool flag) {
    effect.ValidTauSq(level) = effect.ValidSpan(level) = effect.ValidOmega(level) = flag;
    effect.ShowTauSq(level) = effect.ShowSpan(level) = effect.ShowOmega(level) = flag;
}

void setAllFlags(EffectDispersion& effect, bool flag) {
    for (int level = 2; level <= highestLevel; ++level)
        setFlags(effect, level, flag);
    effect.ValidTauSq(0) = flag;
}

void hideOmega(EffectDispersion& effect, int level) {
    effect.ValidOmega(level) = effect.ShowOmega(level) = false;
}

void hideSpan(EffectDispersion& effect, int level) {
    effect.ValidSpan(level) = effect.ShowSpan(level) = false;
}

// Without variance at a level omega has no meaning; that matters only where omega is what the user enters.
TauSqMessage judgeZeroIcc(Study& s) {
    TauSqMessage message = TauSqMessage::none;
    for (int level = firstBlockedLevel(s); level <= s.NumLevels; ++level) {
        if (s.txtICC(level) != 0)
            continue;
        if (s.TauSqMetric == TauSqMetrics::omega) {
            setFlags(s.effect, level, false);
            message = TauSqMessage::omegaUndefined;
        } else {
            hideOmega(s.effect, level);
        }
    }
    return message;
}

double remainingVariance(const Study& s, int level) {
    double rest = 1;
    for (int k = level; k <= s.NumLevels; ++k)
        rest -= s.txtICC(k);
    return rest;
}

// Three levels with individuals randomized: level 3 takes the ICC of level 2. Odd, deliberate, to be kept.
bool takesIccOfLevel2(const Study& s, int level) {
    return s.NumLevels == 3 && s.RandomizedLevel == 1 && level == 3;
}

double tauSquaredOfOmega(const Study& s, int level) {
    const double omega = s.txtOmega(level);
    const double tauSquared = takesIccOfLevel2(s, level)
                                  ? omega * s.txtICC(2) / (1 - s.txtICC(2))
                                  : omega * s.txtICC(level) / remainingVariance(s, level);
    requireFinite("SynchTauSq", {tauSquared});
    return tauSquared;
}

double omegaOfTauSquared(const Study& s, int level, double tauSquared) {
    if (s.txtICC(level) <= 0)
        return 0;
    return tauSquared * remainingVariance(s, level) / s.txtICC(level);
}

// A negative tau-squared, as a file can hold, has no span and no omega.
void deriveSpan(Study& s, int level, double tauSquared) {
    if (tauSquared < 0)
        hideSpan(s.effect, level);
    else
        s.effect.txtSpan(level) = spanOfOneSd * std::sqrt(tauSquared);
}

void deriveOmega(Study& s, int level, double tauSquared) {
    s.effect.txtOmega(level) = omegaOfTauSquared(s, level, tauSquared);
    if (tauSquared < 0 || s.txtICC(level) <= 0)
        hideOmega(s.effect, level);
}

void convertLevel(Study& s, int level) {
    EffectDispersion& effect = s.effect;
    switch (s.TauSqMetric) {
    case TauSqMetrics::omega:
        effect.txtOmega(level) = s.txtOmega(level);
        effect.txtTauSq(level) = tauSquaredOfOmega(s, level);
        deriveSpan(s, level, effect.txtTauSq(level));
        if (s.txtOmega(level) < 0)
            hideOmega(effect, level);
        break;
    case TauSqMetrics::spanOfEffects:
        effect.txtSpan(level) = s.txtDRange(level);
        effect.txtTauSq(level) = s.txtDRange(level) * s.txtDRange(level) / (spanOfOneSd * spanOfOneSd);
        deriveOmega(s, level, effect.txtTauSq(level));
        break;
    case TauSqMetrics::tauSquared:
        effect.txtTauSq(level) = s.txtTauSq(level);
        deriveSpan(s, level, effect.txtTauSq(level));
        deriveOmega(s, level, effect.txtTauSq(level));
        break;
    }
}

bool rangeOfRiskDifferencesIsTooWide(Study& s) {
    if (!s.isBinary() || s.BinaryType != BinaryTypes::riskDifference)
        return false;
    bool tooWide = false;
    for (int level = firstBlockedLevel(s); level <= s.NumLevels; ++level) {
        if (s.effect.ValidSpan(level) && s.effect.txtSpan(level) > widestSpanOfRiskDifferences) {
            s.effect.ValidTauSq(level) = s.effect.ValidSpan(level) = false;
            tooWide = true;
        }
    }
    return tooWide;
}

// An omega that cannot be told is harmless while the user does not work in omega.
void summarise(Study& s) {
    EffectDispersion& effect = s.effect;
    for (int level = firstBlockedLevel(s); level <= s.NumLevels; ++level) {
        if (effect.txtTauSq(level) < 0)
            effect.ValidTauSq(level) = false;
        const bool omegaAtFault = s.TauSqMetric == TauSqMetrics::omega && !effect.ValidOmega(level);
        if (!effect.ValidTauSq(level) || !effect.ValidSpan(level) || omegaAtFault)
            effect.ValidTauSq(0) = false;
    }
}

// Derived forms that are good go beside the entered one, so that a change of metric keeps the quantity.
void keepDerivedForms(Study& s) {
    const EffectDispersion& effect = s.effect;
    for (int level = firstBlockedLevel(s); level <= s.NumLevels; ++level) {
        if (s.TauSqMetric != TauSqMetrics::tauSquared && effect.ValidTauSq(level))
            s.txtTauSq(level) = effect.txtTauSq(level);
        if (s.TauSqMetric != TauSqMetrics::spanOfEffects && effect.ValidSpan(level))
            s.txtDRange(level) = effect.txtSpan(level);
        if (s.TauSqMetric != TauSqMetrics::omega && effect.ValidOmega(level))
            s.txtOmega(level) = effect.txtOmega(level);
    }
}

void copyToLimits(Study& s) {
    for (int level = 2; level <= s.NumLevels; ++level) {
        s.limits.txtTauSq(level) = s.effect.txtTauSq(level);
        s.limits.txtDRange(level) = s.effect.txtSpan(level);
        s.limits.txtOmega(level) = s.effect.txtOmega(level);
    }
}

TauSqMessage convert(Study& s) {
    TauSqMessage message = judgeZeroIcc(s);
    for (int level = firstBlockedLevel(s); level <= s.NumLevels; ++level)
        convertLevel(s, level);
    if (rangeOfRiskDifferencesIsTooWide(s))
        message = TauSqMessage::spanTooWide;
    return message;
}

}  // namespace

const char* tauSqMessageText(TauSqMessage message) {
    switch (message) {
    case TauSqMessage::none:
        return "";
    case TauSqMessage::iccNotValid:
        return "Values cannot be validated because the ICC is not valid";
    case TauSqMessage::omegaUndefined:
        return "When ICC is zero, omega is undefined";
    case TauSqMessage::spanTooWide:
        return "Range of effects must be less than 2";
    }
    return "";
}

int firstBlockedLevel(const Study& study) { return study.isHierarchical() ? 0 : study.RandomizedLevel + 1; }

TauSqMessage SynchTauSq(Study& study) {
    setAllFlags(study.effect, true);
    if (study.isHierarchical())
        return TauSqMessage::none;
    TauSqMessage message = TauSqMessage::iccNotValid;
    if (study.outcome.ValidICC(0))
        message = convert(study);
    else
        setAllFlags(study.effect, false);
    copyToLimits(study);
    summarise(study);
    if (study.outcome.ValidICC(0))
        keepDerivedForms(study);
    return message;
}

}  // namespace lorvane
