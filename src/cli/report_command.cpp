// The command for the report of a study.
#include "cli/report_command.h"

#include <ostream>

#include "base/names.h"
#include "base/use_problem.h"
#include "base/utf8.h"
#include "reporting/make_report.h"
#include "reporting/report_formats.h"
#include "session/answers.h"
#include "validation/icc_messages.h"

namespace lorvane {

int writeReport(const ReportRequest& request, FileStore& files, DocumentPress& press,
                const CommandLine& line) {
    const auto format = reportFormatOf(request.out);
    if (!format)
        throw UseProblem("--out ends in .pdf, .rtf or .txt, not as " + inQuotes(request.out) + " does.");
    Session& session = line.session;
    line.store.open(session, request.study);
    applySettings(request.settings, session);
    if (!session.study().result.xValid) {
        line.errors << onOneLine(whyNoPower(session)) << '\n';
        return ExitCodes::noAnswer;
    }
    MadeReport made;
    makeReport(session, {request.checklist}, &press, made);
    files.replace(request.out, reportBytes(made.document, *format, &press));
    line.out << "The file " << printable(request.out) << " has been saved.\n";
    printNote(line.out, truncationNote(session.study()));
    return ExitCodes::done;
}

}  // namespace lorvane
