// The panel of the cell counts of a binary study, frmCounts: its texts and colours.
#pragma once

#include "engine/study.h"
#include "platform/controls.h"

namespace lorvane {

/// Cells in the order control events, control non-events, treated events, treated non-events; arms in the
/// order control, treated.
struct CellCountsPanel {
    Panel pnlTitle;
    IndexedArray<Panel, 1, 2> pnlN;       ///< individuals in a cluster of the arm
    IndexedArray<Panel, 1, 4> pnlRate;    ///< event rate, and 1 less the event rate
    IndexedArray<Panel, 1, 4> pnlMean;    ///< expected count
    IndexedArray<Panel, 1, 4> pnlPctBad;  ///< share of clusters with a small count
};

/// Writes a share into its cell in percent, with the problem colour behind it from 0.1 on.
void CellColor(Panel& cell, double share);

/// Writes the whole panel from the screening that the computation left; for a binary study.
void writeCellCounts(const Study& study, CellCountsPanel& panel);

}  // namespace lorvane
