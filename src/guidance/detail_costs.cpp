// Details of the costs of a level.
#include "guidance/detail_subjects.h"

namespace lorvane {

using namespace cases;

namespace {

constexpr Sentence asked[] = {{always, "Specify the cost for each of the {level}. "}};

constexpr Sentence costOfBlock[] = {{blocked, "The cost for each of the {level} is **{cost blocked}**. "}};

constexpr Sentence withoutUnitsBelow[] = {{aboveLowest, "The {below} within them have costs of their own."}};

constexpr Sentence entry[] = {
    {always, "To specify these costs, use the spin button. You can also type them."}};

constexpr Sentence ofLevel[] = {{costToTell, "In all, {level} cost {cost of level}. "}};

constexpr Sentence ofStudy[] = {{costToTell, "The study costs **{total cost}**."}};

constexpr Sentence noPower[] = {
    {always, "Costs do not change power. They count for the total cost and for the search for the cheapest "
             "design."}};

}  // namespace

const DetailSubject& costDetails() {
    static const DetailSubject subject{DetailTabs::all,
                                       {{always, "Cost of all levels"}},
                                       {{Levels::fromTop, together({asked, costsOfGroups(), costOfBlock})},
                                        {Levels::none, together({entry})},
                                        {Levels::none, together({ofStudy})},
                                        {Levels::none, together({noPower})}},
                                       {{always, "Cost of {Level}"}},
                                       {together({asked, costsOfGroups(), costOfBlock, withoutUnitsBelow}),
                                        together({entry}), together({ofLevel, ofStudy}),
                                        together({noPower})}};
    return subject;
}

}  // namespace lorvane
