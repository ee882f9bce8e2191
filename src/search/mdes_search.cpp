// The search for the smallest effect that reaches a required power.
//
// Effects are counted in small units away from the null effect, so that every trial is an exact decimal.
#include "search/mdes_search.h"

#include <algorithm>
#include <cmath>

#include "base/leaps.h"
#include "engine/effect_check.h"
#include "engine/effect_metrics.h"
#include "validation/icc_span.h"

namespace lorvane {

namespace {

using Count = long long;

// A scale of effects: units of 1 / unitsPerOne away from the null effect, in one direction.
struct Scale {
    double null;
    double unitsPerOne;
    int direction;

    double effect(Count units) const {
        return (null * unitsPerOne + direction * static_cast<double>(units)) / unitsPerOne;
    }
};

// Refreshes of a study with other effects.
class Trials {
public:
    Trials(StudyTrial& trial, const Scale& scale)
        : trial_(trial), field_(effectField(trial.study)), scale_(scale) {}

    void write(Count units) { trial_.study.*field_ = scale_.effect(units); }

    /// Power of an effect. A study without power makes the trials invalid for good.
    double power(Count units) {
        write(units);
        trial_.refresh();
        ++runs_;
        const PowerResult& result = trial_.study.result;
        valid_ = valid_ && result.xValid;
        return result.txtPower;
    }

    bool valid() const noexcept { return valid_; }

    /// Ends the search on an effect.
    MdesResult endOn(Count units, MdesOutcome outcome) {
        MdesResult result;
        result.power = power(units);
        const Study& s = trial_.study;
        result.outcome = valid_ ? outcome : MdesOutcome::problem;
        result.effect = s.*field_;
        result.controlRate = s.txtPrev;
        result.treatedRate = s.txtEvent2;
        result.countsAreLow = s.isBinary() && s.counts.anyLow;
        result.runs = runs_;
        return result;
    }

private:
    StudyTrial& trial_;
    double Study::*field_;
    Scale scale_;
    bool valid_ = true;
    int runs_ = 0;
};

enum class Walk { steps, leaps };

// The first of 1 to most for which a condition holds; most + 1 when there is none. Leaps need a condition
// that stays once it holds.
template <typename Condition>
Count firstWhere(Count most, Walk walk, Condition holds) {
    if (walk == Walk::leaps)
        return 1 + stepsWhile(most, [&](Count n) { return !holds(n); });
    Count before = 0;
    while (before < most && !holds(before + 1))
        ++before;
    return before + 1;
}

constexpr double thousandth = 1000;
constexpr Count stepsOfMeans[] = {1000, 100, 10, 1};
constexpr Count mostStepsOfMeans = 1000000000;

// The power of means always grows with the effect.
MdesResult smallestMeans(StudyTrial& trial, double required) {
    Trials trials(trial, {0, thousandth, SetDefaultDirection(trial.study)});
    const auto reached = [&](Count units) { return trials.power(units) >= required || !trials.valid(); };
    Count d = 1;
    for (const Count step : stepsOfMeans) {
        if (reached(d))
            continue;
        const Count first =
            firstWhere(mostStepsOfMeans, Walk::leaps, [&](Count n) { return reached(d + n * step); });
        if (first > mostStepsOfMeans)
            return trials.endOn(d, MdesOutcome::outOfReach);
        // Back to the last trial below the power, where the next finer step goes on.
        d += (step == 1 ? first : first - 1) * step;
    }
    return trials.endOn(d, MdesOutcome::found);
}

// How one binary metric is searched in one direction. The first step of the climb is always firstStep units.
struct BinaryMetric {
    Scale scale;
    double (*range)(const Study& study, double start, double step, int direction);
    Count inward;  ///< move of the limit, in units, while the effect there is not admissible
    Walk walk;
};

constexpr Count firstStep = 10000;
constexpr double stepOfRange = 0.001;
constexpr int finerRounds = 4;

// Over the admissible range the power of an odds ratio rises to one peak and falls, so its wide range can be
// leaped over. That of a risk difference is narrow and is walked step by step.
//
// An odds ratio below 1 lies between 0 and 1, so its units are ten times finer: its walk ends on a grid of
// 0.0001, where one above 1 ends on 0.001. That is nearer to the true threshold.
BinaryMetric metricOf(const Study& study) {
    const int direction = SetDefaultDirection(study);
    if (study.BinaryType == BinaryTypes::riskDifference)
        return {{0, 1e7, direction}, GetRangeRD, 10000, Walk::steps};
    return {{1, direction == 1 ? 1e4 : 1e5, direction}, GetRangeOR, 1000, Walk::leaps};
}

class BinarySearch {
public:
    BinarySearch(StudyTrial& trial, double required)
        : study_(trial.study), metric_(metricOf(study_)), trials_(trial, metric_.scale), required_(required) {
    }

