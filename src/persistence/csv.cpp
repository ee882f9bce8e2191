// Comma-separated text.
#include "persistence/csv.h"

#include <utility>

namespace lorvane {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

// Number of bytes of the UTF-8 letter at the head of the text; 0 when there is none.
std::size_t letterLength(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char head = byte(0);
    if (head < 0x80)
        return 1;
    const std::size_t length = head >= 0xF0 ? 4 : head >= 0xE0 ? 3 : 2;
    if (head < 0xC2 || head > 0xF4 || text.size() < length)
        return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80)
            return 0;
    }
    const bool overlong = (head == 0xE0 && byte(1) < 0xA0) || (head == 0xF0 && byte(1) < 0x90);
    const bool surrogate = head == 0xED && byte(1) > 0x9F;
    const bool beyond = head == 0xF4 && byte(1) > 0x8F;
    return overlong || surrogate || beyond ? 0 : length;
}

class Reader {
public:
    Reader(std::string_view text, const CsvLimits& limits) : rest_(text), limits_(limits) {
        if (rest_.starts_with(byteOrderMark))
            rest_.remove_prefix(byteOrderMark.size());
    }

    std::vector<CsvRow> read() {
        std::vector<CsvRow> rows;
        while (!rest_.empty()) {
            ++row_;
            if (rows.size() == limits_.rows)
                fail(0, "the table has more than " + std::to_string(limits_.rows) + " rows");
            rows.push_back(readRow());
        }
        return rows;
    }

private:
    [[noreturn]] void fail(std::size_t column, const std::string& why) const {
        throw TableProblem(row_, column, why);
    }

    CsvRow readRow() {
        CsvRow row;
        std::size_t cells = 0;
        do {
            ++cells;
            column_ = cells;
            std::string cell = readCell();
            if (cells > limits_.columns)
                fail(cells, "the row has more than " + std::to_string(limits_.columns) + " cells");
            if (!cell.empty()) {
                row.resize(cells);
                row.back() = std::move(cell);
            }
        } while (take(','));
        endLine();
        if (cells != limits_.columns)
            fail(0, "the row has " + std::to_string(cells) + " cells where " +
                        std::to_string(limits_.columns) + " belong");
        return row;
    }

    bool take(char wanted) {
        if (rest_.empty() || rest_.front() != wanted)
            return false;
        rest_.remove_prefix(1);
        return true;
    }

    void endLine() {
        const bool carriageReturn = take('\r');
        const bool lineFeed = take('\n');
        if (!carriageReturn && !lineFeed && !rest_.empty())
            fail(column_, "a quoted cell goes on after its closing quote");
    }

    std::string readCell() { return take('"') ? readQuoted() : readPlain(); }

    std::string readPlain() {
        std::string cell;
        while (!rest_.empty() && rest_.front() != ',' && rest_.front() != '\r' && rest_.front() != '\n') {
            if (rest_.front() == '"')
                fail(column_, "a quote stands inside a cell that is not quoted");
            takeLetter(cell);
        }
        return cell;
    }

    std::string readQuoted() {
        std::string cell;
        while (!rest_.empty()) {
            if (take('"')) {
                if (!take('"'))
                    return cell;
                cell += '"';
            } else {
                takeLetter(cell);
            }
        }
        fail(column_, "a quoted cell has no closing quote");
    }

    void takeLetter(std::string& cell) {
        const std::size_t length = letterLength(rest_);
        if (length == 0)
            fail(column_, "the cell is not UTF-8 text");
        if (rest_.front() == '\0')
            fail(column_, "the cell holds a NUL byte");
        cell.append(rest_.substr(0, length));
        if (cell.size() > limits_.cellBytes)
            fail(column_, "the cell is longer than " + std::to_string(limits_.cellBytes) + " bytes");
        rest_.remove_prefix(length);
    }

    std::string_view rest_;
    CsvLimits limits_;
    std::size_t row_ = 0;
    std::size_t column_ = 0;
};

void appendCell(std::string& text, const std::string& cell) {
    if (cell.find_first_of(",\"\r\n") == std::string::npos) {
        text += cell;
        return;
    }
    text += '"';
    for (const char c : cell) {
        if (c == '"')
            text += '"';
        text += c;
    }
    text += '"';
}

}  // namespace

std::vector<CsvRow> readCsv(std::string_view text, const CsvLimits& limits) {
    return Reader(text, limits).read();
}

void appendCsvLine(std::string& text, const CsvRow& row, std::size_t columns) {
    for (std::size_t column = 0; column < columns; ++column) {
        if (column > 0)
            text += ',';
        if (column < row.size())
            appendCell(text, row[column]);
    }
    text += "\r\n";
}

}  // namespace lorvane
