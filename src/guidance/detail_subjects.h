// What the details say of each item: its title and its paragraphs, as sentences with places.
#pragma once

#include <vector>

#include "screen/shared_sentences.h"

namespace lorvane {

/// The levels that an item tells something of. Each has a tab.
enum class DetailTabs { none, all, blockedOnes };

/// A paragraph of a whole column: told once, or once for each of some levels.
struct DetailBlock {
    Levels levels;
    std::vector<Sentence> sentences;
};

/// An item. One without tabs is about the study as a whole and tells the same in every row.
struct DetailSubject {
    DetailTabs tabs;
    std::vector<Sentence> columnTitle;
    std::vector<DetailBlock> column;
    std::vector<Sentence> rowTitle;
    std::vector<std::vector<Sentence>> row;  ///< a paragraph each, told of the level
};

const DetailSubject& designDetails();
const DetailSubject& levelDetails();
const DetailSubject& unitDetails();
const DetailSubject& iccDetails();
const DetailSubject& spanDetails();
const DetailSubject& tauSqDetails();
const DetailSubject& effectSpanDetails();  ///< span of effects and omega
const DetailSubject& modelDetails();
const DetailSubject& covariateDetails();
const DetailSubject& costDetails();
const DetailSubject& GetTextES();  ///< the effect size

}  // namespace lorvane
