// A file that an early version wrote: every cell is read as it was meant then, and written as it was read.
// The file and the table of its values stay as they are.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "base/number_text.h"
#include "file_bench.h"
#include "os/disk_file_store.h"
#include "persistence/csv.h"
#include "support/test_platform.h"

namespace lorvane {
namespace {

using Texts = std::map<std::string, std::string>;

std::string textOf(const FieldValue& value) {
    if (const bool* flag = std::get_if<bool>(&value))
        return *flag ? "True" : "False";
    const std::string* text = std::get_if<std::string>(&value);
    return text != nullptr ? *text : shortestText(std::get<double>(value));
}

// All values and decimals that have a place in every file.
Texts keptIn(const SessionState& state) {
    Texts texts;
    forEachField([&](FieldRef ref) {
        if (ref->place.column > 0 && ref->place.isKept == nullptr)
            texts[ref.name()] = textOf(readField(state, ref));
    });
    for (const Field& field : fieldBook()) {
        if (field.decimalsPlace.column > 0)
            texts[std::string(field.stem) + ".FmtDecDigits"] = std::to_string(decimalsOf(state.study, field));
    }
    return texts;
}

class EveryCell : public ::testing::Test {
protected:
    static std::string fileOf(const char* name) {
        return DiskFileStore().read(LORVANE_TEST_DATA "/" + std::string(name), 1 << 20);
    }

    const std::string text = fileOf("every_cell.Lorvane");
    const ScenarioGrid grid = readStudyText(text, "every_cell.Lorvane");
    // A row a field: its name, and its value in every scenario and on the screen; the scenarios are the head.
    const std::vector<CsvRow> values = readCsv(fileOf("every_cell.csv"), {5, 500, 100});
    TestPlatform outside;
    Application app{outside.platform()};
};

TEST_F(EveryCell, IsReadAsItWasMeant) {
    for (std::size_t scenario = 1; scenario < values[0].size(); ++scenario) {
        SCOPED_TRACE(values[0][scenario]);
        SessionState state;
        RestoreScenario(grid, values[0][scenario], state);
        Texts found = keptIn(state);
        EXPECT_EQ(found.size(), values.size() - 1);
        for (std::size_t row = 1; row < values.size(); ++row)
            EXPECT_EQ(found[values[row][0]], values[row][scenario]) << values[row][0];
    }
}

/// So no cell can be left out, and no two can change places, without being noticed.
TEST_F(EveryCell, TellsOneFieldFromAnotherAndFromANewStudy) {
    Texts fresh = keptIn(app.session().state());
    std::map<CsvRow, std::string> names;
    for (std::size_t row = 1; row < values.size(); ++row) {
        const std::string& name = values[row][0];
        const CsvRow own(values[row].begin() + 1, values[row].end());
        EXPECT_TRUE(names.emplace(own, name).second) << name << " and " << names[own];
        const bool isNew = std::count(own.begin(), own.end(), fresh[name]) == std::ssize(own);
        EXPECT_EQ(isNew, name == "chkMatch(1)") << name << "; the lowest level alone is never blocked";
    }
}

/// The summary of the screen, the last three cells of its first row, is worked out anew.
TEST_F(EveryCell, IsWrittenWhereAnEarlyVersionReadsIt) {
    outside.files.files["early"] = text;
    app.open("early");
    const ScenarioGrid saved = savedTable(app.session());
    ASSERT_EQ(saved.scenarioCount(), grid.scenarioCount());
    for (std::size_t place = 0; place < grid.scenarioCount(); ++place) {
        for (std::size_t k = 1; k <= ScenarioGrid::blockRows; ++k) {
            grid.block(place).forRow(k, [&](std::size_t column, std::string_view cell) {
                if (column < descriptionColumn) {
                    EXPECT_EQ(saved.block(place).text(k, column), cell) << place << ' ' << k << ' ' << column;
                }
            });
        }
    }
}

}  // namespace
}  // namespace lorvane
