// The command for the report of a study, as a file.
#pragma once

#include <string>
#include <vector>

#include "cli/command_words.h"
#include "platform/document.h"

namespace lorvane {

struct ReportRequest {
    std::string study;
    std::vector<std::string> settings;  ///< FIELD=VALUE
    bool checklist = false;
    std::string out;
};

/// Writes the file and returns the exit code. Throws UseProblem, FileProblem and ArithmeticFault.
int writeReport(const ReportRequest& request, FileStore& files, DocumentPress& press,
                const CommandLine& line);

}  // namespace lorvane
