// The looks of cells in a BIFF8 workbook: the records FONT, FORMAT, XF and STYLE.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "sheets/biff8_records.h"
#include "sheets/sheet_layout.h"

namespace lorvane {

/// The number of the XF that rows and columns without a look of their own have.
inline constexpr std::size_t defaultCellXf = 15;

class Biff8Looks {
public:
    /// Styles: sorted, each one once.
    explicit Biff8Looks(std::vector<CellStyle> styles) : styles_(std::move(styles)) {}

    /// The number of the XF of a style.
    std::size_t xfOf(const CellStyle& style) const;

    void write(RecordStream& stream) const;

private:
    std::vector<CellStyle> styles_;
};

}  // namespace lorvane
