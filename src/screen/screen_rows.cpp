// Writes the study onto the table of levels and the effect strip.
#include "screen/screen_rows.h"

#include <algorithm>

#include "base/money.h"
#include "base/number_text.h"
#include "engine/effect_metrics.h"
#include "screen/currency.h"
#include "screen/design_words.h"

namespace lorvane {

namespace {

constexpr int decimalsOfOtherForm = 3;

std::string blanks(std::size_t count) { return std::string(count, ' '); }

// A number with blanks before and behind it.
void writeNumber(Cell& cell, std::size_t before, const std::string& number, std::size_t behind = 0) {
    cell.number = number;
    cell.Caption = blanks(before) + number + blanks(behind);
}

void writeArm(Cell& cell, const std::string& number, const std::string& arm) {
    cell.number = number;
    cell.arm = arm;
    cell.Caption = number + " (" + arm + ")";
}

void writeBlocked(Cell& cell, const std::string& number) {
    cell.number = number;
    cell.arm = "Blocked";
    cell.Caption = "Blocked (" + number + ")";
}

std::string costText(double cost, const Currency& currency) {
    constexpr double largestAmount = 2147483647;
    return ReFormatCurrency(
        static_cast<std::int32_t>(std::clamp(roundHalfToEven(cost), -largestAmount, largestAmount)),
        currency);
}

const char* modelText(double model) {
    if (model == SamplingModels::fixed)
        return "Fixed";
    return model == SamplingModels::random ? "Random" : "Model";
}

void writeRow(const Study& s, const Currency& currency, MainScreen& screen, int level) {
    const FieldDecimals& decimals = s.decimals;
    screen.pnlName(level).Caption = s.txtName(level);
    writeArm(screen.pnlNT(level), shortestText(s.txtNT(level)), s.treatedName());
    writeArm(screen.pnlNC(level), shortestText(s.txtNC(level)), s.controlName());
    writeBlocked(screen.pnlNB(level), shortestText(s.txtNB(level)));
    writeNumber(screen.pnlPop(level), 0, shortestText(s.txtPop(level)));
    writeNumber(screen.pnlICC(level), 8, fixedText(s.txtICC(level), decimals.txtICC));
    writeNumber(screen.pnlMRange(level), 8, fixedText(s.txtMRange(level), decimals.txtMRange));
    writeNumber(screen.pnlTauSq(level), 8, fixedText(s.txtTauSq(level), decimals.txtTauSq));
    writeNumber(screen.pnlDRange(level), 8, fixedText(s.txtDRange(level), decimals.txtDRange));
    writeNumber(screen.pnlOmega(level), 8, fixedText(s.txtOmega(level), decimals.txtOmega));
    writeNumber(screen.pnlModel(level), 3, modelText(s.txtModel(level)));
    writeNumber(screen.pnlQ(level), 0, fixedText(s.txtQ(level), 0), 6);
    writeNumber(screen.pnlRsq(level), 0, fixedText(s.txtRsq(level), 2), 2);
    writeArm(screen.pnlCostT(level), costText(s.txtCostT(level), currency), s.treatedName());
    writeArm(screen.pnlCostC(level), costText(s.txtCostC(level), currency), s.controlName());
    writeBlocked(screen.pnlCostB(level), costText(s.txtCostB(level), currency));
}

bool hasModelChoice(const Study& s, int level) { return level != 1 && level != s.RandomizedLevel; }

void showSizes(const Study& s, MainScreen& screen, int level) {
    const bool blocked = s.isBlocked(level);
    for (Cell* cell :
         {&screen.pnlNT(level), &screen.pnlNC(level), &screen.pnlCostT(level), &screen.pnlCostC(level)})
        cell->Visible = !blocked;
    for (Cell* cell : {&screen.pnlNB(level), &screen.pnlCostB(level)})
        cell->Visible = blocked;
    screen.pnlNC(level).spinVisible = !s.LinkN(level);
    screen.pnlCostC(level).spinVisible = !s.LinkCost(level);
}

void showDispersion(const Study& s, MainScreen& screen, int level) {
    const bool blocked = s.isBlocked(level);
    screen.pnlICC(level).Visible = s.IccMetric == IccMetrics::icc && level > 1;
    screen.pnlMRange(level).Visible = s.IccMetric == IccMetrics::span && (level > 1 || s.isMeans());
    screen.pnlTauSq(level).Visible = blocked && s.TauSqMetric == TauSqMetrics::tauSquared;
    screen.pnlDRange(level).Visible = blocked && s.TauSqMetric == TauSqMetrics::spanOfEffects;
    screen.pnlOmega(level).Visible = blocked && s.TauSqMetric == TauSqMetrics::omega;
}

void showCovariates(const Study& s, MainScreen& screen, int level) {
    const bool shown = level > 1 || s.isMeans();
    screen.pnlQ(level).Visible = screen.pnlRsq(level).Visible = shown;
    screen.pnlModel(level).Visible = true;
    screen.pnlModel(level).spinVisible = hasModelChoice(s, level);
    screen.pnlPop(level).Visible = false;
}

void hideRow(MainScreen& screen, int level) {
    for (const LevelCellName& name : levelCells)
        (screen.*name.cells)(level).Visible = false;
}

void showColumns(const Study& s, MainScreen& screen) {
    const bool blocks = !s.isHierarchical();
    const auto show = [&](ColumnId id, bool visible) { screen.column(id).heading.Visible = visible; };
    show(ColumnId::replicates, false);
    show(ColumnId::icc, s.IccMetric == IccMetrics::icc);
    show(ColumnId::mSpan, s.IccMetric == IccMetrics::span);
    show(ColumnId::tauSq, blocks && s.TauSqMetric == TauSqMetrics::tauSquared);
    show(ColumnId::dSpan, blocks && s.TauSqMetric == TauSqMetrics::spanOfEffects);
    show(ColumnId::omega, blocks && s.TauSqMetric == TauSqMetrics::omega);
    screen.column(ColumnId::mSpan).heading.Caption = s.isMeans() ? "Span of\nmeans" : "Span of\nrisks";
}

void showStrip(const Study& s, MainScreen& screen) {
    const bool means = s.isMeans();
    const bool binary = !means;
    for (Panel* panel : {static_cast<Panel*>(&screen.pnlD), static_cast<Panel*>(&screen.pnlMean),
                         static_cast<Panel*>(&screen.pnlSD), &screen.lblD})
        panel->Visible = means;
    screen.pnldT.Visible = means && s.DType == DTypes::within;
    screen.pnldW.Visible = means && s.DType == DTypes::total;
    screen.pnlPrev.Visible = screen.lblPrev.Visible = screen.SSPanel10.Visible = binary;
    screen.pnlOR.Visible = binary && s.BinaryType == BinaryTypes::oddsRatio;
    screen.pnlRR.Visible = binary && s.BinaryType == BinaryTypes::riskRatio;
    screen.pnlRD.Visible = binary && s.BinaryType == BinaryTypes::riskDifference;
    screen.pnlP2.Visible = screen.lblP2.Visible = binary && s.BinaryType == BinaryTypes::twoRisks;
}

std::string eventRateHeading(const std::string& group) {
    return "Event rate in " + lowerCased(group) + " group";
}

}  // namespace

int GetCurrFmt(const Study& s) {
    const FieldDecimals& d = s.decimals;
    const bool four = d.txtPrev == 4 || d.txtP2 == 4 || d.txtOR == 4 || d.txtRD == 4;
    return four ? 4 : 3;
}

void writeStrip(const Study& s, MainScreen& screen) {
    const int decimals = GetCurrFmt(s);
    const std::pair<Cell*, double> cells[] = {{&screen.pnlD, s.txtd},   {&screen.pnlMean, s.txtMean},
                                              {&screen.pnlSD, s.txtSD}, {&screen.pnlPrev, s.txtPrev},
                                              {&screen.pnlP2, s.txtP2}, {&screen.pnlOR, s.txtOR},
                                              {&screen.pnlRR, s.txtRR}, {&screen.pnlRD, s.txtRD}};
    for (const auto& [cell, value] : cells)
        writeNumber(*cell, 0, fixedText(value, decimals));
    screen.lblPrev.Caption = eventRateHeading(s.controlName());
    screen.lblP2.Caption = eventRateHeading(s.treatedName());
    screen.lblD.Caption = s.DType == DTypes::within ? "Standardized mean difference, d (within)"
                                                    : "Standardized mean difference, d (total)";
    screen.pnlAlphaTails.Caption = alphaTailsText(s);
}

std::string alphaTailsText(const Study& s) {
    if (s.txtTails != 1 && s.txtTails != 2)
        return "";
    return "Alpha = " + fixedText(s.txtAlpha, 3) + (s.txtTails == 1 ? ", one-tailed" : ", two-tailed");
}

void writeRows(const Study& s, const SessionSettings& settings, MainScreen& screen) {
    for (int level = 1; level <= s.NumLevels; ++level)
        writeRow(s, settings.currency, screen, level);
}

void writeDiagnostics(const Study& s, MainScreen& screen) {
    if (!s.isMeans() || s.isHierarchical() || s.result.xValid == 0)
        return;
    std::string values;
    for (int level = s.RandomizedLevel + 1; level <= s.NumLevels; ++level) {
        if (!values.empty())
            values += ' ';
        values += fixedText(GetTauSq(s, level), 4);
    }
    screen.pnlAI.Caption = values;
}

void writeOtherForm(const Study& s, MainScreen& screen) {
    if (withinShare(s) <= 0)
        return;
    if (s.DType == DTypes::within)
        screen.pnldT.Caption = fixedText(GetDT(s), decimalsOfOtherForm);
    else
        screen.pnldW.Caption = fixedText(GetDW(s), decimalsOfOtherForm);
}

void writeWords(const Study& s, const SessionSettings& settings, MainScreen& screen) {
    screen.pnlMaxCost.Caption = costText(s.MaxCost, settings.currency);
    screen.pnlTitle.Caption = designTitle(s);
    screen.pnlSense.Caption = designSentence(s);
    screen.pnlPowerNote.Caption = powerNote(s);
    screen.powerIsReached = s.result.xValid == 1 && s.result.txtPower >= s.ReqPower;
    screen.pnlPowerTick.Flood = s.ReqPower * 100;
    screen.pnlPowerTick.Caption = shortestText(roundHalfToEven(s.ReqPower * 100)) + "% required";
    screen.pnlCostNote.Caption = unitsNote(s);
}

void writeVisibility(const Study& s, MainScreen& screen) {
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        const bool used = level <= s.NumLevels;
        screen.BpnlLevel(level).Visible = used;
        if (!used) {
            hideRow(screen, level);
            continue;
        }
        showSizes(s, screen, level);
        showDispersion(s, screen, level);
        showCovariates(s, screen, level);
    }
    showColumns(s, screen);
    showStrip(s, screen);
}

}  // namespace lorvane
