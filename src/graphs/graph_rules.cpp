// What a range by hand and the values of a series must keep to.
#include "graphs/graph_rules.h"

#include <algorithm>

#include "base/number_text.h"
#include "graphs/valid_ranges.h"

namespace lorvane {

FieldLimits axisLimitsOf(const Study& study, const GraphVariable& variable) {
    if (!variable->rangeIsOfStudy)
        return variable->axisLimits;
    Study tried = study;
    const ValidRange valid = validRangeOf(tried, variable);
    return {valid.low, true, valid.high, true};
}

std::string rangeWords(const FieldLimits& limits, int decimals) {
    return "Values must fall in the range of " + fixedText(limits.low, decimals) + " to " +
           fixedText(limits.high, decimals) + ".";
}

std::vector<double> sortedValues(const GraphVariable& variable, std::vector<double> values) {
    std::sort(values.begin(), values.end());
    if (variable->order == SeriesOrder::descending)
        std::reverse(values.begin(), values.end());
    return values;
}

bool lacksCovariates(const Study& study, const GraphVariable& variable) {
    return variable.is(GraphFields::Rsq) && study.txtQ(variable.level) == 0;
}

}  // namespace lorvane
