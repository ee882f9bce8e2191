// Writes the session onto the table of levels and the effect strip.
#include "screen/screen_rows.h"

#include <algorithm>

#include "base/money.h"
#include "base/number_text.h"
#include "engine/effect_metrics.h"
#include "screen/cost_shares.h"
#include "screen/design_words.h"
#include "session/field_words.h"

namespace lorvane {

namespace {

constexpr int decimalsOfOtherForm = 3;

std::string blanks(int count) { return std::string(static_cast<std::size_t>(count), ' '); }

const char* modelText(double model) {
    if (model == SamplingModels::fixed)
        return "Fixed";
    return model == SamplingModels::random ? "Random" : "Model";
}

int decimalsOfCell(const Study& s, const Field& field) {
    if (field.cell.decimals == stripDecimals)
        return GetCurrFmt(s);
    return field.cell.decimals == ownDecimals ? decimalsOf(s, field) : field.cell.decimals;
}

// The value alone. A number that has no decimals of its own stands in its shortest form.
std::string numberText(const SessionState& state, FieldRef ref, const PerLevel<double>& models) {
    const double value = readNumberField(state, ref);
    if (ref->cell.isMoney)
        return amountText(value, state.settings.currency);
    if (ref->cell.form == CellForm::model)
        return modelText(models(ref.index));
    const bool fixed = ref->decimals != nullptr || ref->cell.decimals >= 0;
    return fixed ? fixedText(value, decimalsOfCell(state.study, *ref.field)) : shortestText(value);
}

std::string armOf(const Study& s, CellForm form) {
    switch (form) {
    case CellForm::treatedArm:
        return s.treatedName();
    case CellForm::controlArm:
        return s.controlName();
    case CellForm::blocks:
        return "Blocked";
    case CellForm::plain:
    case CellForm::model:
        break;
    }
    return "";
}

// The heading over a cell of the strip; the cells of the table stand under the heads of their columns.
std::string headingOf(const Study& s, FieldRef ref) {
    if (ref->index != FieldIndex::none)
        return "";
    return ref->cell.heading.empty() ? fieldWords(s, ref) : filledIn(s, ref, ref->cell.heading);
}

void writeCell(const SessionState& state, FieldRef ref, const PerLevel<double>& models, Cell& cell) {
    const FieldCell& form = ref->cell;
    cell.number = numberText(state, ref, models);
    cell.arm = armOf(state.study, form.form);
    cell.heading = headingOf(state.study, ref);
    cell.brief = briefWords(state.study, ref);
    if (cell.brief.empty())
        cell.brief = cell.heading;
    cell.words = fieldWords(state.study, ref);
    cell.rest = restWords(state.study, ref);
    if (form.form == CellForm::blocks)
        cell.Caption = cell.arm + " (" + cell.number + ")";
    else if (!cell.arm.empty())
        cell.Caption = cell.number + " (" + cell.arm + ")";
    else
        cell.Caption = blanks(form.blanksBefore) + cell.number + blanks(form.blanksBehind);
}

std::string alphaAndTails(const Study& s) {
    return fixedText(s.txtAlpha, 3) + (s.txtTails == Tails::one ? ", one-tailed" : ", two-tailed");
}

// A cell without arrows is the second of a linked pair where the field has a twin, and fixed otherwise.
void showCell(const Study& s, FieldRef ref, Cell& cell) {
    const FieldCell& form = ref->cell;
    cell.Visible = form.shown == nullptr || form.shown(s, ref.index);
    cell.spinVisible = form.hasArrows == nullptr || form.hasArrows(s, ref.index);
    cell.state = cell.spinVisible    ? CellState::changeable
                 : ref->twin.empty() ? CellState::fixed
                                     : CellState::linked;
}

LevelRole roleOf(const Study& s, int level) {
    if (level == s.RandomizedLevel)
        return LevelRole::randomized;
    return s.isBlocked(level) ? LevelRole::blocked : LevelRole::nested;
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

void showHeads(MainScreen& screen) {
    const auto shown = [&](ColumnId id) { return screen.column(id).heading.Visible; };
    screen.standFor(HeadId::dispersion, shown(ColumnId::icc) ? ColumnId::icc : ColumnId::mSpan);
    const ColumnId effects[] = {ColumnId::tauSq, ColumnId::dSpan, ColumnId::omega};
    const auto* effect = std::find_if(std::begin(effects), std::end(effects), shown);
    screen.head(HeadId::effect).Visible = effect != std::end(effects);
    if (effect != std::end(effects))
        screen.standFor(HeadId::effect, *effect);
}

void showStrip(const Study& s, MainScreen& screen) {
    const bool means = s.isMeans();
    screen.lblD.Visible = means;
    screen.pnldT.Visible = means && s.DType == DTypes::within;
    screen.pnldW.Visible = means && s.DType == DTypes::total;
    screen.lblOther.Visible = screen.pnlOther.Visible = means;
    screen.lblPrev.Visible = screen.SSPanel10.Visible = !means;
    screen.lblDerived.Visible = screen.pnlDerived.Visible = !means;
    screen.lblP2.Visible = !means && s.BinaryType == BinaryTypes::twoRisks;
}

}  // namespace

int GetCurrFmt(const Study& s) {
    const FieldDecimals& d = s.decimals;
    const bool four = d.txtPrev == 4 || d.txtP2 == 4 || d.txtOR == 4 || d.txtRD == 4;
    return four ? 4 : 3;
}

void writeCells(const SessionState& state, const PerLevel<double>& models, MainScreen& screen) {
    const Study& s = state.study;
    for (FieldCells& cells : screen.fields) {
        const IndexRange indices = indicesOf(*cells.field);
        for (int i = indices.first; i <= indices.last; ++i) {
            const FieldRef ref{cells.field, i};
            if (i > s.NumLevels) {
                cells(i) = Cell();
                cells(i).Visible = false;
                continue;
            }
            writeCell(state, ref, models, cells(i));
            showCell(s, ref, cells(i));
        }
    }
}

void writeStrip(const Study& s, MainScreen& screen) {
    screen.lblPrev.Caption = screen.cell("pnlPrev").heading;
    screen.lblP2.Caption = screen.cell("pnlP2").heading;
    screen.lblD.Caption = screen.cell("pnlD").heading;
    screen.lblOther.Caption = s.DType == DTypes::within ? "d (total)" : "d (within)";
    screen.alphaBrief = alphaAndTails(s);
    screen.pnlAlphaTails.Caption = alphaTailsText(s);
    showStrip(s, screen);
}

std::string alphaTailsText(const Study& s) { return "Alpha = " + alphaAndTails(s); }

void writeTable(const Study& s, MainScreen& screen) {
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        screen.BpnlLevel(level).Visible = level <= s.NumLevels;
        screen.roles(level) = roleOf(s, level);
        screen.pnlLevel(level).Caption = std::string("(") + roleWord(screen.roles(level)) + ")";
        screen.pnlName(level).Caption = s.txtName(level);
    }
    showColumns(s, screen);
    showHeads(screen);
}

void writeDiagnostics(const Study& s, MainScreen& screen) {
    if (!s.isMeans() || s.isHierarchical() || !s.result.xValid)
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
    const bool within = s.DType == DTypes::within;
    Panel& other = within ? screen.pnldT : screen.pnldW;
    if (withinShare(s) > 0)
        other.Caption = fixedText(within ? GetDT(s) : GetDW(s), decimalsOfOtherForm);
    screen.pnlOther.Caption = other.Caption;
}

void writeWords(const SessionState& state, MainScreen& screen) {
    const Study& s = state.study;
    screen.pnlMaxCost.Caption = amountText(s.MaxCost, state.settings.currency);
    const double top = topOfCostBar(s);
    screen.pnlCost.high = amountText(top, state.settings.currency) + " maximum";
    screen.pnlCostTop.Flood = std::min(s.result.txtCost / top * 100, 100.0);
    screen.pnlTitle.Caption = designTitle(s);
    screen.pnlSense.Caption = designSentence(s);
    screen.pnlPowerNote.Caption = powerNote(s);
    screen.powerIsReached = s.result.xValid && s.result.txtPower >= s.ReqPower;
    screen.pnlPowerTick.Flood = s.ReqPower * 100;
    screen.pnlPowerTick.Caption = shortestText(roundHalfToEven(s.ReqPower * 100)) + "% required";
    screen.pnlCostNote.Caption = unitsNote(s);
}

}  // namespace lorvane
