// A report from a session alone.
#include "reporting/make_report.h"

#include "reporting/recording_surface.h"
#include "screen/design_words.h"

namespace lorvane {

namespace {

void decideSpans(Session& session) {
    const Inclusions decided = spansToTell(session.state());
    if (session.settings().ReportSpans != decided)
        session.edit({"", Reach::display},
                     [&](SessionState& state) { state.settings.ReportSpans = decided; });
}

}  // namespace

std::string titleOfReport(const Session& session) {
    const std::string& file = session.currentFile();
    const std::string name = file.substr(file.find_last_of('/') + 1);
    return file.empty() ? designTitle(session.study()) : name.substr(0, name.find_last_of('.'));
}

bool spansAreOpen(const Study& study) { return study.isMeans() && study.IccMetric == IccMetrics::icc; }

Inclusions spansToTell(const SessionState& session) {
    return spansAreOpen(session.study) ? session.settings.ReportSpansChoice : Inclusions::include;
}

void makeReport(Session& session, const ReportExtras& extras, DocumentPress* press, MadeReport& made) {
    decideSpans(session);
    made.document = {pageOf(session.settings(), titleOfReport(session)), {}};
    RecordingSurface surface(made.document, press == nullptr ? nullptr : press->start(made.document.page));
    try {
        ReportGenerate(session.state(), extras, made.document.page, surface);
    } catch (...) {
        surface.send(step::EndDoc{});
        throw;
    }
    surface.send(step::EndDoc{});
    made.pages = surface.pages();
}

}  // namespace lorvane
