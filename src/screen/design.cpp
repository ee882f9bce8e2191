// The study screen and the showing half of the refresh.
#include "screen/design.h"

#include <span>
#include <utility>

#include "base/names.h"
#include "base/number_text.h"
#include "engine/effect_check.h"
#include "engine/power_test.h"
#include "screen/design_words.h"
#include "screen/screen_rows.h"
#include "screen/trouble_words.h"
#include "session/answers.h"
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

constexpr double fullBar = 100;

// Outline 1 goes around the dispersion at fault; 2 to 6 belong to the levels, i + 1 to level i.
constexpr int dispersionOutline = 1;
constexpr int firstLevelOutline = 2;
constexpr int lastLevelOutline = 6;

std::string fileName(const std::string& path) { return path.substr(path.find_last_of("/\\") + 1); }

const char* metricMarker(const Study& s) {
    if (s.isMeans())
        return s.DType == DTypes::within ? ",  d (within)" : ",  d (total)";
    if (s.BinaryType == BinaryTypes::oddsRatio)
        return ",  odds ratio";
    return s.BinaryType == BinaryTypes::riskDifference ? ",  risk difference" : "";
}

}  // namespace

Design::Design(Session& session, MessageBoxes& messages)
    : session_(session), messages_(messages), spreadICC_(LoadSpreadICC()), spreadTauSq_(LoadSpreadTauSq()) {
    show({Reach::anew, false, true});
}

void Design::tellStatus(std::string text) {
    screen_.pnlStatus.Caption = std::move(text);
    screen_.pnlNotice.Visible = screen_.pnlNoticeTitle.Visible = false;
}

void Design::tellNotOpened(const std::string& reason) {
    screen_.pnlStatus.Caption = reason;
    screen_.pnlNoticeTitle.Caption = "The file cannot be opened";
    screen_.pnlNotice.Caption = reason + "\nThe study on the screen is as it was. Ctrl+O opens another file.";
    screen_.pnlNotice.Visible = screen_.pnlNoticeTitle.Visible = true;
}

// Another study must not stand beside what was told of the one before.
void Design::forgetModels() {
    screen_.reset();
    problems_ = ProblemWindow();
    effectProblems_ = EffectProblemWindow();
    iccPanel_ = IccPanel();
    tauSqPanel_ = TauSqPanel();
}

void Design::show(const Changed& changed) {
    if (changed.otherStudy)
        forgetModels();
    studyNumber_ += changed.reach == Reach::anew;
    writeModels();
    if (changed.reach == Reach::anew || changed.reach == Reach::study)
        moveWindows(changed.heldArrow);
}

std::optional<FieldRef> Design::focus() const {
    const bool shown = focus_ && screen_.cell(focus_->field->cell.stem, focus_->index).Visible;
    return shown ? focus_ : std::nullopt;
}

void Design::writeModels() {
    const Study& s = study();
    writeEffect();
    writeDispersion();
    writeCells(session_.state(), session_.computation().models, screen_);
    writeStrip(s, screen_);
    writeTable(s, screen_);
    writeWords(session_.state(), screen_);
    writeOutcome();
    writeCost();
    writeOtherForm(s, screen_);
    writeDiagnostics(s, screen_);
    const DetailLevels detail = settings().CellCountDetail;
    writeCellCounts(s, {detail >= DetailLevels::moderate, detail >= DetailLevels::full}, countsPanel_);
}

void Design::writeEffect() {
    const Study& s = study();
    if (s.isMeans())
        return;
    const bool good = s.result.ValidES;
    screen_.SSPanel10.Caption = good ? derivedEffectText(s) : "";
    screen_.lblDerived.Caption = derivedEffectName(s);
    screen_.pnlDerived.Caption = good ? derivedEffectNumber(s) : "";
    screen_.SSPanel10.ForeColor = good ? black : problemColour;
    if (good)
        return;
    effectProblems_.pnlErrESTitle.Caption = effectProblemTitle(s);
    effectProblems_.pnlErrES.Caption = effectProblemText(s);
}

