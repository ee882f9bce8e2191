// The formats of spreadsheets.
#include "sheets/sheet_files.h"

#include <xlsxwriter.h>

#include <stdexcept>

#include "sheets/biff8.h"
#include "sheets/csv_sheet.h"
#include "sheets/xlsx.h"

namespace lorvane {

LibraryVersion libraryVersionOfSheets() { return {"libxlsxwriter", lxw_version()}; }

std::string SheetFiles::write(const Sheet& sheet, SheetFormats format) {
    switch (format) {
    case SheetFormats::xls:
        return xlsFile(sheet);
    case SheetFormats::xlsx:
        return xlsxFile(sheet);
    case SheetFormats::csv:
        return csvFile(sheet);
    }
    throw std::logic_error("SheetFiles: no such format");
}

}  // namespace lorvane
