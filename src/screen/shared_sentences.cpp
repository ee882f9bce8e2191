// Sentences on a level that report and details tell alike.
#include "screen/shared_sentences.h"

namespace lorvane {

using namespace cases;

std::span<const Sentence> covariateCounts() {
    static constexpr Sentence sentences[] = {
        {oneCovariate, "The study will include **{Q}** covariate at the {level}-level, with an R-squared of "
                       "**{R-squared}**. "},
        {moreCovariates,
         "The study will include **{Q}** covariates at the {level}-level, with an R-squared of "
         "**{R-squared}**. "}};
    return sentences;
}

std::span<const Sentence> covariatesExplained() {
    static constexpr Sentence sentences[] = {
        {means | notBlocked | withCovariate,
         "R-squared is the proportion of the variance in {level}-means that is explained by the "
         "{level}"},
        {binary | notBlocked | withCovariate,
         "R-squared is the proportion of the variance in {level}-risk that is explained by the {level}"},
        {notBlocked | oneCovariate, "-level covariate."},
        {notBlocked | moreCovariates, "-level covariates."},
        {means | blocked | withCovariate,
         "When {level} are blocked (stratified or matched), as they are here, R-squared is the proportion of "
         "treatment-effects variance (rather than variance in means) across {level} that is explained by "
         "the covariates."}};
    return sentences;
}

std::span<const Sentence> costsOfGroups() {
    static constexpr Sentence sentences[] = {
        {notBlocked, "The cost for each of the {level} assigned to {treated} is **{cost treated}**. "},
        {notBlocked, "The cost for each of the {level} assigned to {control} is **{cost control}**. "}};
    return sentences;
}

std::vector<Sentence> together(std::initializer_list<std::span<const Sentence>> lists) {
    std::vector<Sentence> all;
    for (const std::span<const Sentence> list : lists)
        all.insert(all.end(), list.begin(), list.end());
    return all;
}

}  // namespace lorvane
