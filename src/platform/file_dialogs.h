// The dialogs in which a person chooses a file.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace lorvane {

/// A file dialog as the program asks for it. The folder is left to the system.
struct FileDialog {
    enum class Kind { open, save };
    Kind kind = Kind::open;
    std::string title;
    std::string filter;                          ///< words and pattern, "(*.txt)|*.txt"
    std::string defaultExtension;                ///< ".txt"; empty for none
    std::vector<std::string> otherFilters = {};  ///< on offer beside the filter, in the same form
    bool asksBeforeReplacing = true;             ///< where the name of a file that is there is chosen
    std::string suggestedName = {};              ///< stands in the field at first; without a folder
};

/// The longest name of a file that a dialog takes, in letters.
inline constexpr int longestFileName = 256;

/// Why a dialog stays open.
inline constexpr const char* nameTooLong =
    "The name of the file is longer than 256 letters; choose a shorter one.";
inline constexpr const char* folderMissing = "The folder of the file does not exist; choose another one.";

class FileDialogs {
public:
    virtual ~FileDialogs() = default;

    /// Shows the dialog, with the words of its filter as they are told, and waits for the path; nothing when
    /// it is cancelled. A dialog for opening takes only a file that is there, one for saving only a folder
    /// that is there, and it asks before it takes the name of a file that is there, unless the program does.
    virtual std::optional<std::string> choose(const FileDialog& dialog) = 0;
};

}  // namespace lorvane
