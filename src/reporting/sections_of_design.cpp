// The design: levels with their roles, units, sampling models, covariates, costs.
#include "reporting/report_sections.h"
#include "screen/shared_sentences.h"

namespace lorvane {

using namespace cases;

// A randomized-block design leaves two blanks where "hierarchical" would stand. In the roles the top level
// keeps its capitals. Both are deliberate.
const ReportSection& designSection() {
    static const std::vector<Block> text = {{Levels::none,
                                             "",
                                             {{twoLevels, "The study will employ a two-level "},
                                              {threeLevels, "The study will employ a three-level "},
                                              {fourLevels, "The study will employ a four-level "},
                                              {hierarchical, "hierarchical"},
                                              {always, " design, using {name 1} within {name 2}"},
                                              {severalLevels, " within {name 3}"},
                                              {fourLevels, " within {name 4}"},
                                              {always, ". "}}},
                                            {Levels::fromLowest,
                                             "",
                                             {{belowTop, "{level} are "},
                                              {top, "and {Level} are "},
                                              {nested, "nested within {above}"},
                                              {randomized, "randomized"},
                                              {blocked, "blocked"},
                                              {belowTop, ", "},
                                              {top, " (see table). "}}}};
    static const ReportSection section{{{always, "Design"}}, text, text};
    return section;
}

const ReportSection& sampleSizeSection() {
    static const ReportSection section{
        {{always, "Sample size"}},
        {{Levels::none, "", {{always, "The number of units at each level is as follows: \n"}}},
         {Levels::fromTop,
          "\n",
          {{blocked, "{Level} {NB} (Blocked)"},
           {notBlocked, "{Level} {NT} ({Treated}) + {NC} ({Control})"}}}},
        {{Levels::fromTop,
          "\n",
          {{nested, "{Level} are nested within {above}. "},
           {randomized, "{Level} are randomized to either of the two conditions. "},
           {blocked, "{Level} are blocked (stratified or matched), which means that each of the {level} will "
                     "incorporate {name 1} from both conditions. "},
           {top | blocked, "The study will include {NB} {level}. "},
           {belowTop | blocked, "Each of the {above} will include {NB} {level}. "},
           {top | notBlocked, "The study will include {NT} {level} assigned to {treated}, and {NC} {level} "
                              "assigned to {control}. "},
           {notBlocked | inBlocks,
            "Each of the {above} will include {NT} {level} assigned to {treated}, and {NC} {level} assigned "
            "to {control}. "},
           {notBlocked | inGroups,
            "Each of the {above} assigned to {treated} will include {NT} {level}, and each of the {above} "
            "assigned to {control} will include {NC} {level}. "}}}}};
    return section;
}

const ReportSection& modelSection() {
    static const Block eachLevel = {
        Levels::fromLowest,
        "",
        {{someFixed | fixedModel, "The sampling model for {level} is fixed.\n"},
         {someFixed | randomModel, "The sampling model for {level} is random.\n"}}};
    static const ReportSection section{
        {{always, "Sampling model"}},
        {{Levels::none, "", {{allRandom, "The sampling model at each level of the design is random."}}},
         eachLevel},
        {{Levels::none,
          "",
          {{allRandom, "The sampling model at each level of the design is random, which means that the units "
                       "will be sampled from a larger population of interest. "}}},
         eachLevel,
         {Levels::none,
          "",
          {{someFixed, "\nThe term 'fixed' means that the units in the study represent the entire population "
                       "of interest, and therefore there is no sampling error at that level of the study "
                       "design. "},
           {someFixed,
            "The term 'random' means that the units in the study will be sampled sampled from a larger "
            "population of interest, and so there is sampling error at that level."}}}}};
    return section;
}

const ReportSection& covariateSection() {
    static constexpr Sentence noneHere[] = {
        {someCovariates | withoutCovariate, "There are no {level}-level covariates. "}};
    static constexpr Sentence ofBlockedRisks[] = {
        {binary | blocked | withCovariate,
         "When {level} are blocked  (stratified or matched), as they are here, R-squared is the proportion "
         "of treatment-effects variance (rather than variance in risk) across {level} that is explained by "
         "the covariates."}};
    static const std::vector<Sentence> summary = together({noneHere, covariateCounts()});
    static const std::vector<Sentence> inDetail = together({summary, covariatesExplained(), ofBlockedRisks});
    static const Block none = {
        Levels::none, "", {{noCovariates, "There are no covariates at any level of the design. "}}};
    static const ReportSection section{{{always, "Covariates"}},
                                       {none, {Levels::fromTop, "\n", summary}},
                                       {none, {Levels::fromTop, "\n", inDetail}}};
    return section;
}

// The two blanks before the cost of a blocked unit are deliberate.
const ReportSection& costSection() {
    static constexpr Sentence ofBlocks[] = {
        {blocked, "The cost for each of the {level} is  {cost blocked}."}};
    static const ReportSection section{
        {{always, "Costs"}},
        {{Levels::none, "", {{always, "The cost per unit at each level is as follows: \n"}}},
         {Levels::fromTop,
          "\n",
          {{blocked, "{Level} {cost blocked} (blocked)"},
           {notBlocked, "{Level} {cost treated} ({treated}) + {cost control} ({control})"}}},
         {Levels::none, "", {{always, "\nBased on these projections, the costs will total {total cost}. "}}}},
        {{Levels::fromTop, "\n", together({costsOfGroups(), ofBlocks})},
         {Levels::none,
          "",
          {{always, "\nBased on these projections, the costs for {all levels} will total {total cost}. "}}}}};
    return section;
}

}  // namespace lorvane
