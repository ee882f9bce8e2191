// The study files that were last open.
#include "persistence/recent_files.h"

#include <vector>

#include "base/letter_case.h"

namespace lorvane {

namespace {

constexpr const char* application = "Lorvane";
constexpr const char* section = "Recent";

// The number of a row with a blank in the place of its sign.
std::string keyOf(std::size_t row) { return std::string(1, ' ') += std::to_string(row); }

}  // namespace

RecentFiles::RecentFiles(SettingsStore& settings) : settings_(settings) {
    flexfiles_.rows.assign(rows, {""});
}

void RecentFiles::GetFiles() {
    for (std::size_t row = 0; row < rows; ++row)
        flexfiles_.rows[row][0] = settings_.GetSetting(application, section, keyOf(row), "");
}

void RecentFiles::SaveFiles() {
    for (std::size_t row = 0; row < rows; ++row)
        settings_.SaveSetting(application, section, keyOf(row), path(row));
}

void RecentFiles::SetFlex(const std::string& CurrentFile) {
    const std::vector<Grid::Row> before = flexfiles_.rows;
    flexfiles_.rows.assign(rows, {""});
    flexfiles_.rows[0][0] = CurrentFile;
    const std::string same = upperCased(CurrentFile);
    std::size_t row = 1;
    for (const Grid::Row& old : before) {
        if (row < rows && upperCased(old[0]) != same)
            flexfiles_.rows[row++][0] = old[0];
    }
}

}  // namespace lorvane
