// Writing a BIFF8 workbook: the records of the workbook first, then those of its sheet, in the order of the
// format.
#include "sheets/biff8.h"

#include <algorithm>
#include <span>
#include <stdexcept>

#include "sheets/biff8_looks.h"
#include "sheets/biff8_records.h"
#include "sheets/compound_file.h"
#include "sheets/shared_strings.h"
#include "sheets/sheet_layout.h"
#include "sheets/utf16.h"

namespace lorvane {

namespace {

constexpr SheetLimits limits{"An .xls file", ".xlsx or .csv", 256, 65536, 32767};

// BOF: the version, what begins, the build and the year of a program, and the lowest version that reads it.
const WordRecord globalsBof = {RecordId::bof, {0x0600, 0x0005, 0x0DBB, 0x07CC, 0, 0, 0x0006, 0}};
const WordRecord sheetBof = {RecordId::bof, {0x0600, 0x0010, 0x0DBB, 0x07CC, 0, 0, 0x0006, 0}};
const WordRecord endOfStream = {RecordId::eof, {}};

constexpr std::uint16_t unicode = 0x04B0;
const WordRecord interfaceHeader = {RecordId::interfaceHdr, {unicode}};
const WordRecord interfaceEnd = {RecordId::interfaceEnd, {}};

// WRITEACCESS: who saved the file, filled up with blanks.
constexpr std::u16string_view programName = u"Lorvane";
constexpr std::size_t writeAccessSize = 112;

// Nothing is protected or hidden, dates count from 1900, and results are as exact as they are.
const WordRecord settings[] = {
    {RecordId::codePage, {unicode}},
    {RecordId::dsf, {0}},
    {RecordId::rrTabId, {1}},
    {RecordId::winProtect, {0}},
    {RecordId::protect, {0}},
    {RecordId::password, {0}},
    {RecordId::prot4Rev, {0}},
    {RecordId::prot4RevPass, {0}},
    // Place and size in twentieths of a point, scroll bars and tabs, first sheet in front, width of the tabs.
    {RecordId::window1, {0, 0, 0x3FCF, 0x2A4E, 0x0038, 0, 0, 1, 600}},
    {RecordId::backup, {0}},
    {RecordId::hideObj, {0}},
    {RecordId::date1904, {0}},
    {RecordId::calcPrecision, {1}},
    {RecordId::refreshAll, {0}},
    {RecordId::bookBool, {0}},
};
const WordRecord usesElfs = {RecordId::usesElfs, {0}};
const WordRecord country = {RecordId::country, {1, 1}};

constexpr std::size_t lineHeight = 300;  // in twentieths of a point
constexpr std::size_t tallestRow = 8192;

// What a sheet computes and prints: as every new sheet has it.
const WordRecord sheetSettings[] = {
    {RecordId::calcMode, {1}},
    {RecordId::calcCount, {100}},
    {RecordId::calcRefMode, {1}},
    {RecordId::calcIter, {0}},
    {RecordId::calcDelta, {0xA9FC, 0xD2F1, 0x624D, 0x3F50}},  // the double 0.001
    {RecordId::calcSaveRecalc, {1}},
    {RecordId::printRowCol, {0}},
    {RecordId::printGrid, {0}},
    {RecordId::gridSet, {1}},
    {RecordId::guts, {0, 0, 0, 0}},
    {RecordId::defaultRowHeight, {0, lineHeight}},
    {RecordId::wsBool, {0x04C1}},  // page breaks and outlines as usual
    {RecordId::header, {}},
    {RecordId::footer, {}},
    {RecordId::hCenter, {0}},
    {RecordId::vCenter, {0}},
    // No paper chosen yet, full size, margins of half an inch (doubles) for head and foot.
    {RecordId::setup, {0, 100, 1, 1, 1, 0x0004, 0, 0, 0, 0, 0, 0x3FE0, 0, 0, 0, 0x3FE0, 1}},
};
const WordRecord defaultWidth = {RecordId::defColWidth, {8}};

// COLINFO: widths in 1/256 of a digit, with the room at both sides of a text.
constexpr std::size_t letterWidth = 256;
constexpr std::size_t columnPadding = 182;
constexpr unsigned setByUser = 0x0002;

constexpr unsigned usualRow = 0x0100;
constexpr std::size_t rowsOfBlock = 32;  // after so many rows a DBCELL tells where each begins

// WINDOW2: lines, heads of rows and columns, zeros, selected and in front; no zoom.
const WordRecord view = {RecordId::window2, {0x06B6, 0, 0, 0x0040, 0, 0, 0, 0, 0}};
constexpr unsigned onlyPane = 3;

using LaidRow = std::vector<LaidCell>;

void addAll(RecordStream& stream, std::span<const WordRecord> records) {
    for (const WordRecord& record : records)
        stream.add(record);
}

class Workbook {
public:
    explicit Workbook(const Sheet& sheet) : sheet_(sheet), layout_(layOut(sheet)), looks_(stylesOf(layout_)) {
        requireWithin(limits, layout_);
        for (const LaidRow& row : layout_.rows) {
            for (const LaidCell& cell : row) {
                if (const auto* text = std::get_if<std::string>(&cell.value))
                    strings_.add(*text);
            }
        }
    }

