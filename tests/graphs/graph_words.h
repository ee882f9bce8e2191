// Variables and ranges of graphs as the tests write them.
#pragma once

#include <sstream>

#include "graphs/graph_intervals.h"

namespace lorvane {

/// "ICC(2)", "ICC(234)" or "d": the variables of all levels that are named.
inline std::vector<GraphVariable> variablesOf(const std::string& name) {
    std::vector<GraphVariable> variables;
    const std::size_t stem = name.find('(');
    const std::string levels =
        stem == std::string::npos ? "0" : name.substr(stem + 1, name.size() - stem - 2);
    for (const GraphVariableRow& row : graphVariables()) {
        for (const char level : row.stem == "txt" + name.substr(0, stem) ? levels : "")
            variables.push_back({&row, level - '0'});
    }
    return variables;
}

/// "auto", or the two ends of a range by hand.
inline XRange rangeOf(const std::string& text) {
    XRange range;
    std::istringstream ends(text);
    if (ends >> range.Start >> range.End)
        range.Mode = 1;
    return range;
}

}  // namespace lorvane
