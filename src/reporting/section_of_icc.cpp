// The variance of the outcome at each level.
#include "reporting/report_sections.h"

namespace lorvane {

using namespace cases;

namespace {

const std::vector<Sentence> valuesOfIccs = {
    {twoLevels, "The ICC for {clusters} is {ICCs}. "},
    {threeLevels, "The ICCs for {clusters} are {ICCs}, respectively. "},
    {fourLevels, "The ICCs for {clusters}, are {ICCs}, respectively. "}};

const std::vector<Block> summary = {
    {Levels::none,
     "",
     {{always, "The ICC at each level is the ratio V(L)/V(T) where V(L) is the variance within level (L) and "
               "V(T) is the total variance. "}}},
    {Levels::none, "", valuesOfIccs},
    {Levels::none,
     "",
     {{withSpans | twoLevels,
       "If the scores for {name 1} span {span within}, this ICC implies that the means {for clusters} span "
       "{spans}."},
      {withSpans | severalLevels,
       "If the scores for {name 1} span {span within}, these ICCs imply that the means {for clusters}, span "
       "{spans}, respectively."}}}};

// From the variances to the ICCs.
const std::vector<Block> definitions = {
    {Levels::none,
     "",
     {{means, "The variance at each level is defined as the variance of means (or scores) intrinsic to that "
              "level. If we use V(L) to represent the variance at level L, then -\n"},
      {binary, "The variance at each level is defined as the variance of prevalence (or risk) intrinsic to "
               "that level. If we use V(L) to represent the variance at level L, then -\n"}}},
    {Levels::fromTop,
     "",
     {{means | top, "V({level}) is the variance of {level} means.\n"},
      {means | between, "V({level}) is the variance of {level} means within {above}.\n"},
      {means | lowest, "V({level}) is the variance of {level} scores within {above}.\n"},
      {binary | aboveLowest, "V({level}) is the variance of mean risk across {level}.\n"},
      {binary | lowest, "V({level}) is the variance of the risk across {level}.\n"}}},
    {Levels::none, "", {{always, "These components are additive, so that "}}},
    {Levels::fromTop, " + ", {{always, "V({level})"}}},
    {Levels::none,
     "",
     {{always, " = V(total). "},
      {means, "Equivalently, V(total) is the variance of scores for {name 1} across all {top}.\n"},
      {binary, "Equivalently, V(total) is the variance of the risk for {name 1} across all {top}.\n"},
      {always,
       "The variances can be used to compute the intraclass correlations, or ICCs. The ICC for level "
       "L is the ratio V(L) / V(total). If we use ICC(L) to represent the ICC at level L, then -\n"}}},
    {Levels::clusters, "", {{always, "ICC({level}) is defined as V({level}) / V(total).\n"}}},
    {Levels::none,
     "",
     {{means | severalLevels,
       "The sum of the ICCs gives the proportion of the total variance that is between-clusters "
       "({clusters}). Then, 1.0 minus the sum of the ICCs gives the proportion of the total variance that is "
       "due to {name 1}.\n"},
      {means | twoLevels,
       "The ICC gives the proportion of the total variance that is between clusters ({clusters}). Then, 1.0 "
       "minus the ICC gives the proportion of the total variance that is due to {name 1}.\n"}}}};

const std::vector<Block> shares = {
    {Levels::none,
     "",
     {{means, "In other words, the total variance in scores (across all {top})"},
      {means | severalLevels, " is composed of variance of "},
      {means | twoLevels, " reflects variance of "}}},
    {Levels::clusters,
     "",
     {{means | top, "{level} means ({percent})"},
      {means | between, ", variance of {level} means within {above} ({percent})"}}},
    {Levels::none,
     "",
     {{means | severalLevels, " and variance of {name 1} ({percent within})"},
      {means | twoLevels, " and variance in {name 1} ({percent within})"},
      {means, ", with these values summing to 100%. "}}}};

// The span of each level by itself.
const std::vector<Block> ownSpans = {
    {Levels::none,
     "",
     {{binary, "\nThese ICCs correspond to the span of true risks that are intrinsic to each level of the "
               "design. In the population, "},
      {withSpans,
       "\nThese ICCs correspond to the span of true means (or scores) that are intrinsic to each "
       "level of the design. If scores for {name 1} span {span within} then (in the population) "}}},
    {Levels::fromTop,
     "",
     {{binary | top, "\nThe mean risks for {level} span {span} ({example})."},
      {binary | between, "\nThe mean risks for {level} span {span} (for example, {example})."},
      {withSpans | top, "\nThe means for {level} span {span} ({example})."},
      {withSpans | between, "\nThe means for {level} span {span} (for example, {example})."},
      {withSpans | lowest | severalLevels,
       "\nFinally, the scores for {level} span {span} (for example, {example})."},
      {withSpans | lowest | twoLevels, "\nThe scores for {level} span {span} (for example, {example})."}}}};

// The same with the variance of all levels above.
const std::vector<Block> spansAcross = {
    {Levels::none,
     "",
     {{withSpans, "\nThe previous paragraphs addressed the span of means within each level of the design, "
                  "ignoring variance at higher levels. To ensure that these values are plausible it may be "
                  "useful to consider the span at each level while incorporating the variance at all higher "
                  "levels. "}}},
    {Levels::fromTop,
     "",
     {{withSpans | top, "\nThe means for {level} span {span across} ({example across})."},
      {withSpans | between,
       "\nThe means for {level} across {uppers} span {span across} (for example, {example across})."},
      {withSpans | lowest,
       "\nThe scores for {level} across {uppers} span {span across} (for example, {example across})."}}}};

const std::vector<Block> notes = {
    {Levels::none,
     "",
     {{always, "\n\nNotes."},
      {withSpans, "\nAbove, the variance, ICC, span, and examples refer to the {control} group. For the "
                  "{treated} group, the variance, ICC, and span are the same. However, the examples would "
                  "be centered about the mean of the {treated} group."},
      {withoutSpans, "\nAbove, the ICC refers to the {control} group. For the {treated} group, the same "
                     "values will apply."},
      {binary, "\nAbove, the ICC, span, and examples refer to the {control} group. The corresponding values "
               "for the {treated} group are computed automatically, based on the risk in the {control} "
               "group."},
      {withSpans, "\nThe terms 'means', 'variance' and 'spans' refer to the population parameters, rather "
                  "than the sample values."},
      {withoutSpans, "\nThe terms 'means' and 'variance' refer to the population parameters, rather than the "
                     "sample values."},
      {binary, "\nThe terms 'mean risk', 'variance' and 'spans' refer to the population parameters, rather "
               "than the sample values."},
      {binary, "\nThe term 'span' is defined here as four standard deviations, which covers roughly 95% of "
               "the prevalences in the population. Similarly, the examples are based on the mean prevalence "
               "plus/minus two standard deviations."},
      {withSpans, "\nThe term 'span' is defined here as four standard deviations, which covers roughly 95% "
                  "of the means (or scores) in the population. Similarly, the examples are based on the mean "
                  "plus/minus two standard deviations."},
      {binary, "\nIn this report, the range of mean risks is sometimes preceeded by the term 'for example'. "
               "This is because the actual range depends on the mean risk at the next-higher level, and that "
               "mean varies. "},
      {withSpans, "\nIn this report, the range of means is sometimes preceded by the term 'for example'. "
                  "This is because the actual range depends on the mean at the next-higher level, and that "
                  "mean varies. "},
      {withSpans, "\nThe conversion from ICC to span of means depends on the standard deviation within cells "
                  "(of {name 1}). We assume that this value is {SD within} points, which is one-fourth of "
                  "the span within cells ({span within})."}}}};

std::vector<Block> joined(std::initializer_list<std::vector<Block>> parts) {
    std::vector<Block> blocks;
    for (const std::vector<Block>& part : parts)
        blocks.insert(blocks.end(), part.begin(), part.end());
    return blocks;
}

}  // namespace

const ReportSection& iccSection() {
    static const ReportSection section{
        {{means, "Variance in {control}-group means "}, {binary, "Variance in {control}-group prevalence "}},
        summary,
        joined({definitions, {{Levels::none, "", valuesOfIccs}}, shares, ownSpans, spansAcross, notes})};
    return section;
}

const ReportSection& iccTableNote() {
    static const ReportSection note{
        {},
        {},
        {{Levels::none,
          "",
          {{withSpans, "The variances and spans assume that the standard deviation of scores for {name 1} "
                       "within {name 2} is {SD within}."}}}}};
    return note;
}

}  // namespace lorvane
