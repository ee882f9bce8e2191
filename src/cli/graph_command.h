// The command for a sensitivity graph: its picture or its table, from a study file.
#pragma once

#include <string>
#include <vector>

#include "cli/command_words.h"
#include "platform/chart.h"
#include "platform/sheet.h"

namespace lorvane {

struct GraphCommandRequest {
    std::string study;
    std::vector<std::string> settings;  ///< FIELD=VALUE
    std::string x;                      ///< key of the variable, "Number of Level 2"
    std::string series;                 ///< key of the variable of the series; empty: none
    std::vector<double> values;         ///< of the series
    std::string range;                  ///< "A:B"; empty: automatic
    bool cost = false;
    std::string out;
};

/// What turns a graph into files.
struct GraphWriters {
    FileStore& files;
    Chart& chart;
    SheetWriter& sheets;
};

/// Writes the file and returns the exit code. Throws UseProblem, FileProblem and ArithmeticFault.
int makeGraph(const GraphCommandRequest& request, const GraphWriters& writers, const CommandLine& line);

}  // namespace lorvane
