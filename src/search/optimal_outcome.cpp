// What a finished search offers.
#include "search/optimal_outcome.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "base/money.h"
#include "base/number_text.h"
#include "search/optimal_texts.h"

namespace lorvane {

namespace {

constexpr int powerDecimals = 5;
constexpr int shownPowerDecimals = 4;
constexpr std::size_t heads = 1;  // rows of the table before the first trial

}  // namespace

void OptimalOutcome::take(OptimalResult result, const Study& study, const OptimalOptions& options,
                          const Currency& currency) {
    result_ = std::move(result);
    currency_ = currency;
    other_ = otherDesign(study, result_, currency);
    notes_ = optimalNotes(study, result_, options, currency);
    writeTrials(study);
    writeTable(study);
    showCheapest();
}

void OptimalOutcome::forget() { *this = {}; }

std::optional<std::size_t> OptimalOutcome::otherNote() const {
    const auto note = other_ ? std::find(notes_.begin(), notes_.end(), other_->words) : notes_.end();
    if (note == notes_.end())
        return std::nullopt;
    return static_cast<std::size_t>(note - notes_.begin());
}

void OptimalOutcome::writeTrials(const Study& s) {
    vsA_.rows = {{""}};
    for (int level = s.NumLevels; level >= lowestLevel; --level)
        vsA_.rows.push_back({"Level " + std::to_string(level)});
    vsA_.rows.push_back({"Cost"});
    vsA_.rows.push_back({"Power"});
    for (std::size_t i = 0; i < result_.trials.size(); ++i) {
        const Trial& trial = result_.trials[i];
        auto row = vsA_.rows.begin();
        row++->push_back(std::to_string(i + 1));
        for (int level = s.NumLevels; level >= lowestLevel; --level)
            row++->push_back(shortestText(trial.sizes(level)));
        row++->push_back(std::to_string(trial.cost));
        row++->push_back(fixedText(trial.power, powerDecimals));
    }
}

// The trials for people to read.
void OptimalOutcome::writeTable(const Study& s) {
    Grid::Row titles;
    for (int level = s.NumLevels; level >= lowestLevel; --level)
        titles.emplace_back(trimmed(s.txtName(level)));
    titles.insert(titles.end(), {"Cost", "Power"});
    vsTrials_.rows = {std::move(titles)};
    for (const Trial& trial : result_.trials) {
        Grid::Row& row = vsTrials_.rows.emplace_back();
        for (int level = s.NumLevels; level >= lowestLevel; --level)
            row.push_back(shortestText(trial.sizes(level)));
        row.push_back(groupedText(trial.cost));
        row.push_back(fixedText(trial.power, shownPowerDecimals));
    }
}

void OptimalOutcome::showTrial(std::size_t trial) {
    trial_ = trial;
    showsOther_ = false;
    vsTrials_.selected.clear();
    if (!showsCheapest())
        vsTrials_.selected = {trial + heads};
}

void OptimalOutcome::showCheapest() { showTrial(result_.best); }

// Of several rows the first one; the cheapest without any.
void OptimalOutcome::showSelected() {
    showTrial(vsTrials_.selected.empty() ? result_.best : vsTrials_.selected.front() - heads);
}

void OptimalOutcome::showOther() {
    showCheapest();
    showsOther_ = true;
}

Trial OptimalOutcome::shown() const {
    return showsOther_ ? Trial{other_->sizes, other_->cost, other_->power, true} : result_.trials[trial_];
}

std::optional<std::size_t> OptimalOutcome::shownTrial() const {
    return showsOther_ ? std::nullopt : std::optional(trial_);
}

std::string OptimalOutcome::costText() const { return optimalCostText(shown().cost, currency_); }

std::string OptimalOutcome::words() const {
    const Trial design = shown();
    if (!design.valid)
        return "This trial gives no power, so it cannot be pasted.";
    const std::string words = "Power " + fixedText(design.power, shownPowerDecimals) + ". " +
                              (showsOther_ ? "This design costs " : "This trial costs ");
    const std::string cheapest = showsOther_ ? "the best trial." : "the cheapest.";
    const std::int32_t more = design.cost - result_.cheapest().cost;
    if (more == 0)
        return words + "as much as " + cheapest;
    return words + ReFormatCurrency(std::abs(more), currency_) + (more > 0 ? " more" : " less") + " than " +
           cheapest;
}

}  // namespace lorvane
