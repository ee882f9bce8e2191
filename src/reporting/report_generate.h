// The report from its first heading to its last line, as steps of a document.
#pragma once

#include "platform/document.h"
#include "session/session_state.h"

namespace lorvane {

/// The page that the settings of a study ask for: font, paper, margins; the title is for a file.
PageSetup pageOf(const StudySettings& settings, std::string title);

/// What a report may hold beyond its usual sections.
struct ReportExtras {
    bool checklist = false;
};

/// Sends the whole report of a session with an answer to a surface, all but the end of the document. Reads
/// the session and changes nothing. Throws ArithmeticFault.
void ReportGenerate(const SessionState& session, const ReportExtras& extras, const PageSetup& page,
                    DocumentSurface& surface);

/// The number of steps of a report before its detailed half begins.
std::size_t stepsOfSummary(const Document& report);

}  // namespace lorvane
