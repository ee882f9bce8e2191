// A report from a session alone, without a window.
#pragma once

#include "platform/document.h"
#include "reporting/report_generate.h"
#include "session/session.h"

namespace lorvane {

struct MadeReport {
    Document document;
    int pages = 0;
};

/// Whether the user decides on the spans of the report: where the ICCs of means were entered. Spans of risks,
/// and spans that were entered, are always told.
bool spansAreOpen(const Study& study);

/// Whether the spans are told, as the study and the user's choice stand.
Inclusions spansToTell(const SessionState& session);

/// The name of the study's file without its folder and ending; a new study has its design.
std::string titleOfReport(const Session& session);

/// Makes the report of a session with an answer, and sets in it whether spans are told. Without a press
/// nothing is measured. Throws ArithmeticFault; the document is closed also then.
void makeReport(Session& session, const ReportExtras& extras, DocumentPress* press, MadeReport& made);

}  // namespace lorvane
