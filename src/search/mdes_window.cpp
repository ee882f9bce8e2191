// The panel of the smallest detectable effect.
#include "search/mdes_window.h"

#include "base/while_set.h"
#include "validation/icc_messages.h"

namespace lorvane {

MdesWindow::MdesWindow(Design& design) : design_(design) {
    cmdComputeMDES_.Caption = "Compute minimum effect size";
    cmdMDESClose_.Caption = "Close";
    follow({Reach::anew});
}

void MdesWindow::registerNames(ControlRegistry& registry) const {
    registry.add("frmMDES.pnlMDESTop", pnlMDESTop_);
    registry.add("frmMDES.pnlMDESMid", pnlMDESMid_);
    registry.add("frmMDES.pnlMDES", pnlMDES_);
    registry.add("frmMDES.pnlNote", pnlNote_);
    registry.add("frmMDES.pnlFigureName", pnlFigureName_);
    registry.add("frmMDES.pnlFigureNumber", pnlFigureNumber_);
    registry.add("frmMDES.cmdComputeMDES", cmdComputeMDES_);
    registry.add("frmMDES.cmdMDESClose", cmdMDESClose_);
}

void MdesWindow::registerEvents(EventRegistry& events) {
    events.onClick("frmMDES.cmdComputeMDES", [this] { computeEffect(); });
    events.onClick("frmMDES.cmdMDESClose", [this] { close(); });
    events.onClose("frmMDES", [this] { close(); });
}

// Also while it makes way for a message.
bool MdesWindow::isOpen() const {
    const WindowStates state = design_.windows().state(WindowId::frmMDES);
    return state == WindowStates::open || state == WindowStates::withdrawn;
}

void MdesWindow::show(State state, const MdesLines& lines, const MdesFigure& figure) {
    state_ = state;
    pnlMDESMid_.Caption = lines.first;
    pnlMDESMid_.trouble = state == State::problem;
    pnlMDESMid_.ForeColor = pnlMDESMid_.trouble ? problemColour : black;
    pnlMDES_.Caption = lines.second;
    pnlNote_.Caption = state == State::result ? truncationNote(design_.study()) : "";
    pnlFigureName_.Caption = figure.name;
    pnlFigureNumber_.Caption = figure.number;
}

// After an edit a result of the earlier study must not stand beside the new one.
void MdesWindow::follow(const Changed& changed) {
    const Study& s = design_.study();
    const bool newPower = s.ReqPower != prompted_;
    prompted_ = s.ReqPower;
    pnlMDESTop_.Caption = mdesPrompt(prompted_);
    const bool isEdit = changed.reach == Reach::study || changed.reach == Reach::anew;
    if (computing_ || !isOpen() || !isEdit)
        return;
    if (!s.result.xValid)
        show(State::problem, {problemLines[0], problemLines[1]});
    else if (newPower)
        show(State::changed, {changedPowerLine, ""});
    else
        show(State::changed, {changedLines[0], changedLines[1]});
}

void MdesWindow::computeEffect() {
    // A script may press the button where nobody has opened the panel.
    if (!isOpen())
        design_.SynchForms(WindowId::frmMDES, WindowAction::open);
    Session& session = design_.session();
    const Study& s = session.study();
    // The panel's own refresh is no edit.
    const WhileSet computing(computing_);
    show(State::problem, {problemLines[0], problemLines[1]});
    const MdesResult result = FindMDES(session.trial(), s.ReqPower);
    session.keepMdesOutcome(result.outcome == MdesOutcome::found ? MdesOutcomes::found : MdesOutcomes::none);
    session.lendEffect(effectField(s), result.effect);
    show(result.outcome == MdesOutcome::problem ? State::problem : State::result, mdesLines(s, result),
         mdesFigure(s, result));
}

void MdesWindow::close() {
    if (!isOpen())
        return;
    design_.SynchForms(WindowId::frmMDES, WindowAction::bringBack);
    design_.SynchForms(WindowId::frmMDES, WindowAction::unload);
    show(State::resting, {});
    design_.session().takeBackEffect();
}

}  // namespace lorvane