void Design::writeDispersion() {
    const Computation& computation = session_.computation();
    spreadICC_ = iccTable(study(), computation.icc);
    writeIccPanel(study(), computation.icc, iccPanel_);
    spreadTauSq_ = tauSqTable(study());
    writeTauSqPanel(study(), computation.tauSq, display().ShowOmega, tauSqPanel_);
}

// The request stands in the place of the power whatever the mode. It comes after the cells, since an outline
// asks which of them are shown.
void Design::writeOutcome() {
    const ComputeOutcome& outcome = session_.computation().outcome;
    problems_.pnlErr.Caption = outcome.problem.message;
    problems_.pnlErrTitle.Caption = outcome.problem.title;
    writePower();
    outlineDispersion();
    outlineLevels();
    writeReason();
}

void Design::outlineDispersion() {
    clearOutline(dispersionOutline);
    const auto around = [&](const char* cell, const std::optional<LevelsAtFault>& levels) {
        if (levels)
            outline(dispersionOutline, indexedName(cell, levels->high), indexedName(cell, levels->low));
    };
    around("pnlICC", iccAtFault(session_));
    around("pnlTauSq", tauSqAtFault(session_));
}

// A gate before the power leaves the outlines of the last problem, and so does a fault of the arithmetic.
void Design::outlineLevels() {
    const ComputeOutcome& outcome = session_.computation().outcome;
    const bool reached = outcome.obstacle == Obstacle::none || outcome.obstacle == Obstacle::data;
    if (!reached || !session_.faultWords().empty())
        return;
    for (int number = firstLevelOutline; number <= lastLevelOutline; ++number)
        clearOutline(number);
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        const std::string last = indexedName("pnlRsq", level);
        if (outcome.covariatesAtFault(level))
            outline(level + 1, indexedName("pnlQ", level), last);
        if (outcome.levelAtFault(level))
            outline(level + 1, indexedName("pnlLevel", level), last);
    }
}

// The card of the power leads to the outlines only where this problem has one.
void Design::writeReason() {
    screen_.pnlPowerReason.Caption = troubleSentence(session_);
    screen_.pnlPowerTip.Caption = troubleText(session_);
    if (study().result.xValid)
        return;
    const ComputeOutcome& outcome = session_.computation().outcome;
    bool isOutlined = screen_.outlines(dispersionOutline).Visible;
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        const bool isAtFault = outcome.covariatesAtFault(level) || outcome.levelAtFault(level);
        isOutlined = isOutlined || (isAtFault && screen_.outlines(level + 1).Visible);
    }
    screen_.pnlPowerNote.Caption = isOutlined ? outlinedValuesNote : "";
}

void Design::writePower() {
    const std::string_view request = session_.computation().outcome.request;
    const bool asBar = request.empty() && display().Powermode == DisplayModes::graph;
    Figure& power = screen_.pnlPower;
    power.Visible = !asBar;
    screen_.pnlPowerOuter.Visible = asBar;
    power.state = asBar ? FigureState::bar : FigureState::digits;
    power.trouble = !request.empty();
    power.Align = power.trouble ? Alignment::centred : Alignment::left;
    if (power.trouble) {
        power.state = FigureState::request;
        power.Caption = request;
        screen_.pnlPowerBar.Flood = 0;
        return;
    }
    const double value = study().result.txtPower;
    power.number = fixedText(value, 4);
    power.barNumber = fixedText(value * 100, 1) + "%";
    power.Caption = power.name + " = " + power.number;
    screen_.pnlPowerBar.Flood = SmallerOf(value * 100, fullBar);
}

