// What a range by hand and the values of a series must keep to.
#pragma once

#include <string>
#include <vector>

#include "graphs/graph_variables.h"

namespace lorvane {

/// The limits of a range by hand; those of a dispersion come from the study.
FieldLimits axisLimitsOf(const Study& study, const GraphVariable& variable);

/// "Values must fall in the range of 0.000 to 0.950."
std::string rangeWords(const FieldLimits& limits, int decimals);

inline constexpr const char* equalEnds = "The start and end values cannot be the same.";
inline constexpr const char* equalValues = "Each value must be unique.";
inline constexpr const char* cutToNothing = "The values fall outside the range on which the study is valid.";

/// Values in the order in which the lines of their variable stand.
std::vector<double> sortedValues(const GraphVariable& variable, std::vector<double> values);

/// Whether the variable stands for R-squared where there are no covariates that could explain anything.
bool lacksCovariates(const Study& study, const GraphVariable& variable);

}  // namespace lorvane
