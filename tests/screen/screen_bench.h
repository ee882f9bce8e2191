// The whole program on scripted parts of a platform, driven and read by the names of its controls.
#pragma once

#include <functional>

#include "app/application.h"
#include "base/arithmetic_fault.h"
#include "base/number_text.h"
#include "support/memory_file_store.h"
#include "validation/study_bench.h"

namespace lorvane {

using Texts = std::vector<std::string>;

/// The rows of a table of this folder: cells between "|", without the blanks around them.
inline std::vector<Texts> rowsOf(const std::string& table) {
    std::ifstream lines(LORVANE_TEST_DATA "/../screen/tables/" + table);
    EXPECT_TRUE(lines) << table;
    std::vector<Texts> rows;
    for (std::string line, cell; std::getline(lines, line);) {
        if (line[0] == '#')
            continue;
        std::istringstream cells(line + "|");
        rows.emplace_back();
        while (std::getline(cells, cell, '|'))
            rows.back().emplace_back(trimmed(cell));
    }
    return rows;
}

/// Answers from a queue; a test can look at the screen while a message stands.
struct WatchedMessageBoxes final : MessageBoxes {
    ScriptedDialogs script;
    std::function<void()> whileShown = [] {};

    Answer show(const MessageBox& message) override {
        whileShown();
        return script.show(message);
    }
};

struct ScreenTest : ::testing::Test {
    /// Values as from a file: "NumLevels=3 ICC_Metric=1"; a "_" is a blank of the name.
    void load(const std::string& fields) {
        std::vector<Assignment> values;
        StudyBench::forEach(fields, [&](auto name, double value) { values.push_back({name, value}); });
        app.load(values);
    }

    /// A value as a text: a number in its shortest form, "true", a caption.
    std::string see(const std::string& name) const {
        const ControlValue value = app.names().read(name).value_or("no " + name);
        if (const double* number = std::get_if<double>(&value))
            return shortestText(*number);
        const bool* flag = std::get_if<bool>(&value);
        return flag == nullptr ? std::get<std::string>(value) : *flag ? "true" : "false";
    }

    void expect(const std::vector<std::pair<std::string, std::string>>& wanted) const {
        for (const auto& [name, text] : wanted)
            EXPECT_EQ(see(name), text) << name;
    }

    NumericDistributionLibrary library;
    FixedLocale locale;
    MemoryFileStore files;
    WatchedMessageBoxes messages;
    MemorySettings settings;
    Application app{{library, locale, files, messages, messages.script, settings, "/program"}};
};

}  // namespace lorvane
