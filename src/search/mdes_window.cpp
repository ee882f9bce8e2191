// The panel of the smallest detectable effect.
#include "search/mdes_window.h"

namespace lorvane {

namespace {

// Stands while the panel's own refresh runs, which is no edit.
class WhileComputing {
public:
    explicit WhileComputing(bool& flag) : flag_(flag) { flag_ = true; }
    ~WhileComputing() { flag_ = false; }
    WhileComputing(const WhileComputing&) = delete;
    WhileComputing& operator=(const WhileComputing&) = delete;

private:
    bool& flag_;
};

}  // namespace

MdesWindow::MdesWindow(Design& design) : design_(design) {
    cmdComputeMDES_.Caption = "Compute minimum effect size";
    cmdMDESClose_.Caption = "Close";
    design_.follow(RefreshFollower::mdes, [this] { refresh(); });
    refresh();
}

void MdesWindow::registerNames(ControlRegistry& registry) const {
    registry.add("frmMDES.pnlMDESTop", pnlMDESTop_);
    registry.add("frmMDES.pnlMDESMid", pnlMDESMid_);
    registry.add("frmMDES.pnlMDES", pnlMDES_);
    registry.add("frmMDES.pnlFigureName", pnlFigureName_);
    registry.add("frmMDES.pnlFigureNumber", pnlFigureNumber_);
    registry.add("frmMDES.cmdComputeMDES", cmdComputeMDES_);
    registry.add("frmMDES.cmdMDESClose", cmdMDESClose_);
}

void MdesWindow::registerEvents(EventRegistry& events) {
    events.onTool("gfrmMDES", [this] { design_.SynchForms(WindowId::frmMDES, WindowAction::open); });
    events.onClick("frmMDES.cmdComputeMDES", [this] { computeEffect(); });
    events.onClick("frmMDES.cmdMDESClose", [this] { close(); });
    events.onClose("frmMDES", [this] { close(); });
}

// Also while it makes way for a message.
bool MdesWindow::isOpen() const {
    const int state = design_.windows().state(WindowId::frmMDES);
    return state == WindowStates::open || state == WindowStates::withdrawn;
}

void MdesWindow::show(State state, const MdesLines& lines, const MdesFigure& figure) {
    state_ = state;
    pnlMDESMid_.Caption = lines.first;
    pnlMDESMid_.ForeColor = state == State::problem ? problemColour : black;
    pnlMDES_.Caption = lines.second;
    pnlFigureName_.Caption = figure.name;
    pnlFigureNumber_.Caption = figure.number;
}

// An edit: a result of the earlier study must not stand beside the new one.
void MdesWindow::refresh() {
    const Study& s = design_.study();
    const bool newPower = s.ReqPower != prompted_;
    prompted_ = s.ReqPower;
    pnlMDESTop_.Caption = mdesPrompt(prompted_);
    if (computing_ || !isOpen())
        return;
    if (s.result.xValid == 0)
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
    Study& s = design_.study();
    const WhileComputing computing(computing_);
    show(State::problem, {problemLines[0], problemLines[1]});
    const MdesResult result = FindMDES(design_, s.ReqPower);
    s.result.MDES = result.outcome == MdesOutcome::found ? -1 : 0;
    lend(result.effect);
    design_.DoRefresh(true);
    show(result.outcome == MdesOutcome::problem ? State::problem : State::result, mdesLines(s, result),
         mdesFigure(s, result));
}

// An effect that was edited since the last search is the one to come back.
void MdesWindow::lend(double found) {
    Study& s = design_.study();
    double Study::*const field = effectField(s);
    if (lent_.field != field || s.*field != lent_.found) {
        takeBack();
        lent_ = {field, s.*field, found};
    }
    s.*field = lent_.found = found;
}

// Where something else was written in the meantime, by hand or by opening a file, it stays.
void MdesWindow::takeBack() {
    if (lent_.field != nullptr && design_.study().*lent_.field == lent_.found)
        design_.study().*lent_.field = lent_.before;
    lent_ = {};
}

void MdesWindow::close() {
    if (!isOpen())
        return;
    design_.SynchForms(WindowId::frmMDES, WindowAction::bringBack);
    design_.SynchForms(WindowId::frmMDES, WindowAction::unload);
    show(State::resting, {});
    const bool searched = lent_.field != nullptr;
    takeBack();
    if (searched)
        design_.DoRefresh(true);
}

}  // namespace lorvane
