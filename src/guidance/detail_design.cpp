// Details of the design as a whole, of its levels and of its units.
#include "guidance/detail_subjects.h"

namespace lorvane {

using namespace cases;

namespace {

constexpr Sentence roles[] = {
    {randomized, "{Level} are assigned to {Treated} or to {Control}."},
    {blocked, "{Level} are blocked: each of them includes both groups."},
    {nested, "{Level} are nested: each of them belongs to one group with its {above}."}};

constexpr Sentence unitsOfTreated[] = {
    {blocked | top, "The study will include **{NB}** {level}."},
    {blocked | belowTop, "Each of the {above} will include **{NB}** {level}."},
    {notBlocked | top, "The study will include **{NT}** {level} in the {Treated} group."},
    {notBlocked | belowTop, "Each of the {above} will include **{NT}** {level} in the {Treated} group."}};

constexpr Sentence unitsOfControl[] = {
    {notBlocked | top, "The study will include **{NC}** {level} in the {Control} group."},
    {notBlocked | belowTop, "Each of the {above} will include **{NC}** {level} in the {Control} group."}};

constexpr Sentence betweenGroups[] = {{notBlocked, " "}};

constexpr Sentence unitsInAll[] = {{unitsToTell, "In all, the study includes {units}."}};

}  // namespace

const DetailSubject& designDetails() {
    static const DetailSubject subject{
        DetailTabs::none,
        {{always, "Study design"}},
        {{Levels::none,
          {{twoLevels, "The study will employ a two-level clustered design, with "},
           {threeLevels, "The study will employ a three-level clustered design, with "},
           {fourLevels, "The study will employ a four-level clustered design, with "},
           {always, "{name 1} within {name 2}"},
           {severalLevels, " within {name 3}"},
           {fourLevels, " within {name 4}"},
           {always, "."}}},
         {Levels::fromTop, together({roles})},
         {Levels::none,
          {{hierarchical, "No level is blocked, so all that sets {top} apart also sets the two groups apart. "
                          "Power depends above all on the number of {top}."}}},
         {Levels::blockedOnes,
          {{randomModel, "Since each of the {level} includes both groups, what sets {level} apart does not "
                         "blur the comparison. How much the effect varies across {level} does."},
           {fixedModel, "Since each of the {level} includes both groups, what sets {level} apart does not "
                        "blur the comparison. Their model is fixed, so an effect that varies across {level} "
                        "does not blur it either."}}}},
        {},
        {}};
    return subject;
}

const DetailSubject& levelDetails() {
    static const DetailSubject subject{
        DetailTabs::none,
        {{always, "Number of levels in the study design"}},
        {{Levels::none,
          {{twoLevels, "The study has **two** levels. {design}"},
           {threeLevels, "The study has **three** levels. {design}"},
           {fourLevels, "The study has **four** levels. {design}"}}},
         {Levels::fromTop, together({roles})},
         {Levels::none,
          {{always, "Include every level whose units differ in the outcome. Where such a level is left out, "
                    "power can look higher than it is."}}}},
        {},
        {}};
    return subject;
}

const DetailSubject& unitDetails() {
    static const DetailSubject subject{
        DetailTabs::all,
        {{always, "Number of units"}},
        {{Levels::fromTop, together({unitsOfTreated, betweenGroups, unitsOfControl})},
         {Levels::none, together({unitsInAll})}},
        {{always, "Number of {level}"}},
        {together({unitsOfTreated}),
         together({unitsOfControl}),
         together({unitsInAll}),
         {{randomized | top,
           "Power rises with the number of {level} above all, since they are the units that "
           "are randomized."},
          {randomized | belowTop,
           "Power rises with the number of {level}. More of them cannot make up for an "
           "effect that varies across {above}."},
          {nested, "Power rises with the number of {level}, but less and less, since {level} of the same "
                   "{above} resemble each other."},
          {blocked, "Power rises with the number of {level}, since each of them repeats the comparison of "
                    "the two groups."}}}};
    return subject;
}

}  // namespace lorvane
