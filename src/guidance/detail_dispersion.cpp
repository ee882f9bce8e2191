// Details of the dispersion of the outcome: ICC and span of a level.
#include "guidance/detail_subjects.h"

namespace lorvane {

using namespace cases;

namespace {

// How far an ICC or a span can be told when the values do not fit together.
constexpr Sentence notTold[] = {{aboveLowest | spreadInvalid,
                                 "What follows from it can be told again as soon as the values of the study "
                                 "fit together."}};

constexpr Sentence onBlocks[] = {
    {blocked, "Each of the {level} includes both groups, so what sets {level} apart does not blur the "
              "comparison of the groups."},
    {blocked | randomModel, " What counts at this level is how much the effect varies across {level}."}};

constexpr Sentence onFixedClusters[] = {
    {nested | modelChosen | fixedModel,
     "The model for {level} is fixed, so what sets them apart is no sampling error."}};

constexpr Sentence onLowest[] = {
    {lowest | nested, "More {level} in each of the {above} average out what sets them apart."},
    {lowest | randomized, "More {level} average out what sets them apart."}};

constexpr Sentence onRiskDifference[] = {
    {riskDifference | aboveLowest, "For a risk difference this is the ICC of the {control} group."}};

constexpr Sentence noVarianceOfRisks[] = {
    {binary | lowest, "Each of the {level} has the event or does not have it, so the variance at this level "
                      "follows from the risk."}};

constexpr Sentence iccInColumn[] = {
    {always, "The ICC of a level is the share of the total variance in {outcome} that lies between the units "
             "of that level. An ICC of 0 means that they do not differ."}};

constexpr Sentence shareOfIcc[] = {
    {top, "The ICC for {Level} is the share of the total variance in {outcome} that lies between {level}. "},
    {between, "The ICC for {Level} is the share of the total variance in {outcome} that lies between {level} "
              "within {above}. "},
    {iccEntered | aboveLowest, "It is assumed to be **{ICC}**."},
    {spanEntered | aboveLowest | spreadValid, "It follows from the span of {values} and comes to **{ICC}**."},
    {spanEntered | aboveLowest | spreadInvalid, "It follows from the span of {values}."},
    {limitsEntered | aboveLowest | spreadValid,
     "It follows from the limits of the risks and comes to **{ICC}**."},
    {limitsEntered | aboveLowest | spreadInvalid, "It follows from the limits of the risks."},
    {lowest, "No ICC is entered for {Level}. "},
    {means | lowest, "What the ICCs of the levels above leave of the total variance in scores lies between "
                     "{level} within {above}"},
    {means | lowest | spreadValid, ": a share of **{ICC}**."},
    {means | lowest | spreadInvalid, "."}};

constexpr Sentence spanOfIcc[] = {
    {means | aboveLowest | spreadValid,
     "With scores for {name 1} that span {span shown within} within {name 2}, this ICC implies that the "
     "means of {level} span {span shown}, "},
    {binary | aboveLowest | spreadValid,
     "With a risk of {control rate} in the {control} group, this ICC implies that the risks of {level} span "
     "{span shown}, "},
    {between | spreadValid, "for example "},
    {aboveLowest | spreadValid, "from {limits shown} in the {control} group."}};

constexpr Sentence powerByIcc[] = {
    {randomized | aboveLowest,
     "Power falls as this ICC rises, since {level} are the units that are randomized."},
    {nested | modelChosen | randomModel, "Power falls as this ICC rises and the other ICCs stay, since each "
                                         "of the {level} belongs to one group as a whole."}};

constexpr Sentence spanInColumn[] = {
    {always, "The span of {values} is the width that holds nearly all {values} of the units of a level: four "
             "standard deviations, two to each side of the middle. A span of 0 means that the units do not "
             "differ."}};

constexpr Sentence widthOfSpan[] = {
    {top, "The span of {values} is the width that holds nearly all {values} of {level}: four standard "
          "deviations, two to each side of the middle. "},
    {between, "The span of {values} is the width that holds nearly all {values} of {level} within one of the "
              "{above}: four standard deviations, two to each side of the middle. "},
    {means | lowest, "The span of scores is the width that holds nearly all scores of {level} within one of "
                     "the {above}: four standard deviations, two to each side of the mean. It is assumed to "
                     "be **{span shown}**."},
    {binary | lowest, "No span is entered for {Level}. "},
    {spanEntered | aboveLowest, "It is assumed to be **{span shown}**."},
    {limitsEntered | aboveLowest, "It is the distance of the limits that were entered, **{span shown}**."},
    {iccEntered | aboveLowest | spreadValid, "It follows from the ICC and comes to **{span shown}**."},
    {iccEntered | aboveLowest | spreadInvalid, "It follows from the ICC."}};

constexpr Sentence limitsOfSpan[] = {
    {means | aboveLowest | spreadValid, "The means of {level} lie"},
    {means | lowest | spreadValid, "The scores of {level} lie"},
    {binary | aboveLowest | spreadValid, "The risks of {level} lie"},
    {means | belowTop | spreadValid, ", for example,"},
    {binary | between | spreadValid, ", for example,"},
    {means | spreadValid, " from {limits shown} in the {control} group."},
    {binary | aboveLowest | spreadValid, " from {limits shown} in the {control} group."},
    {aboveLowest | spreadValid, " This amounts to an ICC of {ICC}, the share of the total variance in "
                                "{outcome} that lies between {level}."}};

// A wider span at a nested level takes variance from the level that is randomized, so power can go either
// way.
constexpr Sentence powerBySpan[] = {
    {randomized | aboveLowest,
     "Power falls as this span rises, since {level} are the units that are randomized."},
    {nested | modelChosen | randomModel,
     "A wider span raises the ICC of {level}, and power falls as far as the other ICCs stay, since each of "
     "the {level} belongs to one group as a whole."}};

constexpr Sentence columnByIcc[] = {
    {randomized | aboveLowest,
     "Power falls as the ICC of {level} rises, since {level} are the units that are randomized."}};

constexpr Sentence columnBySpan[] = {
    {randomized | aboveLowest,
     "Power falls as the span of {level} rises, since {level} are the units that are randomized."}};

constexpr Sentence allBlocked[] = {
    {randomized | lowest, "Every level above {level} is blocked and includes both groups, so what sets its "
                          "units apart does not blur the comparison of the groups."}};

}  // namespace

const DetailSubject& iccDetails() {
    static const DetailSubject subject{
        DetailTabs::all,
        {{always, "ICC"}},
        {{Levels::none, together({iccInColumn})},
         {Levels::clusters, {{spreadValid, "The ICC for {level} is **{ICC}**."}}},
         {Levels::fromTop, together({columnByIcc, allBlocked})}},
        {{always, "ICC for {Level}"}},
        {together({shareOfIcc, noVarianceOfRisks}), together({onRiskDifference}),
         together({spanOfIcc, notTold}), together({powerByIcc, onBlocks, onFixedClusters, onLowest})}};
    return subject;
}

const DetailSubject& spanDetails() {
    static const DetailSubject subject{
        DetailTabs::all,
        {{means, "Span of means"}, {binary, "Span of risks"}},
        {{Levels::none, together({spanInColumn})},
         {Levels::clusters, {{spreadValid, "The {values} of {level} span **{span shown}**."}}},
         {Levels::fromTop, together({columnBySpan, allBlocked})}},
        {{means | aboveLowest, "Span of means for {Level}"},
         {means | lowest, "Span of scores for {Level}"},
         {binary, "Span of risks for {Level}"}},
        {together({widthOfSpan, noVarianceOfRisks}), together({limitsOfSpan, notTold}),
         together({powerBySpan, onBlocks, onFixedClusters, onLowest})}};
    return subject;
}

}  // namespace lorvane
