// Sentences on a level that report and details tell alike.
#pragma once

#include <span>

#include "screen/sentences.h"

namespace lorvane {

/// The covariates of a level that has some, with their R-squared.
std::span<const Sentence> covariateCounts();

/// What that R-squared is a share of; nothing for a blocked level of risks.
std::span<const Sentence> covariatesExplained();

/// What a unit costs in either group; nothing for a blocked level.
std::span<const Sentence> costsOfGroups();

/// Lists of sentences as one.
std::vector<Sentence> together(std::initializer_list<std::span<const Sentence>> lists);

}  // namespace lorvane
