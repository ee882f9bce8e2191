// What a finished search offers: its trials as tables, with the design that the exact search found among
// them, its notes, and which of the designs is looked at. Knows no window.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "search/optimal_search.h"
#include "search/optimal_types.h"
#include "session/currency.h"

namespace lorvane {

class OptimalOutcome {
public:
    /// Takes over what a run found; its best trial is looked at. The study and the options are the run's.
    void take(OptimalResult result, const Study& study, const OptimalOptions& options,
              const Currency& currency);

    /// Empties the tables.
    void forget();

    const OptimalResult& result() const { return result_; }

    /// All designs to look at: the trials, and where the exact search found another one, that too, in the
    /// order of their top levels. The best trial's number among them, from 0, and that of the other design.
    const std::vector<Trial>& designs() const { return designs_; }
    std::size_t best() const { return best_; }
    const std::optional<std::size_t>& other() const { return other_; }
    /// Whether a design is one of the trials.
    bool isTrial(std::size_t design) const { return design != other_ || otherIsTrial_; }

    /// What the exact search came to; empty before it has ended.
    const std::string& proof() const { return proof_; }
    bool isProven() const { return result_.proof && result_.proof->proven; }

    /// The notes, a paragraph each, and the number of the one that tells of the other design.
    const std::vector<std::string>& notes() const { return notes_; }
    std::optional<std::size_t> otherNote() const;

    /// A row a level and one each for cost and power; a column a trial.
    const Grid& vsA() const { return vsA_; }

    /// The designs as they are read: the heads, then a row a design with its sizes, cost and power. The row
    /// of the one that is looked at is selected, unless it is the best trial.
    const Grid& vsTrials() const { return vsTrials_; }
    Grid& vsTrials() { return vsTrials_; }

    /// Looks at another design: the best trial, the one selected in the table, or the other design, which
    /// there must be.
    void showBest() { show(best_); }
    void showSelected();
    void showOther() { show(*other_); }

    /// The design that is looked at, its number, and whether it is the best trial or the other design.
    const Trial& shown() const { return designs_[shown_]; }
    std::size_t shownDesign() const { return shown_; }
    bool showsBest() const { return shown_ == best_; }
    bool showsOther() const { return shown_ == other_; }

    /// The figure of that design, its cost or its power, and what there is to say of it beside the best one.
    std::string figure() const;
    std::string words() const;

private:
    bool asksForPower() const { return result_.goal == OptimalGoal::mostPower; }
    void show(std::size_t design);
    void listDesigns(int top);
    void writeTrials(const Study& study);
    void writeTable(const Study& study);
    std::string wordsOfCost() const;
    std::string wordsOfPower() const;

    OptimalResult result_;
    std::vector<Trial> designs_;
    std::size_t best_ = 0;
    std::optional<std::size_t> other_;
    bool otherIsTrial_ = false;
    std::string proof_;
    std::vector<std::string> notes_;
    Currency currency_;
    double budget_ = 0;
    Grid vsA_;
    Grid vsTrials_;
    std::size_t shown_ = 0;
};

}  // namespace lorvane
