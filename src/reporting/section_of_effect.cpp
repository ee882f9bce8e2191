// The effect size.
#include "reporting/report_sections.h"

namespace lorvane {

using namespace cases;

namespace {

const std::vector<Sentence> effectOfMeans = {
    {dWithin, "The effect size is the standardized mean difference d (within), defined as the raw mean "
              "difference divided by the within-cell standard deviation. Power is computed assuming that "
              "d (within) is {d}. "},
    {dTotal, "The effect size is the standardized mean difference d (total), defined as the raw mean "
             "difference divided by the total standard deviation. Power is computed assuming that d (total) "
             "is {d}. "}};

const Sentence effectOfOdds = {
    oddsRatio, "The effect size is an odds ratio of {odds ratio} with a prevalence of {control risk}. This "
               "corresponds to risks of {control risk} vs. {treated risk}."};

const std::vector<Sentence> bothEffects = {
    {means, "The effect size is the standardized mean difference d, defined as the raw mean difference "
            "divided by the standard deviation.\n"},
    {means, "There are two versions of d typically used to define the effect size. Both are based on the raw "
            "difference in means, but one is standardized by the within-cell standard deviation while the "
            "other is standardized by the total standard deviation.\n"},
    {means, "d(within) is defined as the raw mean difference divided by the standard deviation within cells "
            "(the standard deviation of scores for {name 1} within {name 2}).\n"},
    {means, "d(total) is defined as the raw mean difference divided by the standard deviation across cells "
            "(the standard deviation of scores for {name 1} across {clusters from lowest}).\n"},
    {means, "In either case the standard deviation is computed within treatment groups ({treated} and "
            "{control}), and is assumed to be the same for both.\n"},
    {withSpans, "The effect size d(within) is assumed to be {d within}. That is, when the frame of reference "
                "is the standard deviation within cells ({SD within}), the group means differ by {d within} "
                "standard deviations, or {raw difference} points in raw units.\n"},
    {withSpans, "The effect size d(total) is assumed to be {d total}. That is, when the frame of reference "
                "is the standard deviation across all {name 1} ({SD total}), the group means differ by "
                "{d total} standard deviations, or {raw difference} points in raw units.\n"},
    {withoutSpans, "The effect size d(within) is assumed to be {d within}. That is, when the frame of "
                   "reference is the standard deviation within cells, the group means differ by {d within} "
                   "standard deviations. \n"},
    // The word "students" is fixed here, whatever the lowest level is called.
    {withoutSpans, "The effect size d(total) is assumed to be {d total}. That is, when the frame of "
                   "reference is the standard deviation across all students, the group means differ by "
                   "{d total} standard deviations.\n"},
    {means, "Note that the two effect sizes reflect the identical raw mean difference. They differ from each "
            "other only because they are reported in different metrics. "},
    effectOfOdds,
    // The bracket closes without having been opened; it is to be kept.
    {riskDifference, "The effect size is a risk difference of  {control risk} vs. {treated risk}, or {risk "
                     "difference} percentage points)."}};

}  // namespace

const ReportSection& effectSection() {
    static const ReportSection section{
        {{always, "Effect size"}},
        {{Levels::none, "", effectOfMeans},
         {Levels::none,
          "",
          {effectOfOdds,
           {riskDifference, "The effect size is a risk difference of  {control risk} vs. {treated risk}, or "
                            "{risk difference} percentage points."}}}},
        {{Levels::none, "", bothEffects}}};
    return section;
}

}  // namespace lorvane
