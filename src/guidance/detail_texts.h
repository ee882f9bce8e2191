// What an item of the study screen means for the study at hand, in full sentences.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/marked_text.h"
#include "session/session_state.h"

namespace lorvane {

/// Items of the study screen that can be asked for.
enum class DetailItem : int {
    none = 0,
    design = 1,
    levels = 2,
    units = 3,
    icc = 4,
    span = 5,
    tauSq = 6,
    effects = 7,
    population = 8,
    model = 9,
    covariates = 10,
    costs = 11,
    effect = 12
};

struct DetailText {
    std::string title;
    std::vector<Paragraph> paragraphs;
};

/// The text of an item for a level, 1 to NumLevels, or for the whole column, 0. Nothing for the population
/// and for no item.
std::optional<DetailText> detailText(const SessionState& state, DetailItem item, int level);

/// The levels that an item tells something of, the top level first; none for what is about the whole study.
std::vector<int> detailLevels(const Study& study, DetailItem item);

}  // namespace lorvane
