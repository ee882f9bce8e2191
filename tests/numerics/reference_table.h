// Reads the tables of reference values in tests/data: a heading, then rows of numbers and commas.
#pragma once

#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace lorvane::test {

/// The rows of tests/data/`name`. strtod rather than stod: the smallest tails are below the least
/// normal number.
inline std::vector<std::vector<double>> readReferenceTable(const std::string& name) {
    std::ifstream file(std::string(LORVANE_TEST_DATA) + "/" + name);
    std::string line;
    if (!std::getline(file, line)) {
        throw std::runtime_error("cannot read " + name);
    }
    std::vector<std::vector<double>> rows;
    while (std::getline(file, line)) {
        std::vector<double> row;
        const char* position = line.c_str();
        for (char* end = nullptr; *position != '\0'; position = *end == ',' ? end + 1 : end) {
            row.push_back(std::strtod(position, &end));
            if (end == position) {
                throw std::runtime_error("not a number in " + name + ": " + line);
            }
        }
        rows.push_back(row);
    }
    return rows;
}

}  // namespace lorvane::test
