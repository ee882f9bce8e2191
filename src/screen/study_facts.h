// What report and details tell of a study, as the texts that stand in their sentences and tables.
#pragma once

#include <string>
#include <vector>

#include "session/session_state.h"
#include "validation/dispersion_tables.h"

namespace lorvane {

/// The session that a text tells of. It must outlive this. Dispersions can be told only where they are valid.
struct StudyFacts {
    const SessionState& state;

    const Study& study() const { return state.study; }
    /// Whether spans of means are told; those of risks always are.
    bool hasSpans() const { return state.settings.ReportSpans == Inclusions::include; }
};

/// Names on one line, as they were typed and in small letters. Group 1 is the treated one.
std::string levelName(const Study& study, int level);
std::string lowerLevelName(const Study& study, int level);
std::string groupName(const Study& study, int group);

/// "a", "a and b", "a, b, and c".
std::string listed(const std::vector<std::string>& texts);

/// The number of units or covariates in its shortest form, and a risk in the decimals of the effect strip.
std::string riskText(const Study& study, double risk);

/// One cell of the table of ICCs: percents with their sign, limits joined by " to ". Spans carry their unit
/// where it is asked for; those of risks are in percentage points.
std::string GetInsertICC(const Study& study, int level, IccColumn column, bool spanUnits);

/// One cell of the table of effects. A risk ratio and two risks have no limits.
std::string GetInsertTauSq(const Study& study, int level, TauSqColumn column);

/// The effect that the dispersion of effects lies about, in the study's own metric.
std::string meanEffect(const Study& study);

/// The unit that an odds ratio is told in, "(in log units)" for "LOG" or "(in raw units)" for "RAW" in any
/// case of letters, with blanks around it as asked for. Other effects need none.
std::string GetUnits(const Study& study, bool before, const std::string& word, bool after);

/// The standard deviation of scores within cells and across all of them, and the raw difference of the means
/// that the effect stands for.
std::string GetSDW(const Study& study);
std::string GetSDT(const Study& study);
std::string rawDifference(const Study& study);

}  // namespace lorvane
