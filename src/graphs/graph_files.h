// Saving and copying of a graph: its picture, its table, its header and footer.
#pragma once

#include <string>
#include <vector>

#include "platform/chart.h"
#include "platform/clipboard.h"
#include "platform/file_dialogs.h"
#include "platform/file_store.h"
#include "platform/sheet.h"
#include "platform/shell.h"
#include "screen/design.h"

namespace lorvane {

/// What a graph needs of the outside.
struct GraphOutside {
    FileDialogs& dialogs;
    FileStore& files;
    Clipboard& clipboard;
    Chart* chart = nullptr;         ///< none: there are no pictures
    SheetWriter* sheets = nullptr;  ///< none: there are no spreadsheets
    Shell* shell = nullptr;         ///< none: nothing is opened after it was saved
};

/// Asks for names, writes files, fills the clipboard. The windows of the graph make way for messages and file
/// dialogs.
class GraphFiles {
public:
    GraphFiles(Design& design, const GraphOutside& outside) : design_(design), outside_(outside) {}

    // Each returns what the status line tells; empty where the user has cancelled.

    std::string SaveGraph(const ChartContent& chart, PictureSizes size);
    std::string copyGraph(const ChartContent& chart, PictureSizes size);
    enum class Then { stay, open };
    std::string SaveTable(const Sheet& sheet, Then then);
    std::string copyTable(const ClipboardContent& table);
    std::string SaveHeader(const std::vector<std::string>& texts);
    std::string copyHeader(const std::vector<std::string>& texts);

    /// A message with its answer, while the windows of the graph make way.
    Answer ask(const MessageBox& message);

private:
    template <typename Bytes>
    std::string save(const char* title, const std::string& path, Bytes bytes, const char* message = nullptr);
    std::optional<std::string> choose(const FileDialog& dialog);
    std::optional<std::string> GetFileNameRTF();

    Design& design_;
    GraphOutside outside_;
};

/// The format of a picture and of a table by the ending of a path, in small letters or capitals; nothing for
/// any other ending.
std::optional<PictureFormats> pictureFormatOf(const std::string& path);
std::optional<SheetFormats> sheetFormatOf(const std::string& path);

}  // namespace lorvane
