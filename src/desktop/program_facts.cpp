// What the program knows of itself.
#include "desktop/program_facts.h"

#include "qt/library_versions.h"
#include "sheets/sheet_files.h"

namespace lorvane::desktop {

ProgramFacts programFacts() {
    ProgramFacts facts{LORVANE_VERSION, libraryVersionsOfQt()};
    facts.libraries.push_back(libraryVersionOfSheets());
    facts.libraries.push_back({"CLI11", LORVANE_CLI11_VERSION});
    facts.libraries.push_back({"nlohmann/json", LORVANE_JSON_VERSION});
    return facts;
}

}  // namespace lorvane::desktop
