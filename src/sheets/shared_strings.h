// The texts of the cells of a BIFF8 workbook: each one stands once, and cells name it by its number.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "sheets/biff8_records.h"

namespace lorvane {

class SharedStrings {
public:
    /// Notes the text of a cell.
    void add(const std::string& text);

    /// The number of a text that was noted.
    std::size_t numberOf(const std::string& text) const { return numbers_.at(text); }

    /// Writes the records SST, with as many CONTINUE as it needs, and EXTSST.
    void write(RecordStream& stream) const;

private:
    std::map<std::string, std::size_t> numbers_;
    std::vector<std::u16string> texts_;
    std::size_t cells_ = 0;
};

}  // namespace lorvane
