// What a paper on a cluster trial has to tell of its sample size, with the study's values.
#include "reporting/report_sections.h"

namespace lorvane {

using namespace cases;

const ReportSection& checklistSection() {
    static const std::vector<Block> text = {
        {Levels::none,
         "",
         {{always, "The extension of the CONSORT statement to cluster trials asks in item 7a for the points "
                   "below (Campbell, Piaggio, Elbourne and Altman, BMJ 2012;345:e5661).\n"},
          {always, "\nMethod of calculation: "},
          {tested, "the power of a test of "},
          {dWithin, "the standardized mean difference d (within) of {d}"},
          {dTotal, "the standardized mean difference d (total) of {d}"},
          {oddsRatio, "an odds ratio of {odds ratio} (risks of {control risk} vs. {treated risk})"},
          {riskDifference, "a risk difference of {risk difference} (risks of {control risk} vs. {treated "
                           "risk})"},
          {tested, ", with alpha of {alpha} "},
          {tested | oneTailed, "(one-tailed)"},
          {tested | twoTailed, "(two-tailed)"},
          {tested, ", computed by Lorvane for a "},
          {untested, "none yet, since the program has no test for this effect in a "},
          {twoLevels, "two-level "},
          {threeLevels, "three-level "},
          {fourLevels, "four-level "},
          {hierarchical, "hierarchical design."},
          {blocking, "randomized-block design."},
          {tested | powerToTell, " The power is {power}%."},
          {tested | powerBeyond, " The power exceeds 99.9%."}}},
        {Levels::none, "", {{always, "\nNumber of clusters: "}}},
        {Levels::clusters,
         "; ",
         {{top | blocked, "{NB} {level}"},
          {top | notBlocked, "{NT} {level} ({treated}) and {NC} {level} ({control})"},
          {between | blocked, "{NB} {level} in each of the {above}"},
          {between | notBlocked | inBlocks,
           "{NT} {level} ({treated}) and {NC} {level} ({control}) in each of the {above}"},
          {between | inGroups,
           "{NT} {level} in each of the {above} assigned to {treated}, and {NC} {level} in "
           "each of the {above} assigned to {control}"}}},
        {Levels::none,
         "",
         {{always, ".\nEqual or unequal sizes: all clusters of a level are taken to have the same size"},
          {equalSizes, ", and both groups too."},
          {unequalSizes, "; the two groups differ as told here."},
          {always, " The program does not know how much the sizes will vary. Sizes that vary lower the "
                   "power.\nCluster size: "}}},
        {Levels::lowestOne,
         "",
         {{inBlocks, "{NT} {level} ({treated}) and {NC} {level} ({control}) in each of the {above}"},
          {inGroups, "{NT} {level} in each of the {above} assigned to {treated}, and {NC} {level} in each of "
                     "the {above} assigned to {control}"}}},
        {Levels::none,
         "",
         {{always, ".\nIntraclass correlation (ICC): {ICCs} for {clusters}"},
          {severalLevels, ", respectively"},
          {always, ".\nUncertainty of the ICC: the program does not know where the ICC comes from and how "
                   "certain it is. Name its source, and tell the power for a range of ICCs; a sensitivity "
                   "graph shows it."}}}};
    static const ReportSection section{{{always, "Checklist for the sample size"}}, {}, text};
    return section;
}

}  // namespace lorvane