// A cost of exactly 1 leaves the caption as it stands. The gap is deliberate.
void Design::writeCost() {
    const std::int32_t amount = study().result.txtCost;
    Figure& cost = screen_.pnlCost;
    const bool asBar = display().Costmode == DisplayModes::graph;
    cost.Visible = !asBar;
    screen_.pnlCostOuter.Visible = asBar;
    cost.state = asBar ? FigureState::bar : FigureState::digits;
    if (amount != 1)
        cost.number = costText(amount, settings().currency);
    cost.barNumber = cost.number;
    cost.Caption = cost.name + " = " + cost.number;
    screen_.pnlCostBar.Flood = SmallerOf(amount / study().MaxCost * 100, fullBar);
}

void Design::SynchForms(WindowId window, WindowAction action) {
    if (action == WindowAction::open)
        windows_.ask(window);
    else
        windows_.SynchForms(window, action);
}

bool Design::problemIsDrawn(WindowId window) const {
    const bool saysMore = screen_.pnlPowerTip.Caption != screen_.pnlPowerReason.Caption;
    return isOpen(window) && (saysMore || windows_.isAskedFor(window));
}

std::string Design::whyNoSubject(WindowId window) const {
    const Study& s = study();
    const bool isProblem = window == frmProblems || window == frmProblemES;
    if (window == frmDisplayTauSq && s.isHierarchical())
        return "Only blocked levels have effects that vary, and no level is blocked";
    if (window == frmCounts && s.isMeans())
        return "Only a binary outcome has cell counts";
    if (window == frmProblemES && s.isBinary() && !s.result.ValidES)
        return "";
    if (window == frmProblems && session_.computation().outcome.obstacle == Obstacle::data)
        return "";
    return isProblem ? "The study has no such problem" : "";
}

void Design::closeUnfit() {
    const auto closeIf = [&](bool close, WindowId window) {
        if (close)
            SynchForms(window, WindowAction::withdrawForGood);
    };
    const bool isComputed = session_.faultWords().empty();
    closeIf(study().isHierarchical(), frmDisplayTauSq);
    closeIf(study().isMeans(), frmCounts);
    closeIf(!hasSubject(frmProblemES), frmProblemES);
    closeIf(isComputed && session_.computation().outcome.obstacle == Obstacle::none, frmProblems);
}

// The windows that tell of problems follow the computation. Where its arithmetic could not go on none opens.
void Design::moveWindows(bool heldArrow) {
    const auto openIf = [&](bool open, WindowId window) {
        if (open)
            windows_.SynchForms(window, WindowAction::open);
    };
    const bool faulty = !session_.faultWords().empty();
    const Obstacle obstacle = faulty ? Obstacle::none : session_.computation().outcome.obstacle;
    closeUnfit();
    openIf(obstacle == Obstacle::effect, frmProblemES);
    openIf(obstacle == Obstacle::icc, frmDisplayICC);
    openIf(obstacle == Obstacle::tauSq, frmDisplayTauSq);
    openIf(obstacle == Obstacle::data && !heldArrow, frmProblems);
    SynchCellCounts();
}

void Design::Spin(FieldRef field, int direction, ArrowHold hold, int times) {
    if (field->panel == FieldPanel::icc)
        ShowICC(true);
    if (field->panel == FieldPanel::tauSq)
        ShowTauSq(true);
    stepField(session_, field, direction, hold, times);
}

void Design::DisplayPowerMode(DisplayModes mode) {
    session_.edit({"", Reach::display}, [&](SessionState& state) { state.display.Powermode = mode; });
}

void Design::DisplayCostMode(DisplayModes mode) {
    session_.edit({"", Reach::display}, [&](SessionState& state) { state.display.Costmode = mode; });
}

void Design::setShowOmega(bool show) {
    session_.edit({"", Reach::display}, [&](SessionState& state) { state.display.ShowOmega = show; });
}

void Design::setMaxCost(double cost) {
    session_.edit({"maximum cost", Reach::setting}, [&](SessionState& state) { state.study.MaxCost = cost; });
}

