// Writing a compound file. After the header stand the sectors of the stream, one of the directory, and those
// of the FAT (file allocation table), which tells for each sector the one that follows it.
#include "sheets/compound_file.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>

#include "sheets/little_endian.h"

namespace lorvane {

namespace {

constexpr std::size_t sectorSize = 512;
constexpr std::size_t entriesOfSector = sectorSize / 4;
constexpr std::size_t fatSectorsOfHeader = 109;
constexpr std::size_t smallestStream = 4096;  // shorter ones would go into sectors of 64 bytes
constexpr std::size_t directorySectors = 1;

// Entries of the FAT and of lists of sectors.
constexpr std::uint32_t freeSector = 0xFFFFFFFF;
constexpr std::uint32_t endOfChain = 0xFFFFFFFE;
constexpr std::uint32_t fatSector = 0xFFFFFFFD;

// Directory entries: their kinds and colours in the tree, and the number that stands for none.
constexpr unsigned unusedEntry = 0;
constexpr unsigned streamEntry = 2;
constexpr unsigned rootEntry = 5;
constexpr unsigned black = 1;
constexpr std::uint32_t noEntry = 0xFFFFFFFF;
constexpr std::size_t nameSize = 64;
constexpr std::size_t classAndTimesSize = 36;  // class, state bits, times of creation and change: none here
constexpr std::size_t entriesOfDirectory = directorySectors * sectorSize / 128;

constexpr std::string_view signature = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
constexpr std::size_t classEnd = 24;
constexpr unsigned minorVersion = 0x003E;
constexpr unsigned majorVersion = 3;
constexpr unsigned lowestByteFirst = 0xFFFE;
constexpr unsigned sectorShift = 9;
constexpr unsigned miniSectorShift = 6;
constexpr std::size_t reservedEnd = 40;

constexpr std::size_t rounded(std::size_t value, std::size_t step) { return (value + step - 1) / step; }

struct Sectors {
    explicit Sectors(std::size_t streamSize)
        : stream(rounded(streamSize, sectorSize)),
          // Every sector of the FAT also needs an entry of its own.
          fat(rounded(stream + directorySectors, entriesOfSector - 1)) {}

    std::size_t directoryStart() const { return stream; }
    std::size_t fatStart() const { return stream + directorySectors; }

    std::size_t stream;
    std::size_t fat;
};

void addHeader(LittleEndian& file, const Sectors& sectors) {
    file.raw(signature).padTo(classEnd);
    file.word(minorVersion).word(majorVersion).word(lowestByteFirst);
    file.word(sectorShift).word(miniSectorShift).padTo(reservedEnd);
    file.dword(0);  // directory sectors are not counted in version 3
    file.dword(sectors.fat).dword(sectors.directoryStart());
    file.dword(0);  // no transactions
    file.dword(smallestStream);
    file.dword(endOfChain).dword(0);  // no mini FAT
    file.dword(endOfChain).dword(0);  // no further list of the FAT's sectors
    for (std::size_t i = 0; i < fatSectorsOfHeader; ++i)
        file.dword(i < sectors.fat ? sectors.fatStart() + i : freeSector);
}

struct DirectoryEntry {
    std::u16string_view name;
    unsigned kind;
    std::uint32_t child;
    std::size_t start;
    std::size_t size;
};

void addEntry(LittleEndian& file, const DirectoryEntry& entry) {
    const std::size_t nameBytes = entry.kind == unusedEntry ? 0 : 2 * (entry.name.size() + 1);
    const std::size_t nameEnd = file.size() + nameSize;
    file.text(entry.name).padTo(nameEnd).word(nameBytes);
    file.byte(entry.kind).byte(entry.kind == unusedEntry ? 0 : black);
    file.dword(noEntry).dword(noEntry).dword(entry.child);
    file.padTo(file.size() + classAndTimesSize);
    file.dword(entry.start).dword(entry.size).dword(0);
}

void addDirectory(LittleEndian& file, std::u16string_view name, std::size_t streamSize) {
    addEntry(file, {u"Root Entry", rootEntry, 1, endOfChain, 0});
    addEntry(file, {name, streamEntry, noEntry, 0, streamSize});
    for (std::size_t i = 2; i < entriesOfDirectory; ++i)
        addEntry(file, {u"", unusedEntry, noEntry, 0, 0});
}

void addChain(LittleEndian& file, std::size_t start, std::size_t sectors) {
    for (std::size_t i = 1; i < sectors; ++i)
        file.dword(start + i);
    file.dword(endOfChain);
}

void addFat(LittleEndian& file, const Sectors& sectors) {
    const std::size_t end = file.size() + sectors.fat * sectorSize;
    addChain(file, 0, sectors.stream);
    addChain(file, sectors.directoryStart(), directorySectors);
    for (std::size_t i = 0; i < sectors.fat; ++i)
        file.dword(fatSector);
    while (file.size() < end)
        file.dword(freeSector);
}

}  // namespace

const std::size_t largestCompoundStream =
    (fatSectorsOfHeader * (entriesOfSector - 1) - directorySectors) * sectorSize;

std::string compoundFile(std::u16string_view name, std::string_view stream) {
    if (stream.size() > largestCompoundStream)
        throw std::length_error("compoundFile");
    const std::size_t size = std::max(stream.size(), smallestStream);
    const Sectors sectors(size);
    LittleEndian file;
    addHeader(file, sectors);
    file.raw(stream).padTo((1 + sectors.stream) * sectorSize);
    addDirectory(file, name, size);
    addFat(file, sectors);
    return file.bytes();
}

}  // namespace lorvane
