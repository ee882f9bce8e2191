// Writing an .xlsx file by libxlsxwriter, which writes to files alone: into a folder that lives as long as
// the call.
#include "sheets/xlsx.h"

#include <xlsxwriter.h>

#include <clocale>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <stdexcept>

#include "sheets/sheet_layout.h"

namespace lorvane {

namespace {

constexpr SheetLimits limits{"An .xlsx file", ".csv", LXW_COL_MAX, LXW_ROW_MAX, 32767};

// The first moment that a zip file can tell: the file shall not depend on when it was written.
constexpr std::time_t created = 315532800;  // 1980-01-01
constexpr lxw_color_t paleBlue = 0xCCCCFF;

[[noreturn]] void fail(const std::string& why) {
    throw std::runtime_error("The .xlsx file could not be made: " + why + ".");
}

void require(lxw_error error) {
    if (error != LXW_NO_ERROR)
        fail(lxw_strerror(error));
}

// A new folder that nobody else can open or foresee, removed at the end.
class ScratchFolder {
public:
    ScratchFolder() {
        std::error_code missing;
        std::string name = (std::filesystem::temp_directory_path(missing) / "lorvane-XXXXXX").string();
        if (missing || !mkdtemp(name.data()))
            fail("the folder for temporary files takes none");
        path_ = name;
    }
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

// The library prints numbers by the locale of the thread, whose decimal sign may be a comma.
class PointAsDecimalSign {
public:
    PointAsDecimalSign() : plain_(newlocale(LC_NUMERIC_MASK, "C", nullptr)), before_(uselocale(plain_)) {}
    ~PointAsDecimalSign() {
        uselocale(before_);
        freelocale(plain_);
    }
    PointAsDecimalSign(const PointAsDecimalSign&) = delete;
    PointAsDecimalSign& operator=(const PointAsDecimalSign&) = delete;

private:
    locale_t plain_;
    locale_t before_;
};

struct FreeWorkbook {
    void operator()(lxw_workbook* workbook) const { lxw_workbook_free(workbook); }
};
using OpenWorkbook = std::unique_ptr<lxw_workbook, FreeWorkbook>;

lxw_row_t rowNumber(std::size_t row) { return static_cast<lxw_row_t>(row); }
lxw_col_t columnNumber(std::size_t column) { return static_cast<lxw_col_t>(column); }

lxw_format* addFormat(lxw_workbook& workbook, const CellStyle& style) {
    lxw_format* format = workbook_add_format(&workbook);
    format_set_num_format(format, numberFormat(style).c_str());
    if (style.heading) {
        format_set_bold(format);
        format_set_bg_color(format, paleBlue);
    }
    if (style.wraps)
        format_set_text_wrap(format);
    return format;
}

using Formats = std::map<CellStyle, lxw_format*>;

Formats addFormats(lxw_workbook& workbook, const SheetLayout& layout) {
    Formats formats;
    for (const CellStyle& style : stylesOf(layout))
        formats[style] = addFormat(workbook, style);
    return formats;
}

void setWidths(lxw_worksheet* page, const Sheet& sheet, std::size_t columns) {
    if (columns > 0)
        require(worksheet_set_column(page, 0, 0, static_cast<double>(sheet.firstColumnWidth), nullptr));
    if (columns > 1)
        require(worksheet_set_column(page, 1, columnNumber(columns - 1),
                                     static_cast<double>(sheet.columnWidth), nullptr));
}

// The cells of a band are joined first, since that empties them.
void joinBands(lxw_worksheet* page, const Sheet& sheet) {
    for (const SheetBand& band : sheet.bands) {
        if (band.firstColumn < band.lastColumn)
            require(worksheet_merge_range(page, rowNumber(band.row), columnNumber(band.firstColumn),
                                          rowNumber(band.row), columnNumber(band.lastColumn), "", nullptr));
    }
}

lxw_error writeCell(lxw_worksheet* page, std::size_t row, const LaidCell& cell, lxw_format* format) {
    const lxw_row_t r = rowNumber(row);
    const lxw_col_t c = columnNumber(cell.column);
    if (const auto* number = std::get_if<double>(&cell.value))
        return worksheet_write_number(page, r, c, *number, format);
    if (const auto* text = std::get_if<std::string>(&cell.value))
        return worksheet_write_string(page, r, c, text->c_str(), format);
    return worksheet_write_blank(page, r, c, format);
}

void fill(lxw_workbook& workbook, const Sheet& sheet, const SheetLayout& layout) {
    lxw_doc_properties properties{};
    properties.created = created;
    require(workbook_set_properties(&workbook, &properties));
    lxw_worksheet* page = workbook_add_worksheet(&workbook, sheet.name.c_str());
    if (!page)
        fail("no sheet can be called \"" + sheet.name + "\"");
    const Formats formats = addFormats(workbook, layout);
    setWidths(page, sheet, layout.columns);
    joinBands(page, sheet);
    for (std::size_t row = 0; row < layout.rows.size(); ++row) {
        for (const LaidCell& cell : layout.rows[row])
            require(writeCell(page, row, cell, formats.at(cell.style)));
    }
}

std::string bytesOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (!file)
        fail("the temporary file cannot be read");
    return bytes;
}

}  // namespace

std::string xlsxFile(const Sheet& sheet) {
    const SheetLayout layout = layOut(sheet);
    requireWithin(limits, layout);
    const ScratchFolder scratch;
    const PointAsDecimalSign numbers;
    std::string folder = scratch.path().string();
    lxw_workbook_options options{};
    options.tmpdir = folder.data();
    const std::string path = (scratch.path() / "table.xlsx").string();
    OpenWorkbook workbook(workbook_new_opt(path.c_str(), &options));
    if (!workbook)
        fail("there is not enough memory");
    fill(*workbook, sheet, layout);
    require(workbook_close(workbook.release()));
    return bytesOf(path);
}

}  // namespace lorvane
