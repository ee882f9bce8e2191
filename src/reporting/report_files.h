// Where a report goes: files, printer, clipboard.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/clipboard.h"
#include "platform/document.h"
#include "platform/file_dialogs.h"
#include "platform/file_store.h"
#include "screen/design.h"

namespace lorvane {

/// What a report needs of the outside.
struct ReportOutside {
    FileDialogs& dialogs;
    FileStore& files;
    Clipboard& clipboard;
    DocumentPress* press = nullptr;  ///< none: pages are neither measured nor drawn
};

/// What a report is made for; the numbers are those of scripts.
enum class ReportModes { view = 1, rtf = 3, pdf = 4 };

class ReportFiles {
public:
    ReportFiles(Design& design, const ReportOutside& outside) : design_(design), outside_(outside) {}

    /// Each asks for a name; nothing when the user cancels. A PDF never takes the name of a file that is
    /// there.
    std::optional<std::string> GetFileName();
    std::optional<std::string> GetFileNamePDF();

    /// Writes the report as the mode asks, a text where the name ends so, and tells of it in a message. False
    /// when it could not be written.
    bool write(const Document& report, const std::string& path, ReportModes mode);

    // Each returns what the status line tells.

    std::string copyPage(const Document& report, int page);
    std::string copySummary(const Document& report);
    std::string print(const Document& report, std::optional<int> page);

    /// A message with its answer. While the viewer is open the panels stay away.
    Answer ask(const MessageBox& message);

private:
    std::optional<std::string> choose(const FileDialog& dialog);
    void keepPanelsAway();

    Design& design_;
    ReportOutside outside_;
};

}  // namespace lorvane
