// The manuals beside the program.
#pragma once

#include <string>
#include <string_view>

#include "platform/file_store.h"
#include "platform/shell.h"

namespace lorvane {

class Manuals {
public:
    /// The manuals lie in "PDF-Files", the films in "MP4-Files" below the folder. Without a shell nothing
    /// opens them. Files and shell must outlive it.
    Manuals(std::string programFolder, const FileStore& files, Shell* shell);

    /// Opens the manual of a name, "PDF d". A missing one, or a system that has no program for it, is passed
    /// over in silence.
    void ShowdPDF(std::string_view document) const;

    /// Whether there is a film on a part of the guide, "Part 4", and showing it.
    bool hasFilm(std::string_view part) const;
    void showFilm(std::string_view part) const;

    bool has(std::string_view document) const;

private:
    std::string manual(std::string_view document) const;
    std::string film(std::string_view part) const;
    void open(const std::string& path) const;

    std::string programFolder_;
    const FileStore& files_;
    Shell* shell_;
};

}  // namespace lorvane