    const std::string& write() {
        const std::size_t sheetPlace = addGlobals();
        stream_.overwrite(sheetPlace, stream_.position());
        addSheet();
        return stream_.bytes();
    }

private:
    std::size_t addGlobals();
    void addWriteAccess();
    std::size_t addBoundSheet();

    void addSheet();
    std::size_t addIndex();
    void addColumns();
    void addColumnWidth(std::size_t first, std::size_t last, std::size_t letters);
    void addDimensions();
    void addCellTable(std::size_t dbCellPlaces);
    std::size_t addBlock(std::size_t first, std::span<const LaidRow> rows);
    void addRow(std::size_t number, const LaidRow& cells);
    void addCell(std::size_t row, const LaidCell& cell);
    void addSelection();
    void addMergedCells();

    const Sheet& sheet_;
    SheetLayout layout_;
    Biff8Looks looks_;
    SharedStrings strings_;
    RecordStream stream_;
};

// Returns the place where the position of the sheet belongs.
std::size_t Workbook::addGlobals() {
    stream_.add(globalsBof);
    stream_.add(interfaceHeader);
    stream_.add(interfaceEnd);
    addWriteAccess();
    addAll(stream_, settings);
    looks_.write(stream_);
    stream_.add(usesElfs);
    const std::size_t sheetPlace = addBoundSheet();
    stream_.add(country);
    strings_.write(stream_);
    stream_.add(endOfStream);
    return sheetPlace;
}

void Workbook::addWriteAccess() {
    LittleEndian body;
    body.word(programName.size()).byte(wideLetters).text(programName).padTo(writeAccessSize, ' ');
    stream_.add(RecordId::writeAccess, body);
}

std::size_t Workbook::addBoundSheet() {
    const std::size_t place = stream_.position() + RecordStream::headerSize;
    const std::u16string name = utf16(sheet_.name);
    LittleEndian body;
    body.dword(0).byte(0).byte(0);  // a visible sheet of cells
    body.byte(name.size()).byte(wideLetters).text(name);
    stream_.add(RecordId::boundSheet, body);
    return place;
}

void Workbook::addSheet() {
    stream_.add(sheetBof);
    const std::size_t indexPlaces = addIndex();
    addAll(stream_, sheetSettings);
    stream_.overwrite(indexPlaces, stream_.position());
    stream_.add(defaultWidth);
    addColumns();
    addDimensions();
    addCellTable(indexPlaces + 4);
    stream_.add(view);
    addSelection();
    addMergedCells();
    stream_.add(endOfStream);
}

// Returns where the position of DEFCOLWIDTH belongs; those of the DBCELLs belong behind it.
std::size_t Workbook::addIndex() {
    const std::size_t rows = layout_.rows.size();
    const std::size_t blocks = (rows + rowsOfBlock - 1) / rowsOfBlock;
    LittleEndian body;
    body.dword(0).dword(0).dword(rows);
    const std::size_t places = stream_.position() + RecordStream::headerSize + body.size();
    body.padTo(body.size() + 4 * (1 + blocks));
    stream_.add(RecordId::index, body);
    return places;
}

void Workbook::addColumns() {
    if (layout_.columns > 0)
        addColumnWidth(0, 0, sheet_.firstColumnWidth);
    if (layout_.columns > 1)
        addColumnWidth(1, layout_.columns - 1, sheet_.columnWidth);
}

void Workbook::addColumnWidth(std::size_t first, std::size_t last, std::size_t letters) {
    LittleEndian body;
    body.word(first).word(last).word(letters * letterWidth + columnPadding);
    body.word(defaultCellXf).word(setByUser).word(0);
    stream_.add(RecordId::colInfo, body);
}

void Workbook::addDimensions() {
    LittleEndian body;
    body.dword(0).dword(layout_.rows.size()).word(0).word(layout_.columns).word(0);
    stream_.add(RecordId::dimensions, body);
}

void Workbook::addCellTable(std::size_t dbCellPlaces) {
    const std::span<const LaidRow> rows = layout_.rows;
    for (std::size_t first = 0; first < rows.size(); first += rowsOfBlock) {
        const std::size_t dbCell =
            addBlock(first, rows.subspan(first, std::min(rowsOfBlock, rows.size() - first)));
        stream_.overwrite(dbCellPlaces, dbCell);
        dbCellPlaces += 4;
    }
}

// The rows, then their cells. DBCELL tells how far back the first row is, and how far the cells of each row
// are from those of the row before; those of the first row, from the end of its ROW. Returns the position of
// DBCELL.
std::size_t Workbook::addBlock(std::size_t first, std::span<const LaidRow> rows) {
    const std::size_t start = stream_.position();
    addRow(first, rows[0]);
    std::size_t before = stream_.position();
    for (std::size_t i = 1; i < rows.size(); ++i)
        addRow(first + i, rows[i]);
    LittleEndian offsets;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        offsets.word(stream_.position() - before);
        before = stream_.position();
        for (const LaidCell& cell : rows[i])
            addCell(first + i, cell);
    }
    const std::size_t dbCell = stream_.position();
    stream_.add(RecordId::dbCell, LittleEndian().dword(dbCell - start).raw(offsets.bytes()));
    return dbCell;
}

std::size_t linesOf(const LaidRow& cells) {
    std::size_t most = 1;
    for (const LaidCell& cell : cells) {
        if (const auto* text = std::get_if<std::string>(&cell.value))
            most = std::max(most, 1 + static_cast<std::size_t>(std::ranges::count(*text, '\n')));
    }
    return most;
}

void Workbook::addRow(std::size_t number, const LaidRow& cells) {
    LittleEndian body;
    body.word(number);
    body.word(cells.empty() ? 0 : cells.front().column);
    body.word(cells.empty() ? 0 : cells.back().column + 1);
    body.word(std::min(linesOf(cells) * lineHeight, tallestRow));
    body.word(0).word(0).word(usualRow).word(defaultCellXf);
    stream_.add(RecordId::row, body);
}

void Workbook::addCell(std::size_t row, const LaidCell& cell) {
    LittleEndian body;
    body.word(row).word(cell.column).word(looks_.xfOf(cell.style));
    if (const auto* number = std::get_if<double>(&cell.value))
        stream_.add(RecordId::number, body.real(*number));
    else if (const auto* text = std::get_if<std::string>(&cell.value))
        stream_.add(RecordId::labelSst, body.dword(strings_.numberOf(*text)));
    else
        stream_.add(RecordId::blank, body);
}

// The first cell is the active one, and the only one selected.
void Workbook::addSelection() {
    LittleEndian body;
    body.byte(onlyPane).word(0).word(0).word(0).word(1);
    body.word(0).word(0).byte(0).byte(0);
    stream_.add(RecordId::selection, body);
}

void Workbook::addMergedCells() {
    for (const SheetBand& band : sheet_.bands) {
        if (band.lastColumn == band.firstColumn)
            continue;
        LittleEndian body;
        body.word(1).word(band.row).word(band.row).word(band.firstColumn).word(band.lastColumn);
        stream_.add(RecordId::mergeCells, body);
    }
}

}  // namespace

std::string xlsFile(const Sheet& sheet) {
    Workbook workbook(sheet);
    const std::string& stream = workbook.write();
    if (stream.size() > largestCompoundStream)
        throw std::runtime_error("The table is too large for an .xls file; save it as .xlsx or .csv.");
    return compoundFile(u"Workbook", stream);
}

}  // namespace lorvane
