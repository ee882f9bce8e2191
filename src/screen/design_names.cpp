// The names under which the values and display models of the study screen are read.
#include <string>

#include "base/names.h"
#include "screen/design.h"
#include "session/field_words.h"

namespace lorvane {

namespace {

template <typename T, int First, int Last>
void addIndexed(ControlRegistry& registry, const std::string& stem,
                const IndexedArray<T, First, Last>& values) {
    for (int i = First; i <= Last; ++i) {
        if constexpr (std::is_same_v<T, Panel>)
            registry.add(indexedName(stem, i), values(i));
        else if constexpr (std::is_same_v<T, bool>)
            registry.addFlag(indexedName(stem, i), values(i));
        else if constexpr (std::is_enum_v<T>)
            registry.add(indexedName(stem, i),
                         [&value = values(i)]() -> ControlValue { return static_cast<double>(value); });
        else
            registry.add(indexedName(stem, i), &values(i));
    }
}

ControlValue controlValue(const FieldValue& value) {
    return std::visit([](const auto& held) -> ControlValue { return held; }, value);
}

// Every field of the book, and the decimals of those that have some.
void addFields(ControlRegistry& registry, const Session& session) {
    forEachField([&](FieldRef ref) {
        registry.add(ref.name(), [&session, ref] { return controlValue(readField(session.state(), ref)); });
        if (ref->decimals != nullptr)
            registry.add(ref.name() + ".FmtDecDigits", [&session, ref]() -> ControlValue {
                return static_cast<double>(decimalsOf(session.study(), *ref.field));
            });
        if (!ref->cell.stem.empty())
            registry.add(ref.name() + ".Hint",
                         [&session, ref]() -> ControlValue { return fieldHint(session.state(), ref); });
    });
    registry.add("txtLevels", &session.study().NumLevels);
}

void addSession(ControlRegistry& registry, const Session& session) {
    registry.add("CurrentFile", &session.currentFile());
    registry.add("StudyDirty", [&session]() -> ControlValue { return session.isDirty(); });
    registry.add("UndoDepth",
                 [&session]() -> ControlValue { return static_cast<double>(session.undoDepth()); });
    registry.add("UndoName", [&session]() -> ControlValue { return session.undoName(); });
    registry.add("RedoName", [&session]() -> ControlValue { return session.redoName(); });
}

void addResult(ControlRegistry& registry, const Study& s) {
    const PowerResult& r = s.result;
    registry.add("ComputedOR", &s.ComputedOR);
    registry.add("txtEvent2", &s.txtEvent2);
    registry.add("xLambda", &r.xLambda);
    registry.add("xdf", &r.xdf);
    registry.add("txtCritT", &r.txtCritT);
    registry.add("txtPower", &r.txtPower);
    registry.add("txtCost", &r.txtCost);
    registry.add("txtBinaryES", &r.txtBinaryES);
    registry.add("txtVarPooled", &r.txtVarPooled);
    registry.add("txtVarSep", &r.txtVarSep);
    registry.addFlag("xValid", r.xValid);
    addIndexed(registry, "xValidDF", r.xValidDF);
    addIndexed(registry, "xValidQ", r.xValidQ);
    registry.addFlag("xValidTestdf", r.xValidTestdf);
    registry.addFlag("ValidES", r.ValidES);
    registry.addFlag("xValidES", r.xValidES);
    registry.addFlag("xValidTotICC", r.xValidTotICC);
    addIndexed(registry, "xValidICC", r.xValidICC);
    addIndexed(registry, "xValidMRange", r.xValidMRange);
    addIndexed(registry, "xValidTauSq", r.xValidTauSq);
    addIndexed(registry, "xValidOmega", r.xValidOmega);
    addIndexed(registry, "xValidCost", r.xValidCost);
    addIndexed(registry, "xValidModel", r.xValidModel);
    registry.addFlag("xValidAlpha", r.xValidAlpha);
    registry.addFlag("xValidOptimal", r.xValidOptimal);
    registry.add("Adjusteddf", [&r]() -> ControlValue { return static_cast<double>(r.Adjusteddf); });
    registry.add("MDES", [&r]() -> ControlValue { return static_cast<double>(r.MDES); });
    registry.addFlag("txtCostProblem", r.txtCostProblem);
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

// What the windows of the limits hold.
void addLimits(ControlRegistry& registry, const RiskLimits& limits) {
    registry.add("frmDelta.txtDelta", &limits.txtDelta);
    for (const auto& [name, values] : {std::pair{"txtLL", &limits.txtLL},
                                       {"txtUL", &limits.txtUL},
                                       {"txtVariance", &limits.txtVariance},
                                       {"txtSpan", &limits.txtSpan},
                                       {"txtICC", &limits.txtICC},
                                       {"txtTauSq", &limits.txtTauSq},
                                       {"txtDRange", &limits.txtDRange},
                                       {"txtOmega", &limits.txtOmega}})
        addIndexed(registry, std::string("frmLimits.") + name, *values);
}

void addCounts(ControlRegistry& registry, const CellCounts& counts, const CellCountsPanel& panel) {
    addIndexed(registry, "frmCounts.pnlA", panel.pnlA);
    for (const auto& [name, head] : {std::pair{"pnlTitle", &panel.pnlTitle},
                                     {"pnlInner", &panel.pnlInner},
                                     {"lblN", &panel.lblN},
                                     {"lblRate", &panel.lblRate},
                                     {"lblMean", &panel.lblMean},
                                     {"lblPctBad", &panel.lblPctBad}})
        registry.add(std::string("frmCounts.") + name, *head);
    addIndexed(registry, "frmCounts.pnlN", panel.pnlN);
    addIndexed(registry, "frmCounts.pnlRate", panel.pnlRate);
    addIndexed(registry, "frmCounts.pnlMean", panel.pnlMean);
    addIndexed(registry, "frmCounts.pnlPctBad", panel.pnlPctBad);
    addIndexed(registry, "CellShare", counts.share);
    addIndexed(registry, "CellLow", counts.low);
    registry.addFlag("CellCountsLow", counts.anyLow);
}

}  // namespace

void Design::registerNames(ControlRegistry& registry) const {
    addFields(registry, session_);
    addSession(registry, session_);
    addResult(registry, study());
    addDispersion(registry, study());
    addLimits(registry, study().limits);
    registry.add("Design.Caption", [this]() -> ControlValue { return SetCaption(); });
    for (const WindowTitle& row : windowTitles()) {
        if (*row.title == '\0')
            continue;
        registry.add(std::string(row.name) + ".Caption",
                     [title = row.title]() -> ControlValue { return std::string(title); });
    }
    screen_.registerNames(registry);
    iccPanel_.registerNames(registry);
    tauSqPanel_.registerNames(registry);
    addCounts(registry, study().counts, countsPanel_);
    registry.add("frmProblems.pnlErr", problems_.pnlErr);
    registry.add("frmProblems.pnlErrTitle", problems_.pnlErrTitle);
    registry.add("frmProblemES.pnlErrES", effectProblems_.pnlErrES);
    registry.add("frmProblemES.pnlErrESTitle", effectProblems_.pnlErrESTitle);
    for (int window = 1; window <= lastWindowId; ++window)
        registry.add("window:" + std::to_string(window), [this, window]() -> ControlValue {
            return static_cast<double>(windows_.state(static_cast<WindowId>(window)));
        });
    registry.addGrid("frmSpreadICC.VS", spreadICC_);
    registry.addGrid("frmSpreadTauSq.VS", spreadTauSq_);
}

}  // namespace lorvane
