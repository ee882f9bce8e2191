// The outlines of the reasons.
#include "search/optimal_marks.h"

#include <string_view>

#include "base/names.h"

namespace lorvane {

namespace {

// Number of the outline and the cells of every field that a reason marks, from the lowest level that has it.
struct MarkedField {
    std::string_view field;
    int outline;
    int lowestLevel;
    bool blockedOnly;
};
constexpr MarkedField markedFields[] = {{"pnlModel", 2, 1, false},
                                        {"pnlICC", 3, 2, false},
                                        {"pnlTauSq", 4, 2, true},
                                        {"pnlCostT", 5, 1, false},
                                        {"pnlQ", 6, 1, false}};
constexpr const char* effectField = "pnlEffectSize";
constexpr int effectOutline = 7;

}  // namespace

void markProblem(Design& design, const ReadinessProblem& problem) {
    const Study& s = design.study();
    for (const char* field : problem.fields) {
        if (std::string_view(field) == effectField)
            design.outline(effectOutline, effectField, effectField);
        for (const MarkedField& marked : markedFields) {
            if (marked.field != field)
                continue;
            const int lowest = marked.blockedOnly ? s.RandomizedLevel + 1 : marked.lowestLevel;
            design.outline(marked.outline, indexedName(field, s.NumLevels),
                           indexedName(problem.fields.back(), lowest));
        }
    }
}

void clearMarks(Design& design) {
    for (const MarkedField& marked : markedFields) {
        if (splitName(design.screen().outlines(marked.outline).from).stem == marked.field)
            design.clearOutline(marked.outline);
    }
    design.clearOutline(effectOutline);
}

}  // namespace lorvane
