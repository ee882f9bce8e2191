// Where a report goes.
#include "reporting/report_files.h"

#include <stdexcept>
#include <utility>

#include "base/utf8.h"
#include "reporting/document_html.h"
#include "reporting/document_text.h"
#include "reporting/make_report.h"
#include "reporting/report_formats.h"
#include "reporting/report_generate.h"

namespace lorvane {

namespace {

constexpr const char* pdfEnding = ".PDF";

// A name for a PDF ends as one; any of the endings does for a report.
bool hasEnding(const std::string& path, const FileDialog& dialog) {
    const auto format = reportFormatOf(path);
    return format && (dialog.defaultExtension == pdfEnding) == (format == ReportFormats::pdf);
}

}  // namespace

void ReportFiles::keepPanelsAway() {
    if (design_.isOpen(WindowId::frmPrint))
        design_.SuspendForms(FormSet::main);
}

Answer ReportFiles::ask(const MessageBox& message) {
    const Answer answer = design_.ask(message);
    keepPanelsAway();
    return answer;
}

std::optional<std::string> ReportFiles::choose(const FileDialog& dialog) {
    design_.SuspendForms(FormSet::main);
    auto path = outside_.dialogs.choose(dialog);
    design_.RestoreForms(FormSet::main);
    keepPanelsAway();
    if (path && !hasEnding(*path, dialog))
        *path += dialog.defaultExtension;
    return path;
}

std::optional<std::string> ReportFiles::GetFileName() {
    return choose({FileDialog::Kind::save,
                   "Save report",
                   "(*.rtf)|*.rtf",
                   ".rtf",
                   {"Text (*.txt)|*.txt"},
                   true,
                   titleOfReport(design_.session()) + ".rtf"});
}

std::optional<std::string> ReportFiles::GetFileNamePDF() {
    const FileDialog dialog{FileDialog::Kind::save,
                            "Save file",
                            "(*.pdf)|*.pdf",
                            pdfEnding,
                            {},
                            false,
                            titleOfReport(design_.session()) + ".pdf"};
    for (;;) {
        const auto path = choose(dialog);
        if (!path || !outside_.files.exists(*path))
            return path;
        ask({"File exists   ", "That file already exists. Please enter another file name    "});
    }
}

bool ReportFiles::write(const Document& report, const std::string& path, ReportModes mode) {
    const ReportFormats format =
        mode == ReportModes::pdf ? ReportFormats::pdf : reportFormatOf(path).value_or(ReportFormats::rtf);
    try {
        outside_.files.replace(path, reportBytes(report, format, outside_.press));
    } catch (const std::runtime_error&) {
        ask(failureMessage(
            "File was not saved                       ",
            "File could not be saved. It is probably being used by another program                "));
        return false;
    }
    ask({"Report saved", "The file " + printable(path) + " has been saved.             "});
    return true;
}

std::string ReportFiles::copyPage(const Document& report, int page) {
    if (outside_.press == nullptr)
        return noPages;
    ClipboardContent content;
    content.png = outside_.press->picture(report, page);
    outside_.clipboard.put(content);
    return "The page has been copied.";
}

std::string ReportFiles::copySummary(const Document& report) {
    const auto end = report.steps.begin() + static_cast<std::ptrdiff_t>(stepsOfSummary(report));
    const Document summary{report.page, {report.steps.begin(), end}};
    outside_.clipboard.put({plainTextOf(summary), htmlOf(summary.steps)});
    return "The executive summary has been copied.";
}

std::string ReportFiles::print(const Document& report, std::optional<int> page) {
    if (outside_.press == nullptr)
        return noPages;
    try {
        return outside_.press->print(report, page) ? "The report has been printed." : "";
    } catch (const std::runtime_error& problem) {
        ask(failureMessage("Print", problem.what()));
        return problem.what();
    }
}

}  // namespace lorvane
