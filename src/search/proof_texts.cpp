// What is told of the proof behind a search.
#include "search/proof_texts.h"

#include <cmath>

#include "base/number_text.h"

namespace lorvane {

namespace {

// Never the whole: something is left.
std::string percentLooked(double share) {
    return shortestText(std::floor(std::min(share, 0.99) * 100)) + "%";
}

std::string nothingYet(const ExactResult& proof, const char* words) {
    return words + std::string(", with ") + percentLooked(proof.looked) + " of the sizes looked at.";
}

std::string withoutLowCells(const Study& s, const ExactResult& proof, const Currency& currency) {
    if (!proof.best && proof.proven)
        return "No design without low cell counts reaches the power.";
    if (!proof.best)
        return nothingYet(proof, "Nothing without low cell counts found so far");
    return "Without low cell counts: " + ReFormatCurrency(proof.best->cost, currency) + " with " +
           sizesInWords(s, proof.best->sizes) + ".";
}

std::string mostPowerWords(const OptimalResult& result) {
    const ExactResult& proof = *result.proof;
    return proof.proven
               ? "No design has more power than " + powerText(result.bestTrial().power) + " for this budget."
               : nothingYet(proof, "Nothing with more power found so far");
}

}  // namespace

std::string sizesInWords(const Study& s, const LevelSizes& sizes) {
    std::string words;
    for (int level = s.NumLevels; level >= 1; --level) {
        words += level == s.NumLevels ? "" : ", ";
        words += shortestText(sizes(level)) + " " + s.txtName(level);
    }
    return words;
}

std::string powerText(double power) { return fixedText(power, 4); }

std::string lookingWords(OptimalGoal goal, double share) {
    return std::string(goal == OptimalGoal::cheapest ? "Looking for a cheaper design: "
                                                     : "Looking for the most power: ") +
           percentLooked(share) + " of the sizes are settled. Esc stops.";
}

std::optional<Trial> otherDesign(const OptimalResult& result) {
    if (!result.proof || !result.proof->best || result.goal == OptimalGoal::mostPower)
        return std::nullopt;
    const Trial& found = *result.proof->best;
    return haveSameSizes(found, result.bestTrial()) ? std::nullopt : std::optional(found);
}

std::string proofWords(const Study& s, const OptimalResult& result, const Currency& currency) {
    const ExactResult& proof = *result.proof;
    if (result.goal == OptimalGoal::mostPower)
        return mostPowerWords(result);
    if (result.hasForbiddenCells)
        return withoutLowCells(s, proof, currency);
    const std::optional<Trial> other = otherDesign(result);
    if (other && other->cost < result.bestTrial().cost)
        return "A cheaper design exists: " + ReFormatCurrency(other->cost, currency) + " with " +
               sizesInWords(s, other->sizes) + ".";
    if (!proof.proven)
        return nothingYet(proof, "Nothing cheaper found so far");
    if (other)
        return "No cheaper design exists. The same cost gives more power: " + sizesInWords(s, other->sizes) +
               ".";
    return "No cheaper design exists.";
}

std::string unprovenNote(const OptimalResult& result) {
    if (!result.proof || result.proof->proven)
        return "";
    const bool isCheapest = result.goal == OptimalGoal::cheapest;
    return "The proof was stopped with " + percentLooked(result.proof->looked) +
           " of the sizes looked at, so a design that " +
           (isCheapest ? "costs even less" : "has even more power") +
           " may exist. Sizes set by hand make the proof shorter.";
}

std::string budgetTooLowText(const Study& s, const OptimalResult& result, const Currency& currency) {
    const Trial& least = *result.proof->best;
    const std::string soFar = result.proof->proven ? "" : " found so far";
    return "The cheapest valid design" + soFar + " costs " + ReFormatCurrency(least.cost, currency) + ": " +
           sizesInWords(s, least.sizes) + ". Raise the budget to that or more. Then click <Compute>.";
}

std::string leftOfBudget(const Trial& design, double budget, const Currency& currency) {
    return amountText(budget - design.cost, currency);
}

}  // namespace lorvane
