// Pictures of unsaved studies in the user's state folder. Each running program has at most one. The next
// program finds it again when the one before has ended without removing it.
#pragma once

#include <string>

#include "os/disk_file_store.h"
#include "os/open_file.h"
#include "platform/unsaved_store.h"

namespace lorvane {

/// The folder for what the program keeps between its runs: lorvane in XDG_STATE_HOME, else in .local/state of
/// the home. It may not exist yet. Empty where the user has no home.
std::string userStateFolder();

/// Holds a locked file beside its picture as long as the program runs. A picture whose lock is free has been
/// left behind. When writing fails, the program works on without a picture.
class UnsavedFolder final : public UnsavedStore {
public:
    /// Works in the folder, which is made with the first picture. An empty folder keeps nothing.
    explicit UnsavedFolder(std::string folder) : folder_(std::move(folder)) {}
    UnsavedFolder(const UnsavedFolder&) = delete;
    UnsavedFolder& operator=(const UnsavedFolder&) = delete;

    void keep(const UnsavedStudy& study) override;
    void drop() override;
    std::optional<LeftBehind> takeLeftBehind() override;
    void leave() override;
    void setAside() override;

private:
    bool takeLock(const std::string& stem, int flags);
    bool makeLock();
    void readOwner(UnsavedStudy& study) const;

    std::string folder_;
    std::string stem_;  ///< path of picture and lock without their endings; empty while there is none
    OpenFile lock_;     ///< held as long as the program runs; holds the study's file by path and hash
    DiskFileStore files_{0600};
};

}  // namespace lorvane
