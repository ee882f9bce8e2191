// The formats of a report that is saved.
#pragma once

#include <optional>
#include <string>

#include "platform/document.h"

namespace lorvane {

enum class ReportFormats { pdf, rtf, text };

/// The format by the ending of a path, in small letters or capitals; nothing for any other ending.
std::optional<ReportFormats> reportFormatOf(const std::string& path);

/// The bytes of a file. Throws std::runtime_error with a sentence when they cannot be made; without a press
/// there is no PDF.
std::string reportBytes(const Document& report, ReportFormats format, DocumentPress* press);

inline constexpr const char* noPages = "Pages cannot be drawn here; use the program with its window.";

}  // namespace lorvane
