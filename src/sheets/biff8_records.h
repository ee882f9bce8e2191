// The records of a BIFF8 stream: two bytes that tell which one it is, two that tell how long its body is, the
// body. The names are those of the format.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "sheets/little_endian.h"

namespace lorvane {

enum class RecordId : std::uint16_t {
    backup = 0x0040,
    blank = 0x0201,
    bof = 0x0809,
    bookBool = 0x00DA,
    boundSheet = 0x0085,
    calcCount = 0x000C,
    calcDelta = 0x0010,
    calcIter = 0x0011,
    calcMode = 0x000D,
    calcPrecision = 0x000E,
    calcRefMode = 0x000F,
    calcSaveRecalc = 0x005F,
    codePage = 0x0042,
    colInfo = 0x007D,
    continued = 0x003C,
    country = 0x008C,
    date1904 = 0x0022,
    dbCell = 0x00D7,
    defaultRowHeight = 0x0225,
    defColWidth = 0x0055,
    dimensions = 0x0200,
    dsf = 0x0161,
    eof = 0x000A,
    extSst = 0x00FF,
    font = 0x0031,
    footer = 0x0015,
    format = 0x041E,
    gridSet = 0x0082,
    guts = 0x0080,
    hCenter = 0x0083,
    header = 0x0014,
    hideObj = 0x008D,
    index = 0x020B,
    interfaceEnd = 0x00E2,
    interfaceHdr = 0x00E1,
    labelSst = 0x00FD,
    mergeCells = 0x00E5,
    number = 0x0203,
    password = 0x0013,
    printGrid = 0x002B,
    printRowCol = 0x002A,
    prot4Rev = 0x01AF,
    prot4RevPass = 0x01BC,
    protect = 0x0012,
    refreshAll = 0x01B7,
    row = 0x0208,
    rrTabId = 0x013D,
    selection = 0x001D,
    setup = 0x00A1,
    sst = 0x00FC,
    style = 0x0293,
    usesElfs = 0x0160,
    vCenter = 0x0084,
    window1 = 0x003D,
    window2 = 0x023E,
    winProtect = 0x0019,
    writeAccess = 0x005C,
    wsBool = 0x0081,
    xf = 0x00E0,
};

/// fHighByte, before the letters of a text: each has 16 bits.
inline constexpr unsigned wideLetters = 1;

/// A record whose body is the same in every file.
struct WordRecord {
    RecordId id;
    std::vector<std::uint16_t> words;
};

class RecordStream {
public:
    static constexpr std::size_t headerSize = 4;
    static constexpr std::size_t largestBody = 8224;

    /// A body is at most as long as largestBody.
    void add(RecordId id, const LittleEndian& body) {
        stream_.word(static_cast<std::uint16_t>(id)).word(body.size()).raw(body.bytes());
    }

    void add(const WordRecord& record) {
        LittleEndian body;
        for (const std::uint16_t word : record.words)
            body.word(word);
        add(record.id, body);
    }

    /// Where the next record begins.
    std::size_t position() const { return stream_.size(); }

    /// Writes over four bytes at a position, when it is known what belongs there.
    void overwrite(std::size_t position, std::size_t value) { stream_.overwrite(position, value); }

    const std::string& bytes() const { return stream_.bytes(); }

private:
    LittleEndian stream_;
};

}  // namespace lorvane
