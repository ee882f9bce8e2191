// Details of the sampling model and of the covariates of a level.
#include "guidance/detail_subjects.h"

namespace lorvane {

using namespace cases;

namespace {

constexpr Sentence frameOfLevel[] = {
    {always, "The model refers to the sampling frame for {Level}. "},
    {modelChosen | randomModel, "It is **random**."},
    {modelChosen | fixedModel, "It is **fixed**."},
    {modelGiven | randomized, "It is **random**, as always at the level of randomization."},
    {modelGiven | nested, "It is **random**, as always at the lowest level."}};

constexpr Sentence senseOfModel[] = {
    {modelGiven, "The {level} of the study stand for a larger population of {level}."},
    {modelChosen | randomModel,
     "The {level} of the study are sampled from a larger population of {level}, and the results are to speak "
     "of that population. So there is sampling error at this level, and power falls as {level} differ more."},
    {modelChosen | fixedModel,
     "The {level} of the study are all that are of interest, and the results speak of them alone. So there "
     "is no sampling error at this level, which raises power."}};

constexpr Sentence ofBlockedRisks[] = {
    {binary | blocked | withCovariate,
     "When {level} are blocked (stratified or matched), as they are here, R-squared is the proportion of "
     "treatment-effects variance (rather than variance in risk) across {level} that is explained by the "
     "covariates."}};

constexpr Sentence powerByCovariates[] = {
    {withCovariate | modelChosen | fixedModel,
     "The model for {level} is fixed, so R-squared at this level does not change power. "},
    {withCovariate | modelChosen | randomModel, "Power rises with R-squared. "},
    {withCovariate | modelGiven, "Power rises with R-squared. "},
    {withCovariate, "Each covariate takes one degree of freedom at this level."}};

constexpr Sentence withoutCovariates[] = {
    {withoutCovariate | modelChosen | fixedModel,
     "The model for {level} is fixed, so covariates at this level would not raise power."},
    {withoutCovariate | modelChosen | randomModel,
     "Power rises with the share of the variance that covariates explain, R-squared."},
    {withoutCovariate | modelGiven,
     "Power rises with the share of the variance that covariates explain, R-squared."}};

// Sentences for the levels that can have covariates. A study of risks has none at the lowest one.
std::vector<Sentence> whereTaken(std::initializer_list<std::span<const Sentence>> lists) {
    std::vector<Sentence> taken;
    for (const Set where : {Set{means}, Set{binary | aboveLowest}}) {
        for (Sentence sentence : together(lists)) {
            sentence.when |= where;
            taken.push_back(sentence);
        }
    }
    return taken;
}

constexpr Sentence noneHere[] = {{withoutCovariate, "The study will include no {level}-level covariates."}};

constexpr Sentence noneAtLowest[] = {
    {binary | lowest, "The study will include no {level}-level covariates. Where the outcome is binary, "
                      "covariates explain risks of clusters alone."}};

}  // namespace

const DetailSubject& modelDetails() {
    static const DetailSubject subject{
        DetailTabs::all,
        {{always, "Fixed or random effects"}},
        {{Levels::none,
          {{always, "The model refers to the sampling frame for the units of a level. Random means that they "
                    "are sampled from a larger population, and fixed that they are all of interest."}}},
         {Levels::fromTop, together({frameOfLevel})},
         {Levels::none,
          {{always, "A fixed model raises power, but the results speak of these units alone."}}}},
        {{always, "Fixed or random effects"}},
        {together({frameOfLevel}), together({senseOfModel})}};
    return subject;
}

const DetailSubject& covariateDetails() {
    static const DetailSubject subject{
        DetailTabs::all,
        {{always, "Covariates and R-squared"}},
        {{Levels::none,
          {{always, "Covariates explain a share of the variance at their level, R-squared, and power rises "
                    "with it. Each of them takes one degree of freedom."}}},
         {Levels::fromTop, whereTaken({noneHere, covariateCounts()})},
         {Levels::lowestOne, together({noneAtLowest})}},
        {{always, "Covariates and R-squared for {Level}"}},
        {whereTaken({noneHere, covariateCounts()}), together({noneAtLowest}),
         whereTaken({covariatesExplained(), ofBlockedRisks}),
         whereTaken({powerByCovariates, withoutCovariates})}};
    return subject;
}

}  // namespace lorvane
