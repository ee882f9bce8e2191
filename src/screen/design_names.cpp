// The names under which the values and display models of the study screen are read.
#include <string>

#include "base/names.h"
#include "screen/design.h"

namespace lorvane {

namespace {

template <typename T, int First, int Last>
void addIndexed(ControlRegistry& registry, const std::string& stem,
                const IndexedArray<T, First, Last>& values, int from = First) {
    for (int i = from; i <= Last; ++i) {
        if constexpr (std::is_same_v<T, Panel>)
            registry.add(indexedName(stem, i), values(i));
        else
            registry.add(indexedName(stem, i), &values(i));
    }
}

void addChoices(ControlRegistry& registry, const Study& s) {
    registry.add("NumLevels", &s.NumLevels);
    registry.add("txtLevels", &s.NumLevels);
    registry.add("RandomizedLevel", &s.RandomizedLevel);
    registry.add("DataType", &s.DataType);
    registry.add("BinaryType", &s.BinaryType);
    registry.add("DType", &s.DType);
    registry.add("PowerOption", &s.PowerOption);
    registry.add("ICC Metric", &s.IccMetric);
    registry.add("Tau-sq Metric", &s.TauSqMetric);
    registry.add("Powermode", &s.Powermode);
    registry.add("Costmode", &s.Costmode);
}

void addEffect(ControlRegistry& registry, const Study& s) {
    registry.add("txtd", &s.txtd);
    registry.add("txtPrev", &s.txtPrev);
    registry.add("txtP2", &s.txtP2);
    registry.add("txtOR", &s.txtOR);
    registry.add("txtRR", &s.txtRR);
    registry.add("txtRD", &s.txtRD);
    registry.add("ComputedOR", &s.ComputedOR);
    registry.add("txtEvent2", &s.txtEvent2);
    registry.add("txtAlpha", &s.txtAlpha);
    registry.add("txtTails", &s.txtTails);
    registry.add("txtMean", &s.txtMean);
    registry.add("txtSD", &s.txtSD);
    registry.add("MaxCost", &s.MaxCost);
    registry.add("ReqPower", &s.ReqPower);
}

void addLevels(ControlRegistry& registry, const Study& s) {
    addIndexed(registry, "txtName", s.txtName);
    addIndexed(registry, "txtGroupName", s.txtGroupName);
    addIndexed(registry, "txtNT", s.txtNT);
    addIndexed(registry, "txtNC", s.txtNC);
    addIndexed(registry, "txtNB", s.txtNB);
    addIndexed(registry, "txtICC", s.txtICC);
    addIndexed(registry, "txtMRange", s.txtMRange);
    addIndexed(registry, "txtTauSq", s.txtTauSq);
    addIndexed(registry, "txtDRange", s.txtDRange);
    addIndexed(registry, "txtOmega", s.txtOmega);
    addIndexed(registry, "txtQ", s.txtQ);
    addIndexed(registry, "txtRsq", s.txtRsq);
    addIndexed(registry, "txtModel", s.txtModel);
    addIndexed(registry, "txtPop", s.txtPop);
    addIndexed(registry, "txtCostT", s.txtCostT);
    addIndexed(registry, "txtCostC", s.txtCostC);
    addIndexed(registry, "txtCostB", s.txtCostB);
    addIndexed(registry, "chkMatch", s.chkMatch);
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        registry.add("Link N" + std::to_string(level), &s.LinkN(level));
        registry.add("Link Cost" + std::to_string(level), &s.LinkCost(level));
    }
}

void addDecimals(ControlRegistry& registry, const FieldDecimals& decimals) {
    registry.add("txtd.FmtDecDigits", &decimals.txtd);
    registry.add("txtPrev.FmtDecDigits", &decimals.txtPrev);
    registry.add("txtP2.FmtDecDigits", &decimals.txtP2);
    registry.add("txtOR.FmtDecDigits", &decimals.txtOR);
    registry.add("txtRR.FmtDecDigits", &decimals.txtRR);
    registry.add("txtRD.FmtDecDigits", &decimals.txtRD);
    registry.add("txtMean.FmtDecDigits", &decimals.txtMean);
    registry.add("txtSD.FmtDecDigits", &decimals.txtSD);
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        registry.add(indexedName("txtICC", level) + ".FmtDecDigits", &decimals.txtICC);
        registry.add(indexedName("txtMRange", level) + ".FmtDecDigits", &decimals.txtMRange);
        registry.add(indexedName("txtTauSq", level) + ".FmtDecDigits", &decimals.txtTauSq);
        registry.add(indexedName("txtDRange", level) + ".FmtDecDigits", &decimals.txtDRange);
        registry.add(indexedName("txtOmega", level) + ".FmtDecDigits", &decimals.txtOmega);
        registry.add(indexedName("txtRsq", level) + ".FmtDecDigits", &decimals.txtRsq);
    }
}

