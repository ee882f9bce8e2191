// Sentences that tell of a study: text with places, the cases in which each is told, and how they become
// paragraphs.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/marked_text.h"
#include "screen/study_facts.h"

namespace lorvane {

/// What a sentence asks of the study, or of the level that it tells of. Cases are joined with "|"; the
/// sentence is told where all of them hold.
namespace cases {

using Set = std::uint64_t;

enum Case : Set {
    always = 0,
    // of the study
    means = 1ULL << 0,
    binary = 1ULL << 1,
    dWithin = 1ULL << 2,
    dTotal = 1ULL << 3,
    oddsRatio = 1ULL << 4,
    riskDifference = 1ULL << 5,
    twoLevels = 1ULL << 6,
    threeLevels = 1ULL << 7,
    fourLevels = 1ULL << 8,
    severalLevels = 1ULL << 9,  ///< three or four
    withSpans = 1ULL << 10,     ///< means, and spans are told
    withoutSpans = 1ULL << 11,  ///< means, and they are not
    oneTailed = 1ULL << 12,
    twoTailed = 1ULL << 13,
    tested = 1ULL << 14,       ///< the effect has a test
    powerToTell = 1ULL << 15,  ///< at most 0.999
    powerBeyond = 1ULL << 16,  ///< more
    hierarchical = 1ULL << 17,
    allRandom = 1ULL << 18,  ///< no level is fixed
    someFixed = 1ULL << 19,
    noCovariates = 1ULL << 20,  ///< at any level
    someCovariates = 1ULL << 21,
    severalBlocked = 1ULL << 22,  ///< two or three blocked levels
    lowCounts = 1ULL << 23,
    noLowCounts = 1ULL << 24,
    equalSizes = 1ULL << 25,  ///< the groups have the same number of units at every level
    unequalSizes = 1ULL << 26,
    blocking = 1ULL << 27,  ///< there are blocked levels
    untested = 1ULL << 28,
    iccEntered = 1ULL << 29,
    spanEntered = 1ULL << 30,    ///< of means, or of risks as a span
    limitsEntered = 1ULL << 31,  ///< of risks
    spreadValid = 1ULL << 32,    ///< the dispersion of the outcome can be told
    spreadInvalid = 1ULL << 33,
    effectsValid = 1ULL << 34,  ///< the dispersion of the effect can be told
    effectsInvalid = 1ULL << 35,
    tauSqEntered = 1ULL << 36,
    effectSpanEntered = 1ULL << 37,
    omegaEntered = 1ULL << 38,
    unitsToTell = 1ULL << 39,  ///< few enough to be written out
    costToTell = 1ULL << 60,
    // of the level
    top = 1ULL << 40,
    belowTop = 1ULL << 41,
    lowest = 1ULL << 42,
    aboveLowest = 1ULL << 43,
    between = 1ULL << 44,  ///< neither the top level nor the lowest
    blocked = 1ULL << 45,
    notBlocked = 1ULL << 46,
    nested = 1ULL << 47,
    randomized = 1ULL << 48,
    inBlocks = 1ULL << 49,  ///< the level above is blocked
    inGroups = 1ULL << 50,  ///< there is a level above, and it is not
    fixedModel = 1ULL << 51,
    randomModel = 1ULL << 52,
    withoutCovariate = 1ULL << 53,
    withCovariate = 1ULL << 54,  ///< one or more
    oneCovariate = 1ULL << 55,
    moreCovariates = 1ULL << 56,  ///< two or more
    modelChosen = 1ULL << 57,     ///< the sampling model can be chosen
    modelGiven = 1ULL << 58,      ///< it is always random
    omegaValid = 1ULL << 59,
    rangeToTell = 1ULL << 61,  ///< of effects: the effect has one, and its ends are numbers
};

}  // namespace cases

/// The cases that hold for the study, and for a level of it.
cases::Set casesOf(const StudyFacts& facts);
cases::Set casesOf(const StudyFacts& facts, int level);

struct Sentence {
    cases::Set when;
    const char* text;  ///< with places like "{level}", see sentence_places.cpp; key numbers stand in the
                       ///< marks of marked_text.h
};

/// The levels that a block is told for, and in which order.
enum class Levels {
    none,         ///< told once, for the study
    fromTop,      ///< all
    fromLowest,   ///< all
    clusters,     ///< from the top down to level 2
    blockedOnes,  ///< from the top down
    lowestOne,
};

/// Sentences that follow each other; told for each of its levels, with something between two of them that
/// have something to tell.
struct Block {
    Levels levels;
    const char* between;
    std::vector<Sentence> sentences;
};

/// The levels of a block, in its order; 0 for one that is told for the study.
std::vector<int> levelsOf(Levels levels, const Study& study);

/// The sentences that hold for the study, and for a level of it unless that is 0, with their places filled.
/// Throws std::logic_error for a place that no one knows.
Paragraph told(std::span<const Sentence> sentences, const StudyFacts& facts, int level);

/// What a place stands for; level 0 where there is none.
std::string placeText(std::string_view place, const StudyFacts& facts, int level);

}  // namespace lorvane
