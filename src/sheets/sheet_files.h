// Writes tables in every format of spreadsheets.
#pragma once

#include "platform/sheet.h"

namespace lorvane {

class SheetFiles final : public SheetWriter {
public:
    std::string write(const Sheet& sheet, SheetFormats format) override;
};

}  // namespace lorvane
