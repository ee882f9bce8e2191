// What is told of the proof behind a search: on the card below the result, in the notes, on the command line.
#pragma once

#include <optional>
#include <string>

#include "engine/study.h"
#include "search/optimal_search.h"
#include "session/currency.h"

namespace lorvane {

/// "18 Schools, 2 Classes, 12 Students", from the top level down.
std::string sizesInWords(const Study& study, const LevelSizes& sizes);

/// "0.8423"
std::string powerText(double power);

/// "Looking for a cheaper design: 40% of the sizes are settled. Esc stops."
std::string lookingWords(OptimalGoal goal, double share);

/// What the proof of a finished run comes to, in a sentence.
std::string proofWords(const Study& study, const OptimalResult& result, const Currency& currency);

/// The design that the exact search found in the place of the best trial; nothing where that trial stands.
std::optional<Trial> otherDesign(const OptimalResult& result);

/// What to think of a search that was stopped on the way; empty where it came to its end.
std::string unprovenNote(const OptimalResult& result);

/// What to do about a budget that pays no design.
std::string budgetTooLowText(const Study& study, const OptimalResult& result, const Currency& currency);

/// "$1,400", what a design leaves of a budget.
std::string leftOfBudget(const Trial& design, double budget, const Currency& currency);

}  // namespace lorvane
