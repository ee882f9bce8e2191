// The variance of the effect across the clusters of blocked levels.
#include "reporting/report_sections.h"

namespace lorvane {

using namespace cases;

const ReportSection& tauSqSection() {
    static const std::vector<Block> summary = {
        {Levels::none,
         "",
         {{tested,
           "When we employ blocking at any level (such that a cluster includes both treatment groups) power "
           "is affected by variance in the effect size across clusters at that level. We assume that"}}},
        {Levels::blockedOnes,
         "",
         {{tested | top, "\nThe effect size will range from {effect range} across {level}."},
          {tested | belowTop, "\nThe effect size will range (for example) from {effect range} across {level} "
                              "(within {above})."}}},
        {Levels::none, "", {{oddsRatio, "\nNote that the range of effect sizes is given in odds ratios."}}}};
    static const std::vector<Block> detail = {
        {Levels::none,
         "",
         {{tested,
           "When we employ blocking at any level (such that a cluster includes both treatment groups) power "
           "is affected by variance in the effect size across clusters at that level. If we use TauSq(L) to "
           "represent the variance of the effect size at level L, then -"}}},
        {Levels::blockedOnes,
         "",
         {{tested | top,
           "\nTauSq ({level}) is {tau-squared}. Across {level}, the effect size ranges across a span of "
           "{effect span} points. Since the mean effect size is {mean effect} the effect size will range "
           "from {effect range} across {level}."},
          {tested | belowTop,
           "\nTauSq ({level}) is {tau-squared}. Across {level} (within {above}), the effect size ranges "
           "across a span of {effect span} points. In {above} with a mean effect size of {mean effect}, the "
           "effect size will range from {effect range} across {level}."}}},
        {Levels::none,
         "",
         {{tested | severalBlocked,
           "\nThe previous paragraphs addressed the span of effect sizes within each level of the design, "
           "ignoring the variance of effect sizes at higher levels. To ensure that these values are "
           "plausible it may be useful to consider the span at each level while incorporating the variance "
           "at all higher levels. "}}},
        {Levels::blockedOnes,
         "",
         {{tested | severalBlocked | top,
           "\nThe effect sizes for {level} span {effect span across} points ({effect range across})."},
          {tested | severalBlocked | belowTop,
           "\nThe effect sizes for {level} across {uppers} span {effect span across} points ({effect range "
           "across})."}}},
        {Levels::none,
         "",
         {{tested, "\n\nNotes."},
          {oddsRatio, "\nTauSq and the span are in log units. By contrast, the range and example are given "
                      "in odds ratios."},
          {tested, "\nThe terms 'effect-size', 'variance', and 'span' refer to the population parameter, "
                   "rather than the observed values."},
          {tested, "\nThe term 'span' is defined here as four standard deviations, which covers roughly 95% "
                   "of the effect sizes in the population. Similarly, the examples are based on the mean "
                   "effect size plus/minus two standard deviations. "}}}};
    static const ReportSection section{{{always, "Variance in the effect size"}}, summary, detail};
    return section;
}

}  // namespace lorvane
