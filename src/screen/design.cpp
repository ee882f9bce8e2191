// The study screen and its refresh.
#include "screen/design.h"

#include <algorithm>
#include <span>
#include <utility>

#include "base/names.h"
#include "base/number_text.h"
#include "engine/docompute.h"
#include "engine/effect_check.h"
#include "screen/screen_rows.h"
#include "screen/spin.h"
#include "screen/structure.h"
#include "screen/tool_states.h"
#include "validation/dispersion_tables.h"

namespace lorvane {

namespace {

using enum WindowId;

// The orders in which windows make way and come back. The guide stands twice in the main set.
constexpr WindowId mainForms[] = {frmTips,          frmDetails,   frmGroupNames, frmLevelNames,
                                  frmScenariosName, frmScenarios, frmTips,       frmDisplayICC,
                                  frmDisplayTauSq,  frmProblems,  frmDelta,      frmCounts,
                                  frmSetMean,       frmProblemES, frmOptimal,    frmMDES};
constexpr WindowId graphFormsAway[] = {frmXVar, frmLVar, frmTipsGraph, frmTable};
constexpr WindowId graphFormsBack[] = {frmXVar, frmLVar, xPlot, frmTable, frmTipsGraph};

// Keeps the problem window from opening by itself while a held arrow ticks.
class SilentWhile {
public:
    SilentWhile(bool& flag, bool silent) : flag_(flag) { flag_ = silent; }
    ~SilentWhile() { flag_ = false; }
    SilentWhile(const SilentWhile&) = delete;
    SilentWhile& operator=(const SilentWhile&) = delete;

private:
    bool& flag_;
};

std::string fileName(const std::string& path) { return path.substr(path.find_last_of("/\\") + 1); }

const char* metricMarker(const Study& s) {
    if (s.isMeans())
        return s.DType == DTypes::within ? ",  d (within)" : ",  d (total)";
    if (s.BinaryType == BinaryTypes::oddsRatio)
        return ",  odds ratio";
    return s.BinaryType == BinaryTypes::riskDifference ? ",  risk difference" : "";
}

}  // namespace

Design::Design(DistributionLibrary& library, const SystemLocale& locale, MessageBoxes& messages)
    : library_(library), messages_(messages), systemCurrency_(detectCurrency(locale)),
      fields_(study_, settings_), spreadICC_(LoadSpreadICC()), spreadTauSq_(LoadSpreadTauSq()),
      computeScreen_(study_, settings_, screen_, problems_, effectProblems_, windows_, silentTick_) {
    settings_.currency = systemCurrency_;
    ResetToStart();
    settings_.StudyDirty = false;
    noteAsSaved();
}

void Design::startAnew() {
    study_ = Study();
    SessionSettings fresh;
    fresh.CurrentFile = std::move(settings_.CurrentFile);
    fresh.StudyDirty = settings_.StudyDirty;
    fresh.currency = std::move(settings_.currency);
    fresh.ShowIccSchematic = settings_.ShowIccSchematic;
    fresh.ShowTauSqSchematic = settings_.ShowTauSqSchematic;
    fresh.ShowOmega = settings_.ShowOmega;
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
    writeVisibility(study_, screen_);
}

void Design::Reset() {
    applyModelRule();
    writeVisibility(study_, screen_);
    DoRefresh(true);
}

void Design::setNumLevels(int levels) { ApplyNumLevels(study_, screen_, levels); }

void Design::randomize(int level) { DoRandomize(study_, screen_, level); }

// None of the steps may be moved: each reads what the one before wrote.
void Design::DoRefresh(bool Show) {
    ComputeDisplay& display = Show ? static_cast<ComputeDisplay&>(computeScreen_) : silent_;
    settings_.StudyDirty = true;
    faultWords_.clear();
    if (Show) {
        asSaved_ = false;
        showEntered();
    }
    synchronise(Show, display);
    ComputeES(study_, display);
    docompute(study_, library_, display);
    if (Show)
        showAll();
}

// The cells show what was entered even where the computation cannot go on.
void Design::showEntered() {
    writeStrip(study_, screen_);
    writeRows(study_, settings_, screen_);
}

void Design::synchronise(bool Show, ComputeDisplay& display) {
    const IccVerdict verdict = SynchICC(study_, display);
    const TauSqMessage message = SynchTauSq(study_);
    if (!Show)
        return;
    spreadICC_ = iccTable(study_, verdict.sumIsGood);
    writeIccPanel(study_, verdict, iccPanel_);
    spreadTauSq_ = tauSqTable(study_);
    writeTauSqPanel(study_, message, settings_.ShowOmega, tauSqPanel_);
    if (study_.isHierarchical())
        SynchForms(frmDisplayTauSq, WindowAction::withdrawForGood);
}

void Design::showAll() {
    SynchCellCounts();
    writeStrip(study_, screen_);
    writeRows(study_, settings_, screen_);
    applyModelRule();
    writeOtherForm(study_, screen_);
    writeDiagnostics(study_, screen_);
    writeWords(study_, settings_, screen_);
    for (const auto& refresh : followers_) {
        if (refresh)
            refresh();
    }
    showTools();
}

void Design::showFault(const ArithmeticFault& fault) {
    faultWords_ = fault.what();
    study_.result.xValid = 0;
    computeScreen_.askForData("Please modify data");
    computeScreen_.tellProblem("", "");
    writeWords(study_, settings_, screen_);
    if (const auto& mdes = followers_[static_cast<std::size_t>(RefreshFollower::mdes)])
        mdes();
}

void Design::showTools() {
    writeToolStates(study_, settings_, windows_, tools_);
    caption_.Caption = SetCaption();
}

// The level of randomization and the lowest level are always random. A file's fixed model there counts for
// the one computation before this, deliberately.
void Design::applyModelRule() {
    for (const int level : {1, study_.RandomizedLevel})
        study_.txtModel(level) = SamplingModels::random;
}

void Design::follow(RefreshFollower follower, std::function<void()> refresh) {
    followers_[static_cast<std::size_t>(follower)] = std::move(refresh);
}

void Design::setField(const SpinControl& control, double value) {
    const SpinRow& row = *control.row;
    const int level = control.level;
    const auto write = [&](std::string_view stem) {
        writeField(*fields_.find(row.perLevel ? indexedName(stem, level) : std::string(stem)), value);
    };
    write(row.field);
    const bool cost = row.step == SpinStep::costOfLevel;
    if (!row.linkedTo.empty() && (cost ? study_.LinkCost(level) : study_.LinkN(level)))
        write(row.linkedTo);
}

void Design::setValue(const std::string& field, double value) {
    const IndexedName name = splitName(field);
    for (const SpinRow& row : spinRows()) {
        if (row.field == name.stem)
            setField({&row, name.index.value_or(0)}, value);
    }
    DoRefresh(true);
}

void Design::Spin(const SpinControl& control, int direction, SpinMode mode) {
    const SpinRow& row = *control.row;
    if (row.picture == SpinPicture::icc)
        ShowICC(true);
    if (row.picture == SpinPicture::tauSq)
        ShowTauSq(true);
    const std::string name = row.perLevel ? indexedName(row.field, control.level) : std::string(row.field);
    const StudyField& field = *fields_.find(name);
    const FieldLimits limits = fields_.limitsOf(field);
    const int step = stepOf(row, control.level, settings_);
    const int decimals = field.FmtDecDigits == nullptr ? 0 : *field.FmtDecDigits;
    double value = spun(std::get<double>(readField(field)), direction, limits, decimals, step);
    if (row.snap)
        value = std::min(snapped(value, direction, step), limits.high);
    setField(control, value);
    const SilentWhile silent(silentTick_, mode == SpinMode::tick);
    DoRefresh(true);
}

void Design::spinModel(int level, int direction) {
    study_.txtModel(level) = direction > 0 ? SamplingModels::fixed : SamplingModels::random;
    DoRefresh(true);
}

void Design::spinPop(int level, int direction) {
    study_.txtPop(level) += direction;
    DoRefresh(true);
}

void Design::SETDECS(std::string_view fieldStem, int decimals) {
    for (const StudyField& field : fields_.all()) {
        if (splitName(field.name).stem != fieldStem || field.FmtDecDigits == nullptr)
            continue;
        *field.FmtDecDigits = decimals;
        const double rounded = *readNumber(fixedText(std::get<double>(readField(field)), decimals));
        // A value that rounding would take out of its limits stays as it was.
        if (fields_.limitsOf(field).holds(rounded))
            writeField(field, rounded);
    }
    DoRefresh(true);
}

void Design::SuspendForms(FormSet set) {
    const std::span<const WindowId> forms = set == FormSet::main ? std::span<const WindowId>(mainForms)
                                                                 : std::span<const WindowId>(graphFormsAway);
    for (const WindowId form : forms)
        SynchForms(form, WindowAction::withdraw);
}

void Design::RestoreForms(FormSet set) {
    const std::span<const WindowId> forms = set == FormSet::main ? std::span<const WindowId>(mainForms)
                                                                 : std::span<const WindowId>(graphFormsBack);
    for (const WindowId form : forms)
        SynchForms(form, WindowAction::bringBack);
    if (set == FormSet::main)
        SynchForms(WindowId::Design, WindowAction::bringBack);
}

Answer Design::ask(std::string title, std::string text, std::vector<Answer> buttons) {
    SuspendForms(FormSet::main);
    const Answer answer = messages_.show({std::move(title), std::move(text), std::move(buttons)});
    RestoreForms(FormSet::main);
    return answer;
}

bool Design::closeRequest() {
    const bool dirty = settings_.StudyDirty;
    const Answer answer = ask(dirty ? "Confirmation needed" : "Confirm exit",
                              dirty ? "This will clear all data and saved scenarios. Ok to exit?         "
                                    : "Ok to exit?                ",
                              {Answer::OK, Answer::Cancel});
    closed_ = answer == Answer::OK;
    return closed_;
}

void Design::ShowICC(bool show) {
    if (!show)
        SynchForms(frmDisplayICC, WindowAction::withdrawForGood);
    else if (settings_.ShowIccSchematic != SchematicModes::off)
        SynchForms(frmDisplayICC, WindowAction::open);
}

void Design::ShowTauSq(bool show) {
    if (!show)
        SynchForms(frmDisplayTauSq, WindowAction::withdrawForGood);
    else if (settings_.ShowTauSqSchematic != SchematicModes::off)
        SynchForms(frmDisplayTauSq, WindowAction::open);
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
    SynchForms(frmCounts, show ? WindowAction::open : WindowAction::withdrawForGood);
}

std::string Design::savedWords() const {
    if (!asSaved_ || settings_.CurrentFile.empty())
        return "Not saved";
    return "Saved in " + fileName(settings_.CurrentFile);
}

std::string Design::SetCaption() const {
    const std::string file = settings_.CurrentFile.empty() ? "" : "  " + fileName(settings_.CurrentFile);
    return std::string("Lorvane") + metricMarker(study_) + file;
}

}  // namespace lorvane
