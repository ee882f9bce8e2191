// The panel of the cell counts of a binary study, frmCounts: its texts and colours, and which lines show.
#pragma once

#include "engine/study.h"
#include "platform/controls.h"

namespace lorvane {

/// Cells in the order control events, control non-events, treated events, treated non-events; arms in the
/// order control, treated.
struct CellCountsPanel {
    Panel pnlTitle;
    Panel pnlInner;                  ///< what stands below the verdict
    IndexedArray<Panel, 1, 4> pnlA;  ///< heads of the cells, "Control, events"
    Panel lblN{"Individuals in a cluster"};
    Panel lblRate{"Rate"};
    Panel lblMean{"Expected count"};
    Panel lblPctBad{"Share with a count under 3.5"};
    IndexedArray<Panel, 1, 2> pnlN;       ///< individuals in a cluster of the arm
    IndexedArray<Panel, 1, 4> pnlRate;    ///< event rate, and 1 less the event rate
    IndexedArray<Panel, 1, 4> pnlMean;    ///< expected count
    IndexedArray<Panel, 1, 4> pnlPctBad;  ///< share of clusters with a small count

    /// The arm that a cell belongs to.
    static int armOf(int cell) { return (cell + 1) / 2; }
};

/// Which lines stand below the verdict.
struct CountLines {
    bool shares = true;   ///< the heads of the cells, and the share of low counts
    bool numbers = true;  ///< what the shares come from
};

/// Writes a share into its cell in percent, with the problem colour behind it from 0.1 on.
void CellColor(Panel& cell, double share);

/// Shows and hides the lines below the verdict.
void FormatCounts(CountLines lines, CellCountsPanel& panel);

/// Writes the panel: which lines show, their heads, and what the last screening read and found, whatever was
/// entered after it; nothing of that before the first one.
void writeCellCounts(const Study& study, CountLines lines, CellCountsPanel& panel);

}  // namespace lorvane
