// Opening manuals and films.
#include "guidance/manuals.h"

#include <utility>

namespace lorvane {

Manuals::Manuals(std::string programFolder, const FileStore& files, Shell* shell)
    : programFolder_(std::move(programFolder)), files_(files), shell_(shell) {}

std::string Manuals::manual(std::string_view document) const {
    return programFolder_ + "/PDF-Files/" + std::string(document) + ".pdf";
}

std::string Manuals::film(std::string_view part) const {
    return programFolder_ + "/MP4-Files/" + std::string(part) + ".mp4";
}

void Manuals::open(const std::string& path) const {
    if (shell_ != nullptr && files_.exists(path))
        shell_->open(path);
}

bool Manuals::has(std::string_view document) const { return files_.exists(manual(document)); }

void Manuals::ShowdPDF(std::string_view document) const { open(manual(document)); }

bool Manuals::hasFilm(std::string_view part) const { return !part.empty() && files_.exists(film(part)); }

void Manuals::showFilm(std::string_view part) const { open(film(part)); }

}  // namespace lorvane
