// The formats of a report.
#include "reporting/report_formats.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include "base/letter_case.h"
#include "reporting/document_rtf.h"
#include "reporting/document_text.h"

namespace lorvane {

namespace {

struct Ending {
    const char* ending;
    ReportFormats format;
};

constexpr Ending endings[] = {
    {".pdf", ReportFormats::pdf}, {".rtf", ReportFormats::rtf}, {".txt", ReportFormats::text}};

}  // namespace

std::optional<ReportFormats> reportFormatOf(const std::string& path) {
    const std::string lower = lowerCased(path);
    const auto* found = std::find_if(std::begin(endings), std::end(endings),
                                     [&](const Ending& row) { return lower.ends_with(row.ending); });
    return found == std::end(endings) ? std::nullopt : std::optional(found->format);
}

std::string reportBytes(const Document& report, ReportFormats format, DocumentPress* press) {
    if (format == ReportFormats::rtf)
        return rtfOf(report);
    if (format == ReportFormats::text)
        return plainTextOf(report);
    if (press == nullptr)
        throw std::runtime_error(noPages);
    return press->pdf(report);
}

}  // namespace lorvane
