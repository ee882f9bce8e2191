#include "sheets/sheet_files.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>
#include <stdexcept>

#include "sheets/sample_sheets.h"

namespace lorvane {
namespace {

std::string refusal(const Sheet& sheet, SheetFormats format) {
    try {
        SheetFiles().write(sheet, format);
    } catch (const std::runtime_error& refused) {
        return refused.what();
    }
    return "";
}

Sheet sheetOf(std::size_t rows, std::size_t columns, const SheetCell& cell) {
    return {"S", std::vector(rows, std::vector(columns, cell)), {}};
}

TEST(SheetFiles, TellWhatAFormatCannotHold) {
    using enum SheetFormats;
    const SheetCell one = number(1);
    const struct {
        Sheet sheet;
        SheetFormats format;
        std::string refusal;
    } cases[] = {
        {sheetOf(1, 256, one), xls, ""},
        {sheetOf(1, 257, one), xls,
         "An .xls file holds at most 256 columns; save the table as .xlsx or .csv."},
        {sheetOf(65537, 1, one), xls,
         "An .xls file holds at most 65,536 rows; save the table as .xlsx or .csv."},
        {sheetOf(2000, 256, one), xls, "The table is too large for an .xls file; save it as .xlsx or .csv."},
        {sheetOf(1, 1, text(std::string(32768, 'x'))), xls,
         "An .xls file holds at most 32,767 letters in a cell; save the table as .xlsx or .csv."},
        {sheetOf(1, 16384, one), xlsx, ""},
        {sheetOf(1, 16385, one), xlsx, "An .xlsx file holds at most 16,384 columns; save the table as .csv."},
        {{"a/b", {}, {}}, xlsx, "The .xlsx file could not be made: no sheet can be called \"a/b\"."},
        {sheetOf(1, 20000, one), csv, ""},
    };
    for (const auto& row : cases)
        EXPECT_EQ(refusal(row.sheet, row.format), row.refusal);
    setenv("TMPDIR", "/nowhere", 1);
    EXPECT_EQ(refusal(sampleSheet(), xlsx),
              "The .xlsx file could not be made: the folder for temporary files takes none.");
    unsetenv("TMPDIR");
}

TEST(SheetFiles, CsvIsPlainAndHarmless) {
    const double none = std::numeric_limits<double>::quiet_NaN();
    const Sheet sheet{
        "Plain",
        {{text("a \"b\",\nc"), text("=1+2"), text("+x"), text("-x"), text("-.5"), text("@x"), text("\tx")},
         {text("Band"), text("hidden"), number(1234567.125, 2, true), number(-0.04, 1), number(none)}},
        {{1, 0, 1}, {2, 7, 8}}};
    EXPECT_EQ(SheetFiles().write(sheet, SheetFormats::csv),
              "\"a \"\"b\"\",\nc\",'=1+2,'+x,'-x,-.5,'@x,'\tx,,\r\n"
              "Band,,1234567.13,0.0,,,,,\r\n,,,,,,,,\r\n");
}

}  // namespace
}  // namespace lorvane
