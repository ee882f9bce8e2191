// What is tested, how, and with what result: hypothesis, statistic, alpha, power, cell counts, disclaimer.
#include "reporting/report_sections.h"

namespace lorvane {

using namespace cases;

const ReportSection& nullSection() {
    static const std::vector<Block> text = {
        {Levels::none,
         "",
         {{means | dWithin,
           "One goal of the proposed study is to test the null hypothesis that the population means in the "
           "two groups ({treated} and {control}) are identical, or (equivalently) that the true effect size, "
           "d (within), is zero. "},
          {means | dTotal,
           "One goal of the proposed study is to test the null hypothesis that the population means in the "
           "two groups ({treated} and {control}) are identical, or (equivalently) that the true effect size, "
           "d (total), is zero. "},
          {oddsRatio,
           "One goal of the proposed study is to test the null hypothesis that the population event rates in "
           "the two groups ({treated} and {control}) are identical, or (equivalently) that the odds ratio is "
           "1.0. "},
          {riskDifference,
           "One goal of the proposed study is to test the null hypothesis that the population event rates in "
           "the two groups ({treated} and {control}) are identical, or (equivalently) that the risk "
           "difference is zero. "}}}};
    static const ReportSection section{{{always, "Null hypothesis"}}, text, text};
    return section;
}

const ReportSection& analysisSection() {
    static const ReportSection section{
        {{always, "Test statistic"}},
        {{Levels::none,
          "",
          {{means, "The null will be tested using a t-test."},
           {oddsRatio, "The null will be tested using a test for the log odds ratio."},
           {riskDifference, "The null will be tested using a modified chi-squuared test based on proportions "
                            "in the two groups."}}}},
        {}};
    return section;
}

const ReportSection& alphaSection() {
    static const ReportSection section{
        {{always, "Alpha and tails"}},
        {{Levels::none,
          "",
          {{always, "The criterion for significance (alpha) has been set at {alpha} "},
           {oneTailed, "(one-tailed). "},
           {twoTailed, "(two-tailed). "}}}},
        {{Levels::none,
          "",
          {{always, "The criterion for significance (alpha) has been set at {alpha}. "},
           {oneTailed,
            "The test is one-tailed, which means that only an effect in the expected direction will be "
            "interpreted. A one-tailed test is appropriate when an effect in the unexpected direction (a) is "
            "impossible or (b) will have no substantive meaning. "},
           {twoTailed, "The test is two-tailed, which means that an effect in either direction will be "
                       "interpreted. "}}}}};
    return section;
}

const ReportSection& powerSection() {
    static const std::vector<Block> text = {
        {Levels::none,
         "",
         {{tested, "Given the design, sample size, assumptions, and criteria outlined here, the study will "
                   "have power of "},
          {tested | powerToTell, "{power}% "},
          {tested | powerBeyond, "exceeding 99.9% "},
          {tested, "to yield a statistically significant result. "}}}};
    static const ReportSection section{{{always, "Power"}}, text, text};
    return section;
}

const ReportSection& countsSection() {
    static const ReportSection section{
        {{always, "Expected cell counts"}},
        {},
        {{Levels::none,
          "",
          {{always,
            "The analysis will be based on 2x2 tables (outcome by condition), where each table reflects the "
            "data from one of the {name 2}. "},
           {always,
            "Preliminary research suggests that one should be concerned if more than 10% of the {name 2} "
            "have 2x2 tables where the expected cell counts are low, where 'low' is defined as less than 3.5 "
            "{name 1} per cell. "},
           {always, "In the following table, the section 'Proportion of cells with count under 3.5' shows "
                    "these proportions for the planned study. "},
           {lowCounts,
            "Cells that are problematic based on this preliminary criterion are highlighted in red. "},
           {noLowCounts, "Based on this preliminary criterion, no cells are problematic."}}}}};
    return section;
}

const ReportSection& disclaimerSection() {
    static const std::vector<Block> text = {
        {Levels::none,
         "",
         {{always, "This report is intended to help researchers use the program, and not to take the place "
                   "of consultation with an expert statistician."},
          {binary, "\nThe criteria for identifying a problem with low cell counts is preliminary. Studies "
                   "may be problematic even if they meet this criterion. Conversely, studies may be valid "
                   "even if they violate this criterion. "}}}};
    static const ReportSection section{{{always, "Disclaimer"}}, text, text};
    return section;
}

}  // namespace lorvane
