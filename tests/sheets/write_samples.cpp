// Writes the tables of the tests into a folder, in every format, under the locale of the system as a program
// with windows runs: write_samples FOLDER. Compound files are there too, whose names tell how many x they
// hold.
#include <clocale>
#include <fstream>

#include "sheets/compound_file.h"
#include "sheets/sample_sheets.h"
#include "sheets/sheet_files.h"

using namespace lorvane;

int main(int, char** arguments) {
    if (!std::setlocale(LC_ALL, ""))
        return 1;
    const auto write = [&](const std::string& name, const std::string& bytes) {
        std::ofstream(arguments[1] + ("/" + name), std::ios::binary) << bytes;
    };
    SheetFiles files;
    for (const auto& [name, sheet] : {std::pair("sample", sampleSheet()), std::pair("wide", wideSheet())}) {
        write(name + std::string(".xls"), files.write(sheet, SheetFormats::xls));
        write(name + std::string(".xlsx"), files.write(sheet, SheetFormats::xlsx));
        write(name + std::string(".csv"), files.write(sheet, SheetFormats::csv));
    }
    // The shortest, full sectors, one sector of the FAT and two, and as much as a file takes.
    constexpr std::size_t lastOfOneFat = 126 * 512;
    for (const std::size_t size : {std::size_t{0}, std::size_t{4096}, std::size_t{4097}, lastOfOneFat,
                                   lastOfOneFat + 1, largestCompoundStream})
        write(std::to_string(size) + ".stream", compoundFile(u"Workbook", std::string(size, 'x')));
}
