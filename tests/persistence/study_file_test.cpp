// Files that are no study file: told in one sentence with file, row and column, and nothing half-read.
#include "persistence/study_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "app/application.h"
#include "file_bench.h"
#include "persistence/scenario_cells.h"
#include "support/test_platform.h"

namespace lorvane {
namespace {

class StudyFile : public ::testing::Test {
protected:
    StudyFile() {
        application.load(std::vector<Assignment>{{"txtd", 0.5}, {"txtName(1)", std::string("Patients")}});
        application.save("good");
    }

    // The message of opening a file with this content; the study on screen must stay as it was.
    std::string openingOf(std::string content) {
        files.files["bad"] = std::move(content);
        const Study before = application.design().study();
        try {
            application.open("bad");
        } catch (const FileProblem& problem) {
            const Study& after = application.design().study();
            EXPECT_EQ(after.txtd, before.txtd);
            EXPECT_EQ(after.txtName(1), before.txtName(1));
            EXPECT_EQ(application.session().currentFile(), "good");
            return problem.what();
        }
        return "opened";
    }

    std::string withCell(std::size_t row, std::size_t column, const std::string& text) {
        ScenarioGrid grid = LoadGrid(files, "good");
        setCell(grid, row, column, text);
        return studyFileText(grid);
    }

    // The good file with another name in one row of its only scenario.
    std::string withName(std::size_t row, const std::string& name) const {
        std::string text = files.files.at("good");
        std::size_t line = 0;
        for (std::size_t i = 0; i < row; ++i)
            line = text.find('\n', line) + 1;
        return text.replace(line, SystemScenarioName.size(), name);
    }

    TestPlatform outside;
    MemoryFileStore& files = outside.files;
    ScriptedDialogs& messages = outside.messages;
    Application application{outside.platform()};
};

TEST_F(StudyFile, WrongCellsAreNamed) {
    struct Case {
        std::size_t row, column;
        const char* text;
        const char* problem;
    };
    for (const Case& c :
         {Case{5, 2, "7", "row 6, column 3, one of 2, 3, 4 belongs here"},
          {8, 2, "half", "row 9, column 3, a number belongs here"},
          {8, 2, "0,13", "row 9, column 3, a number with a point belongs here, as 0.13 for 0,13"},
          {8, 2, "1,000,000", "row 9, column 3, a number belongs here"},
          {8, 2, "", "row 9, column 3, a number belongs here"},
          {2, 3, "1e999", "row 3, column 4, a number belongs here"},
          {6, 2, "1.5", "row 7, column 3, one of 1, 2 belongs here"},
          {31, 2, "maybe", "row 32, column 3, True or False belongs here"},
          {39, 2, "", "row 40, column 3, a number belongs here"},
          {41, 2, "0", "row 42, column 3, a number above 0 belongs here"},
          {47, 2, "3000000000", "row 48, column 3, a whole number belongs here"},
          {51, 2, "4", "row 52, column 3, a level of the study belongs here"},
          {62, 2, "3", "row 63, column 3, one of 1, 2 belongs here"},
          {62, 2, "2", "row 64, column 3, a number belongs here"},
          {65, 3, "0.5", "row 66, column 4, a limit of risks belongs here only where RangeMode is 2"},
          {1, 23, "high", "row 2, column 24, a number belongs here"},
          {77, 0, "Other", "row 78, column 1, the scenario has fewer than 100 rows"}}) {
        const std::string message =
            openingOf(c.column == 0 ? withName(c.row, c.text) : withCell(c.row, c.column, c.text));
        EXPECT_EQ(message, "The file \"bad\" is not a study file that can be opened: at " +
                               std::string(c.problem) + ".");
    }
}

TEST_F(StudyFile, HostileContentIsRefused) {
    const std::string good = files.files["good"];
    const std::string header = good.substr(0, good.find('\n') + 1);
    const std::string blankLine = std::string(SystemScenarioName) + std::string(29, ',') + "\r\n";
    std::string nul = good;
    nul[nul.size() / 2] = '\0';
    std::string longCell = good;
    longCell.insert(longCell.find("Patients"), std::string(100000, 'x'));
    std::string manyRows = header;
    for (int i = 0; i < 1000101; ++i)
        manyRows += "x,,,,,,,,,,,,,,,,,,,,,,,,,,,,,\n";
    std::string semicolons = good;
    std::replace(semicolons.begin(), semicolons.end(), ',', ';');
    const std::pair<const char*, std::string> table[] = {
        {"was saved by a spreadsheet with semicolons; save it with commas.", semicolons},
        {"is empty", ""},
        {"row 1", "PK\x03\x04 not a table"},
        {"holds no scenario", header},
        {"middle of a scenario", good.substr(0, good.size() - 2 * blankLine.size())},
        {"row", good.substr(0, good.size() / 2)},
        {"row", "\xEF\xBB\xBF\xEF\xBB\xBF" + good.substr(0, 500)},
        {"NUL byte", nul},
        {"longer than 32767 bytes", longCell},
        {"row 1000102, the table has more than 1000101 rows", manyRows},
        {"no closing quote", good + "\"" + good}};
    for (const auto& [part, content] : table) {
        const std::string message = openingOf(content);
        EXPECT_NE(message.find(part), std::string::npos) << message;
        EXPECT_NE(message.find("\"bad\""), std::string::npos) << message;
    }
}

TEST_F(StudyFile, EveryCutIsRefusedOrWhole) {
    const std::string good = files.files["good"];
    for (std::size_t length = 1; length < good.size() - 2; length += 7)
        EXPECT_NE(openingOf(good.substr(0, length)), "opened") << length;
}

TEST_F(StudyFile, OtherLineEndsAndLettersOpenAsTheSameStudy) {
    std::string text = files.files["good"];
    std::erase(text, '\r');
    files.files["unix"] = "\xEF\xBB\xBF" + text;
    application.load(std::vector<Assignment>{});
    application.open("unix");
    EXPECT_EQ(application.design().study().txtd, 0.5);
    EXPECT_EQ(application.design().study().txtName(1), "Patients");
}

TEST_F(StudyFile, AFileWithoutTheScreenGivesItsFirstScenario) {
    ScenarioGrid grid = LoadGrid(files, "good");
    ReplaceName(grid, 0, "First", "");
    SaveGrid(files, "scenarios", grid);
    application.load(std::vector<Assignment>{});
    application.open("scenarios");
    EXPECT_EQ(application.design().study().txtd, 0.5);
    ASSERT_EQ(application.scenarios().size(), 1u);
    EXPECT_EQ(application.scenarios()[0].name, "First");
}

TEST_F(StudyFile, SavingTwiceKeepsOneBlockOfTheScreen) {
    application.save("good");
    application.save("good");
    EXPECT_EQ(LoadGrid(files, "good").scenarioCount(), 1u);
    EXPECT_FALSE(application.session().isDirty());
    EXPECT_TRUE(application.scenarios().empty());
}

TEST_F(StudyFile, AFailedSaveKeepsTheOldFileAndTheDirtyFlag) {
    const std::string old = files.files["good"];
    application.set(std::vector<Assignment>{{"txtd", 0.7}});
    files.full = true;
    EXPECT_THROW(application.save("good"), FileProblem);
    EXPECT_EQ(files.files["good"], old);
    EXPECT_TRUE(application.session().isDirty());
}

}  // namespace
}  // namespace lorvane
