// The curve of power against the number of units of the top level.
#include "search/power_curve.h"

#include <algorithm>
#include <cmath>

#include "base/arithmetic_fault.h"
#include "base/letter_case.h"
#include "base/number_text.h"
#include "session/field_words.h"

namespace lorvane {

namespace {

constexpr double leastEnd = 12;
constexpr double mostSteps = 37;  // with the end and the present number 40 points at most
constexpr int shownDecimals = 2;

void put(Study& s, double units) {
    const int top = s.NumLevels;
    if (s.isBlocked(top)) {
        s.txtNB(top) = units;
        return;
    }
    s.txtNT(top) = units;
    if (s.LinkN(top))
        s.txtNC(top) = units;
}

double presentUnits(const Study& s) {
    return s.isBlocked(s.NumLevels) ? s.txtNB(s.NumLevels) : s.txtNT(s.NumLevels);
}

bool hasCurve(const Session& session) {
    const Study& s = session.study();
    return session.faultWords().empty() && s.result.xValid && s.isTested() &&
           limitsOf(s, *topUnits(s).field).holds(presentUnits(s));
}

// A range stays until the point leaves its middle half, so that arrows do not move the axis.
bool isInMiddle(const UnitRange& range, double units) {
    const double quarter = (range.last - range.first) / 4;
    return units >= range.first + quarter && units <= range.last - quarter;
}

}  // namespace

FieldRef topUnits(const Study& s) { return {&fieldOf(s.isHierarchical() ? "txtNT" : "txtNB"), s.NumLevels}; }

std::string powerCurveTitle(const Study& s) {
    const bool isLinked = s.LinkN(s.NumLevels);
    if (s.isHierarchical() && !isLinked)
        return fieldWords(s, topUnits(s));
    return "Number of " + lowerCased(s.txtName(s.NumLevels)) + (s.isHierarchical() ? " per group" : "");
}

std::string powerCurveName(const Study& s) { return "Power by " + inSentence(powerCurveTitle(s)); }

std::string powerCurveHint(const Study& s) {
    return powerCurveName(s) + ". Left and Right go to another number, Enter sets it.";
}

std::string powerPointWords(const Study& s, const PowerPoint& point) {
    return shortestText(point.units) + " " + lowerCased(s.txtName(s.NumLevels)) + ": power " +
           fixedText(point.power, shownDecimals);
}

void PowerCurveRun::begin(const Session& session) {
    trial_.reset();
    if (!hasCurve(session)) {
        whole_.reset();
        return;
    }
    trial_ = session.trial();
    begun_ = {topUnits(session.study()), {}, {}, 0};
    present_ = presentUnits(session.study());
    without_ = 0;
    with_ = std::ceil(present_);
    next_ = 0;
}

bool PowerCurveRun::goOn(int trials) {
    for (; trial_ && trials > 0; --trials) {
        if (next_ == 0)
            search();
        else
            addPoint();
    }
    return trial_.has_value();
}

// Leaves in the trial what the number gives.
bool PowerCurveRun::hasPower(double units) {
    put(trial_->study, units);
    try {
        trial_->refresh();
    } catch (const ArithmeticFault&) {
        return false;
    }
    return trial_->study.result.xValid;
}

// More units never take a power away, so the smallest number with one is found by halving.
void PowerCurveRun::search() {
    if (with_ - without_ > 1) {
        const double middle = std::floor((with_ + without_) / 2);
        (hasPower(middle) ? with_ : without_) = middle;
    }
    if (with_ - without_ <= 1)
        chooseRange();
}

void PowerCurveRun::chooseRange() {
    const double first = std::min(with_, present_);
    const bool stays = whole_ && whole_->field.name() == begun_.field.name() &&
                       whole_->range.first == first && isInMiddle(whole_->range, present_);
    const double largest = limitsOf(trial_->study, *begun_.field.field).high;
    const double last = std::min(largest, std::max(leastEnd, std::ceil(2 * present_)));
    begun_.range = stays ? whole_->range : UnitRange{first, last};
    step_ = std::max(1.0, std::ceil((begun_.range.last - first) / mostSteps));
    next_ = first;
}

// The end and the present number have points of their own, wherever the steps fall.
void PowerCurveRun::addPoint() {
    if (hasPower(next_)) {
        if (next_ == present_)
            begun_.present = begun_.points.size();
        begun_.points.push_back({next_, trial_->study.result.txtPower});
    }
    if (next_ == begun_.range.last)
        return finish();
    const double steps = std::floor((next_ - begun_.range.first) / step_) + 1;
    const double after = std::min(begun_.range.first + steps * step_, begun_.range.last);
    next_ = next_ < present_ ? std::min(after, present_) : after;
}

// A model that a file alone can hold may leave a power that the next computation no longer gives.
void PowerCurveRun::finish() {
    trial_.reset();
    const bool isOnIt =
        begun_.present < begun_.points.size() && begun_.points[begun_.present].units == present_;
    if (isOnIt)
        whole_ = std::move(begun_);
    else
        whole_.reset();
}

}  // namespace lorvane