void Design::setCellCountDetail(DetailLevels detail) {
    session_.edit({"detail of cell counts", Reach::setting},
                  [&](SessionState& state) { state.settings.CellCountDetail = detail; });
    SynchCellCounts();
}

void Design::setShowCellCounts(SchematicModes mode) {
    session_.edit({"", Reach::display}, [&](SessionState& state) { state.display.ShowCellCounts = mode; });
    SynchCellCounts();
}

void Design::setIccSchematic(SchematicModes mode) {
    session_.edit({"", Reach::display}, [&](SessionState& state) { state.display.ShowIccSchematic = mode; });
    ShowICC(mode != SchematicModes::off);
}

void Design::setTauSqSchematic(SchematicModes mode) {
    session_.edit({"", Reach::display},
                  [&](SessionState& state) { state.display.ShowTauSqSchematic = mode; });
    ShowTauSq(mode != SchematicModes::off && !study().isHierarchical());
}

void Design::showGuide() {
    if (guideIsWanted_)
        SynchForms(WindowId::frmTips, WindowAction::open);
}

void Design::SuspendForms(FormSet set) {
    const std::span<const WindowId> forms = set == FormSet::main ? std::span<const WindowId>(mainForms)
                                                                 : std::span<const WindowId>(graphFormsAway);
    formsAreAway_ = formsAreAway_ || set == FormSet::main;
    for (const WindowId form : forms)
        SynchForms(form, WindowAction::withdraw);
}

void Design::RestoreForms(FormSet set) {
    const std::span<const WindowId> forms = set == FormSet::main ? std::span<const WindowId>(mainForms)
                                                                 : std::span<const WindowId>(graphFormsBack);
    for (const WindowId form : forms)
        SynchForms(form, WindowAction::bringBack);
    if (set != FormSet::main)
        return;
    formsAreAway_ = false;
    SynchForms(WindowId::Design, WindowAction::bringBack);
}

Answer Design::ask(const MessageBox& message) {
    SuspendForms(FormSet::main);
    const Answer answer = messages_.show(message);
    RestoreForms(FormSet::main);
    return answer;
}

Answer Design::ask(std::string title, std::string text, std::vector<MessageButton> buttons,
                   std::optional<Answer> preset) {
    return ask({std::move(title), std::move(text), std::move(buttons), preset});
}

void Design::tellRefusal(std::string title, std::string text) {
    messages_.show({std::move(title), std::move(text), {Answer::OK}, {}, MessageKind::formality});
}

void Design::ShowICC(bool show) {
    if (!show)
        SynchForms(frmDisplayICC, WindowAction::withdrawForGood);
    else if (display().ShowIccSchematic != SchematicModes::off)
        windows_.SynchForms(frmDisplayICC, WindowAction::open);
}

void Design::ShowTauSq(bool show) {
    if (!show)
        SynchForms(frmDisplayTauSq, WindowAction::withdrawForGood);
    else if (display().ShowTauSqSchematic != SchematicModes::off)
        windows_.SynchForms(frmDisplayTauSq, WindowAction::open);
}

void Design::SynchCellCounts() {
    const bool low = study().counts.anyLow;
    const SchematicModes mode = display().ShowCellCounts;
    ShowCounts(study().isBinary() &&
               (mode == SchematicModes::on || (mode == SchematicModes::automatic && low)));
}

void Design::ShowCounts(bool show) {
    windows_.SynchForms(frmCounts, show ? WindowAction::open : WindowAction::withdrawForGood);
}

std::string Design::savedWords() const {
    const std::string& file = session_.currentFile();
    return !session_.isAsSaved() || file.empty() ? "Not saved" : "Saved in " + fileName(file);
}

std::string Design::SetCaption() const {
    const std::string& file = session_.currentFile();
    return std::string("Lorvane") + metricMarker(study()) + (file.empty() ? "" : "  " + fileName(file));
}

}  // namespace lorvane
