#include "persistence/csv.h"

#include <gtest/gtest.h>

namespace lorvane {
namespace {

constexpr CsvLimits small{3, 4, 10};

std::string problemOf(std::string_view text) {
    try {
        readCsv(text, small);
    } catch (const TableProblem& problem) {
        return std::to_string(problem.row()) + ":" + std::to_string(problem.column()) + " " + problem.what();
    }
    return "none";
}

TEST(Csv, ReadsWhatItWrites) {
    const std::vector<CsvRow> rows = {
        {"a", "b", "c"}, {"", "", "x"}, {"comma,", "quote\"", "line\r\nbreak"}, {}};
    std::string text;
    for (const CsvRow& row : rows)
        appendCsvLine(text, row, 3);
    EXPECT_EQ(text, "a,b,c\r\n,,x\r\n\"comma,\",\"quote\"\"\",\"line\r\nbreak\"\r\n,,\r\n");
    EXPECT_EQ(readCsv(text, {3, 4, 20}), rows);
}

TEST(Csv, TakesEveryLineEndAndAByteOrderMark) {
    const std::vector<CsvRow> rows = {{"1", "2", "3"}, {"4", "5", "6"}};
    for (const char* text : {"1,2,3\r\n4,5,6\r\n", "1,2,3\n4,5,6\n", "1,2,3\r4,5,6", "1,2,3\n4,5,6",
                             "\xEF\xBB\xBF\"1\",2,\"3\"\r\n4,5,6\n"})
        EXPECT_EQ(readCsv(text, small), rows) << text;
}

TEST(Csv, TellsThePlaceOfAProblem) {
    EXPECT_EQ(problemOf("1,2\n"), "1:0 the row has 2 cells where 3 belong");
    EXPECT_EQ(problemOf("1,2,3\n1,2,3,4\n"), "2:4 the row has more than 3 cells");
    EXPECT_EQ(problemOf("1,2,3\n1,\"2"), "2:2 a quoted cell has no closing quote");
    EXPECT_EQ(problemOf("1,2,\"3\"x\n"), "1:3 a quoted cell goes on after its closing quote");
    EXPECT_EQ(problemOf("1,2\"2,3\n"), "1:2 a quote stands inside a cell that is not quoted");
    EXPECT_EQ(problemOf(std::string_view("1,\0,3\n", 6)), "1:2 the cell holds a NUL byte");
    EXPECT_EQ(problemOf("1,2,12345678901\n"), "1:3 the cell is longer than 10 bytes");
    EXPECT_EQ(problemOf("1,2,3\n1,2,3\n1,2,3\n1,2,3\n1,2,3\n"), "5:0 the table has more than 4 rows");
}

TEST(Csv, RefusesWhatIsNotUtf8) {
    for (const char* cell :
         {"\xFF", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE2\x82"})
        EXPECT_EQ(problemOf(std::string("1,") + cell + ",3\n"), "1:2 the cell is not UTF-8 text");
    EXPECT_EQ(readCsv("é,€,😀", small)[0], (CsvRow{"é", "€", "😀"}));
}

}  // namespace
}  // namespace lorvane
