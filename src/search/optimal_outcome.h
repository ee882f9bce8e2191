// What a finished search for the cheapest design offers: its trials as tables, a design beside them, its
// notes, and which of the designs is looked at. Knows no window.
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
    /// Takes over what a run found; its cheapest trial is looked at. The study and the options are the run's.
    void take(OptimalResult result, const Study& study, const OptimalOptions& options,
              const Currency& currency);

    /// Empties the tables.
    void forget();

    const OptimalResult& result() const { return result_; }
    const std::optional<OtherDesign>& other() const { return other_; }

    /// The notes, a paragraph each, and the number of the one that tells of the other design.
    const std::vector<std::string>& notes() const { return notes_; }
    std::optional<std::size_t> otherNote() const;

    /// A row a level and one each for cost and power; a column a trial.
    const Grid& vsA() const { return vsA_; }

    /// The trials as they are read: the heads, then a row a trial with its sizes, cost and power. The row of
    /// the trial that is looked at is selected, unless it is the cheapest.
    const Grid& vsTrials() const { return vsTrials_; }
    Grid& vsTrials() { return vsTrials_; }

    /// Looks at another design: the cheapest trial, the one selected in the table, or the other design, which
    /// there must be.
    void showCheapest();
    void showSelected();
    void showOther();

    /// The design that is looked at, and whether it is the cheapest trial or the other design.
    Trial shown() const;
    bool showsCheapest() const { return !showsOther_ && trial_ == result_.best; }
    bool showsOther() const { return showsOther_; }
    /// Its number among the trials, from 0; nothing for the other design.
    std::optional<std::size_t> shownTrial() const;

    /// The cost of that design, and what there is to say of it beside the cheapest one.
    std::string costText() const;
    std::string words() const;

private:
    void showTrial(std::size_t trial);
    void writeTrials(const Study& study);
    void writeTable(const Study& study);

    OptimalResult result_;
    std::optional<OtherDesign> other_;
    std::vector<std::string> notes_;
    Currency currency_;
    Grid vsA_;
    Grid vsTrials_;
    std::size_t trial_ = 0;
    bool showsOther_ = false;
};

}  // namespace lorvane