void addResult(ControlRegistry& registry, const PowerResult& r) {
    registry.add("xLambda", &r.xLambda);
    registry.add("xdf", &r.xdf);
    registry.add("txtCritT", &r.txtCritT);
    registry.add("txtPower", &r.txtPower);
    registry.add("txtCost", &r.txtCost);
    registry.add("txtBinaryES", &r.txtBinaryES);
    registry.add("txtVarPooled", &r.txtVarPooled);
    registry.add("txtVarSep", &r.txtVarSep);
    registry.add("xValid", &r.xValid);
    addIndexed(registry, "xValidDF", r.xValidDF);
    addIndexed(registry, "xValidQ", r.xValidQ);
    registry.add("xValidTestdf", &r.xValidTestdf);
    registry.add("ValidES", &r.ValidES);
    registry.add("xValidES", &r.xValidES);
    registry.add("xValidTotICC", &r.xValidTotICC);
    addIndexed(registry, "xValidICC", r.xValidICC);
    addIndexed(registry, "xValidMRange", r.xValidMRange);
    addIndexed(registry, "xValidTauSq", r.xValidTauSq);
    addIndexed(registry, "xValidOmega", r.xValidOmega);
    addIndexed(registry, "xValidCost", r.xValidCost);
    addIndexed(registry, "xValidModel", r.xValidModel);
    registry.add("xValidAlpha", &r.xValidAlpha);
    registry.add("xValidOptimal", &r.xValidOptimal);
    registry.add("Adjusteddf", &r.Adjusteddf);
    registry.add("MDES", &r.MDES);
    registry.add("txtCostProblem", &r.txtCostProblem);
}

void addDispersion(ControlRegistry& registry, const Study& s) {
    addIndexed(registry, "frmDisplayICC.ValidICC", s.outcome.ValidICC);
    addIndexed(registry, "frmDisplayICC.ShowICC", s.outcome.ShowICC);
    addIndexed(registry, "frmDisplayICC.ShowSpan", s.outcome.ShowSpan);
    addIndexed(registry, "LogitV", s.logit.LogitV);
    addIndexed(registry, "LogitOk", s.logit.ok);
    addIndexed(registry, "LogitError", s.logit.error);
    addIndexed(registry, "LogitTruncation", s.logit.truncation);
    addIndexed(registry, "frmDisplayTauSq.txtTauSq", s.effect.txtTauSq);
    addIndexed(registry, "frmDisplayTauSq.txtSpan", s.effect.txtSpan);
    addIndexed(registry, "frmDisplayTauSq.txtOmega", s.effect.txtOmega);
    addIndexed(registry, "frmDisplayTauSq.ValidTauSq", s.effect.ValidTauSq);
    addIndexed(registry, "frmDisplayTauSq.ValidSpan", s.effect.ValidSpan);
    addIndexed(registry, "frmDisplayTauSq.ValidOmega", s.effect.ValidOmega);
    addIndexed(registry, "frmDisplayTauSq.ShowTauSq", s.effect.ShowTauSq);
    addIndexed(registry, "frmDisplayTauSq.ShowSpan", s.effect.ShowSpan);
    addIndexed(registry, "frmDisplayTauSq.ShowOmega", s.effect.ShowOmega);
}

