// The dialogs in which a person chooses a file.
#pragma once

#include <optional>
#include <string>

namespace lorvane {

/// A file dialog as the program asks for it. The folder is left to the system.
struct FileDialog {
    enum class Kind { open, save };
    Kind kind = Kind::open;
    std::string title;
    std::string filter;            ///< words and pattern, "(*.txt)|*.txt"
    std::string defaultExtension;  ///< ".txt"; empty for none
};

class FileDialogs {
public:
    virtual ~FileDialogs() = default;

    /// Shows the dialog and waits for the path; nothing when it is cancelled. A dialog for saving asks before
    /// it takes the name of a file that is there.
    virtual std::optional<std::string> choose(const FileDialog& dialog) = 0;
};

}  // namespace lorvane
