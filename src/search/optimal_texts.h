// What the wizard of the optimal design tells: why it cannot run, and the notes of a finished run.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "engine/study.h"
#include "search/optimal_search.h"
#include "session/currency.h"

namespace lorvane {

/// A reason why the search cannot run, with the fields that it marks. A field is the stem of a cell's name.
struct ReadinessProblem {
    const char* title;
    const char* text;
    std::vector<const char*> fields;
};

/// The failing rules in their order; the last one is the one that is read.
std::vector<ReadinessProblem> readinessProblems(const Study& study);

/// The shortest text of a number with at most two decimals.
std::string MyStr(double value);

inline constexpr const char* wizardTitle = "  Optimal design wizard";
inline constexpr const char* modifyData = "Please modify data and try again.            ";

/// Why a run gave no design.
struct OptimalFailure {
    std::string title;  ///< empty where there is none
    std::string text;
};
OptimalFailure optimalFailure(const Study& study, const OptimalResult& result,
                              const std::vector<ReadinessProblem>& problems, const Currency& currency);

/// The notes of a finished run, a paragraph each. The options are those of the run.
std::vector<std::string> optimalNotes(const Study& study, const OptimalResult& result,
                                      const OptimalOptions& options, const Currency& currency);

/// The cost of a design, "$115,600".
std::string optimalCostText(std::int32_t cost, const Currency& currency);

}  // namespace lorvane
