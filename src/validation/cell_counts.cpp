// The panel of the cell counts of a binary study.
#include "validation/cell_counts.h"

#include "base/number_text.h"
#include "engine/cell_screening.h"

namespace lorvane {

namespace {

constexpr int controlArm = 1;

void writeArm(CellCountsPanel& panel, int arm, double n, double rate) {
    const int events = 2 * arm - 1;
    panel.pnlN(arm).Caption = shortestText(n);
    panel.pnlRate(events).Caption = fixedText(rate, 3);
    panel.pnlRate(events + 1).Caption = fixedText(1 - rate, 3);
    panel.pnlMean(events).Caption = fixedText(n * rate, 1);
    panel.pnlMean(events + 1).Caption = fixedText(n * (1 - rate), 1);
}

void writeHeads(const Study& study, CellCountsPanel& panel) {
    for (int cell = 1; cell <= panel.pnlA.last; ++cell) {
        const bool control = CellCountsPanel::armOf(cell) == controlArm;
        panel.pnlA(cell).Caption = (control ? study.controlName() : study.treatedName()) +
                                   (cell % 2 == 1 ? ", events" : ", non-events");
    }
}

}  // namespace

void FormatCounts(CountLines lines, CellCountsPanel& panel) {
    panel.pnlInner.Visible = panel.lblPctBad.Visible = lines.shares;
    for (Panel* head : {&panel.lblN, &panel.lblRate, &panel.lblMean})
        head->Visible = lines.numbers;
    for (int cell = 1; cell <= panel.pnlA.last; ++cell) {
        panel.pnlA(cell).Visible = panel.pnlPctBad(cell).Visible = lines.shares;
        panel.pnlRate(cell).Visible = panel.pnlMean(cell).Visible = lines.numbers;
        panel.pnlN(CellCountsPanel::armOf(cell)).Visible = lines.numbers;
    }
}

void CellColor(Panel& cell, double share) {
    cell.Caption = fixedText(share * 100, 2) + "%";
    cell.trouble = share >= lowShare;
    cell.BackColor = cell.trouble ? problemColour : normalBackground;
}

void writeCellCounts(const Study& study, CountLines lines, CellCountsPanel& panel) {
    panel = CellCountsPanel();
    writeHeads(study, panel);
    FormatCounts(lines, panel);
    const CellCounts& counts = study.counts;
    if (!counts.isScreened)
        return;
    for (int arm = 1; arm <= counts.n.last; ++arm)
        writeArm(panel, arm, counts.n(arm), counts.rate(arm));
    for (int cell = 1; cell <= panel.pnlPctBad.last; ++cell)
        CellColor(panel.pnlPctBad(cell), counts.share(cell));
    const bool low = counts.anyLow;
    panel.pnlTitle.trouble = low;
    panel.pnlTitle.Caption = low ? "Cell counts are low" : "Cell counts are Ok";
    panel.pnlTitle.BackColor = low ? problemColour : normalBackground;
}

}  // namespace lorvane
