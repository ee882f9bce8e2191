// Display models of the two dispersion panels: headings, a row and a bar a level, the sentence below them,
// the message line.
#pragma once

#include <optional>
#include <string>

#include "engine/study.h"
#include "platform/control_registry.h"
#include "platform/controls.h"
#include "screen/main_screen.h"
#include "validation/effect_dispersion.h"
#include "validation/icc_span.h"

namespace lorvane {

/// The bar of a level on the common scale of a picture.
struct SpanBar {
    bool Visible = false;
    bool isScores = false;  ///< the individuals themselves, not means of a level
    double low = 0;
    double high = 0;
    std::string lowText;
    std::string highText;
};

/// The picture of a panel. A view draws it; the numbers are here.
struct Schematic {
    bool Visible = true;  ///< nothing is at fault that it would have to show
    double low = 0;       ///< left end of the scale
    double high = 1;
    double centre = 0;             ///< where the dashed line stands
    std::optional<double> origin;  ///< where there is no effect; the ends may move out to round numbers
    Panel pnlVal;                  ///< what stands there
    PerLevel<SpanBar> bars;
    Panel pnlSchematic;  ///< the sentence
    Panel pnlFooter;
    Panel pnlNote;  ///< what else to know of the values; often empty
};

/// The head of a column: the caption, and the words that fit over a narrow column.
struct ColumnHead : Panel {
    std::string brief;
};

/// frmDisplayICC, the dispersion of the outcome. Its cells keep what was entered as their number, also where
/// a fault leaves their caption empty.
struct IccPanel {
    Panel pnlTitle;
    ColumnHead lblUnit, lblIcc, lblSpan, lblRange;
    PerLevel<Panel> pnlUnit;
    PerLevel<double> txtICC;  ///< values shown
    PerLevel<double> txtSpan;
    PerLevel<Cell> pnlICC;
    PerLevel<Cell> pnlWidth;
    PerLevel<Panel> pnlExample;
    Schematic picture;
    Panel pnlMsgOuter;
    Panel pnlMsgInner;
    Button cmdDelta;    ///< leads to the limits of the risks, where they would help
    Button cmdOptions;  ///< leads to the risks entered as limits
    Button Command1;    ///< closes the panel, as its frame does

    void registerNames(ControlRegistry& registry) const;
};

/// frmDisplayTauSq, the dispersion of the effect. Its values live in the study.
struct TauSqPanel {
    Panel pnlTitle;
    ColumnHead lblUnit, lblTauSq, lblSpan, lblOmega, lblRange;
    PerLevel<Panel> pnlUnit;
    PerLevel<Cell> pnlTauSq;
    PerLevel<Cell> pnlWidth;
    PerLevel<Cell> pnlOmega;
    PerLevel<Panel> pnlExample;
    Schematic picture;
    Panel pnlMsgOuter;
    Panel pnlMsgInner;

    void registerNames(ControlRegistry& registry) const;
};

/// Writes a panel whole: titles and rows by the shape of the study, values and bars, the message.
void writeIccPanel(const Study& study, const IccVerdict& verdict, IccPanel& panel);
void writeTauSqPanel(const Study& study, TauSqMessage message, bool showOmega, TauSqPanel& panel);

}  // namespace lorvane
