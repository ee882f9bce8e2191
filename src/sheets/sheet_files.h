// Writes tables in every format of spreadsheets.
#pragma once

#include "platform/program_facts.h"
#include "platform/sheet.h"

namespace lorvane {

/// The library behind workbooks, as it runs.
LibraryVersion libraryVersionOfSheets();

class SheetFiles final : public SheetWriter {
public:
    std::string write(const Sheet& sheet, SheetFormats format) override;
};

}  // namespace lorvane
