// Details of the effect size.
#include "guidance/detail_subjects.h"

namespace lorvane {

using namespace cases;

namespace {

constexpr Sentence title[] = {{dTotal, "Standardized mean difference, d (total)"},
                              {dWithin, "Standardized mean difference, d (within)"},
                              {oddsRatio, "Odds ratio"},
                              {riskDifference, "Risk difference"},
                              {untested, "Effect size"}};

constexpr Sentence formOfD[] = {
    {dTotal, "The standardized mean difference d (total) is defined as the raw difference in means divided "
             "by the total standard deviation."},
    {dWithin, "The standardized mean difference d (within) is defined as the raw difference in means divided "
              "by the within-cell standard deviation."},
    {means, " This value is assumed to be **{d}**."}};

constexpr Sentence generalD[] = {
    {means, "The standardized mean difference is defined as the difference in means ({Treated} and "
            "{Control}) divided by the standard deviation."}};

constexpr Sentence deviation[] = {
    {dWithin, "The standard deviation is computed for {Name 1} within cells (that is, within {levels "
              "above}). "},
    {dTotal, "The standard deviation is computed for all {Name 1} (across {levels above}). "},
    {means, "It is computed within either treatment group, and assumed to be the same in both."}};

constexpr Sentence odds[] = {
    {oddsRatio, "The odds ratio is defined as the ratio Odds(1)/Odds(2), where Odds(1) is the ratio of "
                "events/non-events in the {Treated} group and Odds(2) is the ratio of events/non-events in "
                "the {Control} group."}};

constexpr Sentence lower[] = {{oddsRatio, "If the event rate is lower in the {Treated} group the odds ratio "
                                          "should be less than 1.0."}};

constexpr Sentence higher[] = {{oddsRatio, "If the event rate is higher in the {Treated} group the odds "
                                           "ratio should be greater than 1.0."}};

constexpr Sentence toProvide[] = {
    {oddsRatio, "You must provide the event rate in the {Control} group and the odds ratio."},
    {riskDifference, "You must provide the event rate in the {Control} group and the risk difference."}};

constexpr Sentence toCheck[] = {
    {oddsRatio, "To ensure that the odds ratio was entered correctly, the program will display the event "
                "rate in the {Treated} group. If needed, modify the odds ratio (for example you may need to "
                "enter 0.50 rather than 2.0, or 2.0 rather than 0.50)."},
    {riskDifference, "To ensure that the risk difference was entered correctly, the program will display the "
                     "event rate in the {Treated} group. If needed, modify the risk difference (for example "
                     "you may need to enter -0.20 rather than 0.20, or 0.20 rather than -0.20)."}};

// A risk ratio and two risks are told by their rates alone.
constexpr Sentence rates[] = {
    {binary, "Currently, the event rates in the two groups are **{control rate}** vs. **{treated rate}**"},
    {oddsRatio, ", corresponding to an odds ratio of **{odds ratio shown}**"},
    {riskDifference, ", corresponding to a risk difference of **{risk difference shown}**"},
    {binary, "."}};

}  // namespace

const DetailSubject& GetTextES() {
    static const DetailSubject subject{DetailTabs::none,
                                       together({title}),
                                       {{Levels::none, together({formOfD})},
                                        {Levels::none, together({generalD})},
                                        {Levels::none, together({deviation})},
                                        {Levels::none, together({odds})},
                                        {Levels::none, together({lower})},
                                        {Levels::none, together({higher})},
                                        {Levels::none, together({toProvide})},
                                        {Levels::none, together({toCheck})},
                                        {Levels::none, together({rates})}},
                                       {},
                                       {}};
    return subject;
}

}  // namespace lorvane
