// Display models of the two dispersion panels: the message line and the values of every level.
#pragma once

#include "engine/study.h"
#include "platform/controls.h"
#include "validation/effect_dispersion.h"
#include "validation/icc_span.h"

namespace lorvane {

/// frmDisplayICC, the dispersion of the outcome.
struct IccPanel {
    PerLevel<double> txtICC;  ///< values shown
    PerLevel<double> txtSpan;
    PerLevel<Panel> pnlICC;
    PerLevel<Panel> pnlWidth;
    Panel pnlMsgOuter;
    Panel pnlMsgInner;
    Button cmdDelta;  ///< leads to the limits of the risks, where they would help
};

/// frmDisplayTauSq, the dispersion of the effect. Its values live in the study.
struct TauSqPanel {
    PerLevel<Panel> pnlTauSq;
    PerLevel<Panel> pnlWidth;
    PerLevel<Panel> pnlOmega;
    Panel pnlMsgOuter;
    Panel pnlMsgInner;
};

void writeIccPanel(const Study& study, const IccVerdict& verdict, IccPanel& panel);
void writeTauSqPanel(const Study& study, TauSqMessage message, TauSqPanel& panel);

}  // namespace lorvane
