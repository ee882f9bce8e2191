// The one door to the study.
#include "session/session.h"

#include <utility>

#include "session/field_book.h"
#include "session/likely_cause.h"

namespace lorvane {

namespace {

constexpr std::chrono::seconds longestPauseOfRun{1};

// A study that cannot be computed asks for other data.
void noteFault(Moment& moment, const ArithmeticFault& fault) {
    moment.faultWords = StudyFault(fault, moment.state.study).what();
    moment.state.study.result.xValid = false;
    moment.computation.outcome = {Obstacle::data, "Please modify data", {}, {}, {}};
}

}  // namespace

StudyFault::StudyFault(const ArithmeticFault& fault, const Study& study)
    : ArithmeticFault(fault.routine(), likelyCause(study)) {}

Session::Session(DistributionLibrary& library, Currency systemCurrency, const Clock& clock)
    : library_(library), systemCurrency_(std::move(systemCurrency)), clock_(clock), lastClick_(clock.now()),
      savedAt_(clock.dayAndTime()) {
    now_.state.settings.currency = systemCurrency_;
    compute();
}

void Session::compute() {
    now_.faultWords.clear();
    computeStudy(now_.state.study, library_, now_.computation);
    applyModelRule(now_.state.study);
}

void Session::tell(const Changed& changed) {
    if (changed.reach == Reach::anew || changed.reach == Reach::study)
        ++computations_;
    for (const auto& follower : followers_)
        follower(changed);
}

void Session::edit(const Edit& edit, const Change& change) {
    const Changed changed{edit.reach, edit.heldArrow, edit.otherStudy || edit.reach == Reach::anew};
    const Moment before = now_;
    Moment own = ownMoment();
    try {
        change(now_.state);
        if (edit.reach == Reach::anew || edit.reach == Reach::study)
            compute();
    } catch (const ArithmeticFault& fault) {
        const StudyFault told(fault, study());
        if (edit.ifFault == IfFault::undo) {
            now_ = before;
            throw told;
        }
        noteFault(now_, fault);
        record(edit, std::move(own));
        tell(changed);
        if (edit.ifFault == IfFault::keep)
            throw told;
        return;
    } catch (...) {
        now_ = before;
        throw;
    }
    record(edit, std::move(own));
    tell(changed);
}

bool Session::continuesRun(const std::string& run) const {
    return !run.empty() && run == run_ && clock_.now() - lastClick_ <= longestPauseOfRun;
}

bool Session::isLentOnShow() const { return lent_ && study().*(lent_->field) == lent_->lent; }

// Whether the values are those of a former state, the lent effect aside.
bool Session::hasOwnValuesOf(const SessionState& former) const {
    if (!isLentOnShow())
        return sameValues(former, now_.state);
    SessionState own = now_.state;
    own.study.*(lent_->field) = lent_->own;
    return sameValues(former, own);
}

// A change back to where the step began is no step.
void Session::record(const Edit& edit, Moment before) {
    if (edit.reach == Reach::display)
        return;
    dirty_ = dirty_ || edit.reach != Reach::setting;
    if (edit.reach == Reach::anew) {
        history_.clear();
        lent_.reset();
        run_.clear();
        now_.revision = ++lastRevision_;
        savedScenarios_ = {};
        savedAt_.clear();
        return;
    }
    const bool goesOn = continuesRun(edit.run);
    lastClick_ = clock_.now();
    if (hasOwnValuesOf(before.state))
        return;
    dirty_ = true;
    now_.revision = ++lastRevision_;
    if (!goesOn) {
        history_.add(edit.name, std::move(before));
        run_ = edit.run;
    } else if (hasOwnValuesOf(history_.beforeLast().state)) {
        now_.revision = history_.beforeLast().revision;
        history_.forgetLast();
        run_.clear();
    }
}

void Session::refresh() {
    dirty_ = true;
    try {
        compute();
    } catch (const ArithmeticFault& fault) {
        noteFault(now_, fault);
        tell({});
        throw StudyFault(fault, study());
    }
    tell({});
}

void Session::lendEffect(double Study::*field, double effect) {
    Study& study = now_.state.study;
    const bool stands = isLentOnShow() && lent_->field == field;
    if (!stands) {
        if (isLentOnShow())
            study.*(lent_->field) = lent_->own;
        lent_ = {field, study.*field, effect};
    }
    study.*field = lent_->lent = effect;
    refresh();
}

// Where something else was entered in the meantime, it stays.
void Session::takeBackEffect() {
    if (!lent_)
        return;
    if (isLentOnShow())
        now_.state.study.*(lent_->field) = lent_->own;
    lent_.reset();
    refresh();
}

Moment Session::ownMoment() const {
    Moment own = now_;
    Study& study = own.state.study;
    if (!isLentOnShow())
        return own;
    study.*(lent_->field) = lent_->own;
    try {
        computeStudy(study, library_, own.computation);
    } catch (const ArithmeticFault& fault) {
        noteFault(own, fault);
    }
    return own;
}

void Session::keepSearchOutcome(const PowerResult& outcome) {
    PowerResult& result = now_.state.study.result;
    result.xValidQ = outcome.xValidQ;
    result.xValidModel = outcome.xValidModel;
    result.xValidCost = outcome.xValidCost;
    result.xValidICC = outcome.xValidICC;
    result.xValidOmega = outcome.xValidOmega;
    result.xValidTauSq = outcome.xValidTauSq;
    result.xValidES = outcome.xValidES;
    result.xValidTotICC = outcome.xValidTotICC;
    result.xValidOptimal = outcome.xValidOptimal;
    result.Adjusteddf = outcome.Adjusteddf;
    result.txtCostProblem = outcome.txtCostProblem;
}

void Session::goTo(Moment moment) {
    moment.state.display = now_.state.display;
    now_ = std::move(moment);
    lent_.reset();
    run_.clear();
    dirty_ = now_.revision != savedRevision_;
    tell({});
}

bool Session::undo() {
    if (history_.depth() == 0)
        return false;
    goTo(history_.undo(ownMoment()));
    return true;
}

bool Session::redo() {
    if (!history_.canRedo())
        return false;
    goTo(history_.redo(ownMoment()));
    return true;
}

void Session::noteAsSaved() {
    savedRevision_ = now_.revision;
    savedScenarios_ = scenarios();
    savedAt_ = clock_.dayAndTime();
    run_.clear();
}

UnsavedWork Session::unsavedWork() const {
    const auto steps = isAsSaved() ? std::optional<std::size_t>(0) : history_.stepsTo(savedRevision_);
    return {steps, scenarios().countMissingIn(savedScenarios_), savedAt_, clock_.dayAndTime()};
}

void startAnew(SessionState& state) {
    SessionState fresh;
    fresh.settings.currency = state.settings.currency;
    fresh.display.ShowIccSchematic = state.display.ShowIccSchematic;
    fresh.display.ShowTauSqSchematic = state.display.ShowTauSqSchematic;
    fresh.display.ShowOmega = state.display.ShowOmega;
    fresh.scenarios = state.scenarios;
    state = std::move(fresh);
}

}  // namespace lorvane