// The limits of the risks stand on windows of their own; the names without a window are those of a study
// file's fields.
void addLimits(ControlRegistry& registry, const RiskLimits& limits) {
    registry.add("txtDelta", &limits.txtDelta);
    registry.add("frmDelta.txtDelta", &limits.txtDelta);
    registry.add("RangeMode", &limits.RangeMode);
    for (const char* window : {"", "frmLimits."}) {
        addIndexed(registry, std::string(window) + "txtLL", limits.txtLL);
        addIndexed(registry, std::string(window) + "txtUL", limits.txtUL);
    }
    addIndexed(registry, "frmLimits.txtVariance", limits.txtVariance);
    addIndexed(registry, "frmLimits.txtSpan", limits.txtSpan);
    addIndexed(registry, "frmLimits.txtICC", limits.txtICC);
    addIndexed(registry, "frmLimits.txtTauSq", limits.txtTauSq);
    addIndexed(registry, "frmLimits.txtDRange", limits.txtDRange);
    addIndexed(registry, "frmLimits.txtOmega", limits.txtOmega);
}

void addSettings(ControlRegistry& registry, const SessionSettings& settings) {
    registry.add("CurrentFile", &settings.CurrentFile);
    registry.add("StudyDirty", &settings.StudyDirty);
    registry.add("IterationsForOptimal", &settings.IterationsForOptimal);
    registry.add("AllowLowCellCounts", &settings.AllowLowCellCounts);
    registry.add("CellCountDetail", &settings.CellCountDetail);
    registry.add("ShowCellCounts", &settings.ShowCellCounts);
    registry.add("ShowIccSchematic", &settings.ShowIccSchematic);
    registry.add("ShowTauSqSchematic", &settings.ShowTauSqSchematic);
    registry.add("ShowOmega", &settings.ShowOmega);
    registry.add("ReportFont", &settings.ReportFont);
    registry.add("ReportPaper", &settings.ReportPaper);
    registry.add("ReportSpans", &settings.ReportSpans);
    registry.add("ReportCosts", &settings.ReportCosts);
    registry.add("ScenarioNumber", &settings.ScenarioNumber);
    registry.add("CurrencySymbol", &settings.currency.Symbol);
    registry.add("CurrencyPosition", &settings.currency.Position);
    addIndexed(registry, "IncN", settings.IncN);
    addIndexed(registry, "IncCost", settings.IncCost);
    registry.add("IncMRange", &settings.IncMRange);
    registry.add("IncMean", &settings.IncMean);
    registry.add("IncSD", &settings.IncSD);
}

void addCounts(ControlRegistry& registry, const CellCounts& counts, const CellCountsPanel& panel) {
    addIndexed(registry, "frmCounts.pnlN", panel.pnlN);
    addIndexed(registry, "frmCounts.pnlRate", panel.pnlRate);
    addIndexed(registry, "frmCounts.pnlMean", panel.pnlMean);
    addIndexed(registry, "frmCounts.pnlPctBad", panel.pnlPctBad);
    registry.add("frmCounts.pnlTitle", panel.pnlTitle);
    addIndexed(registry, "CellShare", counts.share);
    addIndexed(registry, "CellLow", counts.low);
    registry.add("CellCountsLow", &counts.anyLow);
}

}  // namespace

void Design::registerNames(ControlRegistry& registry) const {
    addChoices(registry, study_);
    addEffect(registry, study_);
    addLevels(registry, study_);
    addDecimals(registry, study_.decimals);
    addResult(registry, study_.result);
    addDispersion(registry, study_);
    addLimits(registry, study_.limits);
    addSettings(registry, settings_);
    registry.add("Design.Caption", &caption_.Caption);
    screen_.registerNames(registry);
    iccPanel_.registerNames(registry);
    tauSqPanel_.registerNames(registry);
    tools_.registerNames(registry);
    addCounts(registry, study_.counts, countsPanel_);
    registry.add("frmProblems.pnlErr", problems_.pnlErr);
    registry.add("frmProblems.pnlErrTitle", problems_.pnlErrTitle);
    registry.add("frmProblemES.pnlErrES", effectProblems_.pnlErrES);
    registry.add("frmProblemES.pnlErrESTitle", effectProblems_.pnlErrESTitle);
    for (int window = 1; window <= lastWindowId; ++window)
        registry.add("window:" + std::to_string(window), &windows_.stateOf(window));
    registry.addGrid("frmSpreadICC.VS", spreadICC_);
    registry.addGrid("frmSpreadTauSq.VS", spreadTauSq_);
}

}  // namespace lorvane
