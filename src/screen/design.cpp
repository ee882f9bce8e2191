// The study screen and its refresh.
#include "screen/design.h"

#include <utility>

#include "engine/docompute.h"
#include "engine/effect_check.h"
#include "screen/structure.h"
#include "validation/dispersion_tables.h"

namespace lorvane {

Design::Design(DistributionLibrary& library, const SystemLocale& locale)
    : library_(library), spreadICC_(LoadSpreadICC()), spreadTauSq_(LoadSpreadTauSq()),
      computeScreen_(study_, settings_, screen_, problems_, effectProblems_, windows_) {
    settings_.currency = detectCurrency(locale);
    ResetToStart();
    settings_.StudyDirty = false;
}

void Design::startAnew() {
    study_ = Study();
    SessionSettings fresh;
    fresh.CurrentFile = std::move(settings_.CurrentFile);
    fresh.StudyDirty = settings_.StudyDirty;
    fresh.currency = std::move(settings_.currency);
    fresh.ShowIccSchematic = settings_.ShowIccSchematic;
    fresh.ShowTauSqSchematic = settings_.ShowTauSqSchematic;
    settings_ = std::move(fresh);
    screen_ = MainScreen();
    problems_ = ProblemWindow();
    effectProblems_ = EffectProblemWindow();
    iccPanel_ = IccPanel();
    tauSqPanel_ = TauSqPanel();
    countsPanel_ = CellCountsPanel();
    applyChoices();
}

void Design::ResetToStart() {
    startAnew();
    DoRefresh(true);
}

void Design::applyChoices() {
    randomize(study_.RandomizedLevel);
    DisplayPowerMode(screen_, study_.Powermode);
    DisplayCostMode(screen_, study_.Costmode);
}

void Design::setNumLevels(int levels) { ApplyNumLevels(study_, screen_, levels); }

void Design::randomize(int level) { DoRandomize(study_, screen_, level); }

// None of the steps may be moved: each reads what the one before wrote.
void Design::DoRefresh(bool Show) {
    ComputeDisplay& display = Show ? static_cast<ComputeDisplay&>(computeScreen_) : silent_;
    settings_.StudyDirty = true;
    synchronise(Show, display);
    ComputeES(study_, display);
    docompute(study_, library_, display);
    if (!Show)
        return;
    SynchCellCounts();
}

void Design::synchronise(bool Show, ComputeDisplay& display) {
    const IccVerdict verdict = SynchICC(study_, display);
    const TauSqMessage message = SynchTauSq(study_);
    if (!Show)
        return;
    writeIccPanel(study_, verdict, iccPanel_);
    spreadICC_ = iccTable(study_, verdict.sumIsGood);
    writeTauSqPanel(study_, message, tauSqPanel_);
    spreadTauSq_ = tauSqTable(study_);
    if (study_.isHierarchical())
        windows_.SynchForms(WindowId::frmDisplayTauSq, WindowAction::withdrawForGood);
}

void Design::SynchCellCounts() {
    if (study_.isMeans()) {
        ShowCounts(false);
        return;
    }
    writeCellCounts(study_, countsPanel_);
    const bool low = study_.counts.anyLow == 1;
    const int mode = settings_.ShowCellCounts;
    ShowCounts(mode == SchematicModes::on || (mode == SchematicModes::automatic && low));
}

void Design::ShowCounts(bool show) {
    windows_.SynchForms(WindowId::frmCounts, show ? WindowAction::open : WindowAction::withdrawForGood);
}

}  // namespace lorvane
