// What a finished search offers.
#include "search/optimal_outcome.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "base/money.h"
#include "base/number_text.h"
#include "search/optimal_texts.h"
#include "search/proof_texts.h"

namespace lorvane {

namespace {

constexpr int powerDecimals = 5;
constexpr std::size_t heads = 1;  // rows of the table before the first trial

}  // namespace

void OptimalOutcome::take(OptimalResult result, const Study& study, const OptimalOptions& options,
                          const Currency& currency) {
    result_ = std::move(result);
    currency_ = currency;
    budget_ = options.budget;
    proof_ = result_.proof ? proofWords(study, result_, currency) : "";
    notes_ = optimalNotes(study, result_, options, currency);
    listDesigns(study.NumLevels);
    writeTrials(study);
    writeTable(study);
    showBest();
}

void OptimalOutcome::forget() { *this = {}; }

// Another design of the same sizes as a trial is that trial.
void OptimalOutcome::listDesigns(int top) {
    designs_ = result_.trials;
    best_ = result_.best;
    other_.reset();
    const std::optional<Trial> found = otherDesign(result_);
    if (!found)
        return;
    const auto place =
        std::lower_bound(designs_.begin(), designs_.end(), *found,
                         [top](const Trial& a, const Trial& b) { return a.sizes(top) < b.sizes(top); });
    other_ = static_cast<std::size_t>(place - designs_.begin());
    otherIsTrial_ = place != designs_.end() && haveSameSizes(*place, *found);
    if (otherIsTrial_)
        return;
    designs_.insert(place, *found);
    best_ += *other_ <= best_ ? 1 : 0;
}

std::optional<std::size_t> OptimalOutcome::otherNote() const {
    const auto note = other_ ? std::find(notes_.begin(), notes_.end(), proof_) : notes_.end();
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
    for (const Trial& trial : designs_) {
        Grid::Row& row = vsTrials_.rows.emplace_back();
        for (int level = s.NumLevels; level >= lowestLevel; --level)
            row.push_back(shortestText(trial.sizes(level)));
        row.push_back(groupedText(trial.cost));
        row.push_back(powerText(trial.power));
    }
}

void OptimalOutcome::show(std::size_t design) {
    shown_ = design;
    vsTrials_.selected.clear();
    if (!showsBest())
        vsTrials_.selected = {design + heads};
}

// Of several rows the first one; the best without any.
void OptimalOutcome::showSelected() {
    show(vsTrials_.selected.empty() ? best_ : vsTrials_.selected.front() - heads);
}

std::string OptimalOutcome::figure() const {
    return asksForPower() ? powerText(shown().power)
                          : optimalCostText(shown().cost, currency_);
}

std::string OptimalOutcome::words() const {
    if (!shown().valid)
        return "This trial gives no power, so it cannot be pasted.";
    return asksForPower() ? wordsOfPower() : wordsOfCost();
}

std::string OptimalOutcome::wordsOfCost() const {
    if (showsBest())
        return "Numbers are shown here. Click <Paste> to copy to the main screen.";
    const std::string words = "Power " + powerText(shown().power) + ". " +
                              (showsOther() ? "This design costs " : "This trial costs ");
    const std::string cheapest = showsOther() ? "the best trial." : "the cheapest.";
    const std::int32_t more = shown().cost - result_.bestTrial().cost;
    if (more == 0)
        return words + "as much as " + cheapest;
    return words + ReFormatCurrency(std::abs(more), currency_) + (more > 0 ? " more" : " less") + " than " +
           cheapest;
}

std::string OptimalOutcome::wordsOfPower() const {
    const std::string cost = "Cost " + ReFormatCurrency(shown().cost, currency_);
    const std::string left = ", " + leftOfBudget(shown(), budget_, currency_) + " left. ";
    if (showsBest())
        return cost + " of " + amountText(budget_, currency_) + left +
               "Click <Paste> to copy to the main screen.";
    const double less = result_.bestTrial().power - shown().power;
    return cost + left + "This trial has " + powerText(less) + " less power.";
}

}  // namespace lorvane
