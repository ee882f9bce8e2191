// Tables that the tests write.
#pragma once

#include <string>

#include "platform/sheet.h"

namespace lorvane {

inline SheetCell number(double value, int decimals = 0, bool thousands = false) {
    return {value, decimals, thousands, false};
}

inline SheetCell text(std::string value, bool heading = false) {
    return {std::move(value), 0, false, heading};
}

/// A small table with all that a cell can be.
inline Sheet sampleSheet() {
    Sheet sheet{"Power 50% & more",
                {{text("Läns-kurs \"α\", β", true), text("Table of Power"), text("under the band")},
                 {text("two\nlines", true), number(10), number(20), number(-30.25, 2)},
                 {text("学校 😀"), number(0.8765432, 4), number(1.0 / 3, 4), number(-0.5, 1)},
                 {},
                 {text("=1+2"), text("-12"), text("@home"), text("")},
                 {text("Cost"), number(1234567.8, 0, true), number(-9876.5, 2, true), number(0)}},
                {{0, 1, 3}, {3, 2, 2}}};
    return sheet;
}

/// As many columns as an .xls file has, and texts that need several records; some of them are very long.
inline Sheet wideSheet() {
    Sheet sheet{"Wide", {}, {{0, 1, 255}}};
    // Of the record of the first text one byte is left over, which no other text can begin with.
    sheet.rows.push_back({text(std::string(4106, 'C')), text("All of them")});
    for (int row = 1; row < 40; ++row) {
        sheet.rows.push_back(
            {text(std::string(static_cast<std::size_t>(row * 97), 'x') + "é" + std::to_string(row))});
        for (int column = 1; column < 256; ++column)
            sheet.rows.back().push_back(column % 7 == 0 ? text("ж" + std::to_string(row * column))
                                                        : number(row * 1000 + column / 8.0, 3));
    }
    return sheet;
}

}  // namespace lorvane
