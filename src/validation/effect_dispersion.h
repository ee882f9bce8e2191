// Dispersion of the effect over blocked levels: tau-squared, span of effects and omega kept in step.
#pragma once

#include "engine/study.h"

namespace lorvane {

/// What the panel of the effect dispersion has to say.
enum class TauSqMessage { none, iccNotValid, omegaUndefined, spanTooWide };

/// The message line of the panel frmDisplayTauSq.
const char* tauSqMessageText(TauSqMessage message);

/// Turns the entered form of effect dispersion (by Tau-sq Metric) into the other two for every blocked level
/// and judges them; the outcome stands in study.effect, index 0 of ValidTauSq being the summary that the
/// computation reads. Derived forms that are good are written beside the entered one, which is never
/// rewritten. Needs SynchICC before it, since omega is tied to the ICC:
///     omega(k) = tau2(k) D(k) / I(k),    span(k) = 4 sqrt(tau2(k)),
/// I(k) the ICC of level k and D(k) the variance that remains when the levels from k upward are taken off.
/// A hierarchical design has no blocked level; all its flags are good.
TauSqMessage SynchTauSq(Study& study);

/// The lowest blocked level; 0 for a hierarchical design.
int firstBlockedLevel(const Study& study);

}  // namespace lorvane
