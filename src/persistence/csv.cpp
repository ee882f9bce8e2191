// Reading comma-separated text.
#include "persistence/csv.h"

#include <utility>

#include "base/utf8.h"

namespace lorvane {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

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

}  // namespace

std::vector<CsvRow> readCsv(std::string_view text, const CsvLimits& limits) {
    return Reader(text, limits).read();
}

}  // namespace lorvane