    MdesResult run();

private:
    void findLimit();
    bool isAdmissible(Count units);
    double power(Count units);
    void climb(Count step, double floor);
    void climbToPeak();
    void walkToRequired();

    Study& study_;
    BinaryMetric metric_;
    Trials trials_;
    double required_;
    Count limit_ = 0;
    Count at_ = 0;
    Count best_ = 0;  ///< where the highest power so far was met
    double peak_ = 0;
    bool cutByIcc_ = false;
};

// Out of reach, the effect told is the one that the climb ends on, within the admissible range: the finest
// step that gained nothing, and not the highest of all trials. A coarse step may have passed the summit by
// then, where the power hardly changes.
MdesResult BinarySearch::run() {
    findLimit();
    climbToPeak();
    if (peak_ > required_)
        walkToRequired();
    else if (peak_ == required_)
        at_ = best_;
    const bool reached = peak_ >= required_;
    MdesResult result = trials_.endOn(at_, reached ? MdesOutcome::found : MdesOutcome::outOfReach);
    result.cutByIcc = cutByIcc_;
    if (!reached)
        result.power = peak_;
    return result;
}

bool BinarySearch::isAdmissible(Count units) {
    trials_.write(units);
    ComputeES(study_);
    return study_.result.ValidES && GetOkICCTreatment(study_);
}

// The limit that the rates set, moved inward to where the ICCs of the treated group are possible.
void BinarySearch::findLimit() {
    const Scale& scale = metric_.scale;
    const double limit = metric_.range(study_, scale.null, stepOfRange, scale.direction);
    limit_ = std::llround(std::fabs(limit - scale.null) * scale.unitsPerOne);
    if (isAdmissible(limit_))
        return;
    const Count outermost = limit_;
    const Count moves = firstWhere(outermost / metric_.inward, Walk::leaps,
                                   [&](Count n) { return isAdmissible(outermost - n * metric_.inward); });
    trials_.write(outermost - (moves - 1) * metric_.inward);
    cutByIcc_ = !GetOkICCTreatment(study_);
    limit_ = std::max<Count>(outermost - moves * metric_.inward, 0);
}

double BinarySearch::power(Count units) {
    const double power = trials_.power(units);
    if (trials_.valid() && power > peak_) {
        peak_ = power;
        best_ = units;
    }
    return power;
}

// Goes on while the power does not fall from above the floor, and leaves one step beyond. Nothing rises above
// a power of 1.
void BinarySearch::climb(Count step, double floor) {
    Count known = 0;
    double powerThere = power(at_);
    const auto powerAfter = [&](Count n) {
        if (n != known)
            powerThere = power(at_ + n * step);
        known = n;
        return powerThere;
    };
    at_ += step * firstWhere(std::max<Count>(limit_ - at_, 0) / step, metric_.walk, [&](Count n) {
               const double before = powerAfter(n - 1);
               return before == 1 || (before > floor && powerAfter(n) < before) || !trials_.valid();
           });
}

// With unequal arms the power of a risk difference first dips below that of no effect; the first climb passes
// through the dip, since a climb that ended there would miss every effect beyond it. What is found is nearer
// to the true threshold. Where nothing rises above the power of no effect the peak is the null effect.
void BinarySearch::climbToPeak() {
    Count step = firstStep;
    climb(step, power(0));
    if (best_ == 0)
        at_ = step;
    for (int round = 0; round < finerRounds; ++round) {
        at_ = std::max<Count>(at_ - step - step / 10, 0);
        step /= 10;
        climb(step, 0);
    }
    at_ = std::min(at_, limit_);
}

// Ends on the last trial that does not exceed the power.
void BinarySearch::walkToRequired() {
    at_ = 0;
    Count step = 10 * firstStep;
    for (int round = 0; round <= finerRounds; ++round, step /= 10) {
        const Count first = firstWhere((best_ - at_) / step, metric_.walk, [&](Count n) {
            return trials_.power(at_ + n * step) > required_ || !trials_.valid();
        });
        at_ += (first - 1) * step;
    }
}

}  // namespace

double Study::*effectField(const Study& study) {
    if (study.isMeans())
        return &Study::txtd;
    switch (study.BinaryType) {
    case BinaryTypes::oddsRatio:
        return &Study::txtOR;
    case BinaryTypes::riskRatio:
        return &Study::txtRR;
    case BinaryTypes::riskDifference:
        return &Study::txtRD;
    case BinaryTypes::twoRisks:
        break;
    }
    return &Study::txtP2;
}

MdesResult FindMDES(StudyTrial trial, double requiredPower) {
    const Study& study = trial.study;
    MdesResult nothing;
    nothing.effect = study.*effectField(study);
    trial.refresh();
    if (!study.result.xValid || !study.isTested())
        return nothing;
    return study.isMeans() ? smallestMeans(trial, requiredPower) : BinarySearch(trial, requiredPower).run();
}

}  // namespace lorvane
