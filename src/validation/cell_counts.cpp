// The panel of the cell counts of a binary study.
#include "validation/cell_counts.h"

#include "base/number_text.h"
#include "engine/cell_screening.h"

namespace lorvane {

namespace {

void writeArm(CellCountsPanel& panel, int arm, double n, double rate) {
    const int events = 2 * arm - 1;
    panel.pnlN(arm).Caption = shortestText(n);
    panel.pnlRate(events).Caption = fixedText(rate, 3);
    panel.pnlRate(events + 1).Caption = fixedText(1 - rate, 3);
    panel.pnlMean(events).Caption = fixedText(n * rate, 1);
    panel.pnlMean(events + 1).Caption = fixedText(n * (1 - rate), 1);
}

}  // namespace

void CellColor(Panel& cell, double share) {
    cell.Caption = fixedText(share * 100, 2) + "%";
    cell.BackColor = share >= lowShare ? problemColour : normalBackground;
}

void writeCellCounts(const Study& study, CellCountsPanel& panel) {
    writeArm(panel, controlArm, study.txtNC(1), study.txtPrev);
    writeArm(panel, treatedArm, study.txtNT(1), study.txtEvent2);
    for (int cell = 1; cell <= 4; ++cell)
        CellColor(panel.pnlPctBad(cell), study.counts.share(cell));
    const bool low = study.counts.anyLow == 1;
    panel.pnlTitle.Caption = low ? "Cell counts are low" : "Cell counts are Ok";
    panel.pnlTitle.BackColor = low ? problemColour : normalBackground;
}

}  // namespace lorvane
