// The study files that were last open, most recent first, kept in the user's settings.
#pragma once

#include <cstddef>
#include <string>

#include "platform/controls.h"
#include "platform/settings_store.h"

namespace lorvane {

class RecentFiles {
public:
    static constexpr std::size_t rows = 11;

    explicit RecentFiles(SettingsStore& settings);

    /// Reads the list from the settings, and writes it there.
    void GetFiles();
    void SaveFiles();

    /// Moves a file to the front. Paths that differ only in case are one file; what does not fit falls off.
    void SetFlex(const std::string& CurrentFile);

    /// The path of a row, 0 to 10; empty where there is none.
    const std::string& path(std::size_t row) const { return flexfiles_.rows[row][0]; }
    const Grid& flexfiles() const noexcept { return flexfiles_; }

private:
    SettingsStore& settings_;
    Grid flexfiles_;
};

}  // namespace lorvane
