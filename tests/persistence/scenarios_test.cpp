// Scenarios as a whole: what is restored is what was kept, also when names do not tell scenarios apart.
#include <gtest/gtest.h>

#include "file_bench.h"
#include "support/random_study.h"
#include "support/test_platform.h"

namespace lorvane {
namespace {

// The list of scenarios goes on whichever of them is restored, a dialog keeps what it was opened with, and
// the status line tells what was done.
bool isOfSession(const std::string& name) {
    return name == "ScenarioNumber" || name.starts_with("frmScenarios") ||
           name.starts_with("frmLimits.txt") || name.starts_with("pnlStatus");
}

std::string firstDifference(const Application& application, const State& before) {
    const State now = stateOf(application);
    for (std::size_t i = 0; i < now.size(); ++i) {
        const std::string& name = studyNames(application)[i];
        if (now[i] != before[i] && !isOfSession(name))
            return name;
    }
    return "";
}

class Scenarios : public ::testing::Test {
protected:
    const Grid::Row& row(std::size_t number) const { return app.scenarioWindow().vsNames().rows[number]; }
    std::size_t count() const { return app.scenarioWindow().vsNames().rows.size() - 1; }
    void select(std::vector<std::size_t> rows) { app.select("frmScenarios.vsNames", rows); }
    void press(int button) { app.click("frmScenarios.cmdScenarios(" + std::to_string(button) + ")"); }
    void name(const std::string& name) {
        app.type("frmScenariosName.txtScenariosName", name);
        app.click("frmScenariosName.cmdScenarioNameOk(0)");
    }
    double d() const { return app.design().study().txtd; }

    // A file with scenarios of these names; the n-th has a d of n tenths.
    void openWithNames(const std::vector<std::string>& names) {
        for (std::size_t i = 0; i < names.size(); ++i) {
            app.set(std::vector<Assignment>{{"txtd", 0.1 * static_cast<double>(i + 1)}});
            app.tool("Add scenario");
        }
        app.save("named");
        ScenarioGrid grid = LoadGrid(outside.files, "named");
        for (std::size_t i = 0; i < names.size(); ++i)
            ReplaceName(grid, i, names[i], "");
        SaveGrid(outside.files, "named", grid);
        app.open("named");
    }

    TestPlatform outside;
    Application app{outside.platform()};
};

TEST_F(Scenarios, RandomStudiesComeBackFromTheFileScreenForScreen) {
    RandomStudies random(20261123);
    Application again(outside.platform());
    for (int study = 0; study < 2000; ++study) {
        app.load(random.next());
        std::vector<State> kept;
        for (int scenario = random.whole(1, 5); scenario > 0; --scenario) {
            app.tool("Add scenario");
            kept.push_back(stateOf(app));
            app.set(
                std::vector<Assignment>{{"txtd", random.real(-1, 1)}, {"txtAlpha", random.real(0.01, 0.2)}});
        }
        app.save("study");
        const std::string text = outside.files.files["study"];
        const State last = stateOf(app);
        again.open("study");
        ASSERT_EQ(firstDifference(again, last), "");
        ASSERT_EQ(again.scenarioWindow().vsNames().rows, app.scenarioWindow().vsNames().rows);
        again.save("copy");
        ASSERT_EQ(outside.files.files["copy"], text);
        for (std::size_t row = 1; row <= kept.size(); ++row) {
            again.select("frmScenarios.vsNames", {row});
            again.tool("Restore scenario");
            ASSERT_EQ(firstDifference(again, kept[row - 1]), "") << "scenario " << row;
        }
    }
}

TEST_F(Scenarios, NamesThatDoNotDifferAreToldApartByPosition) {
    openWithNames({"Same", "same", "Same", "Other"});
    ASSERT_EQ(count(), 4u);
    select({3});
    press(1);
    EXPECT_EQ(d(), 0.1 * 3);
    press(3);
    name("Third");
    EXPECT_EQ(row(1)[1] + row(2)[1] + row(3)[1], "SamesameThird");
    select({1});
    press(2);
    EXPECT_EQ(row(1)[1] + row(2)[1] + row(3)[1], "sameThirdOther");
    app.save("named");
    EXPECT_EQ(LoadGrid(outside.files, "named").scenarioCount(), 4u);
    select({3});
    press(1);
    EXPECT_EQ(d(), 0.1 * 4);
}

TEST_F(Scenarios, ADialogForANameClosesWhenItsRowGoes) {
    openWithNames({"One", "Two"});
    select({2});
    press(3);
    press(2);
    EXPECT_EQ(app.design().windows().state(WindowId::frmScenariosName), WindowStates::notLoaded);
    name("Lost");
    EXPECT_EQ(count(), 1u);
    EXPECT_EQ(row(1)[1], "One");
}

TEST_F(Scenarios, AGivenNumberIsSkippedAndOddOnesStartAnew) {
    openWithNames({"Scenario 0004", "Scenario 0005"});
    app.tool("Add scenario");
    app.tool("Add scenario");
    EXPECT_EQ(row(3)[1], "Scenario 0003");
    EXPECT_EQ(row(4)[1], "Scenario 0006");
    for (const char* number : {"2147483647", "-7"}) {
        ScenarioGrid grid = LoadGrid(outside.files, "named");
        setCell(grid, grid.rowCount() - ScenarioGrid::blockRows + 46, 2, number);
        SaveGrid(outside.files, "odd", grid);
        app.open("odd");
        app.tool("Add scenario");
        EXPECT_EQ(row(3)[1], "Scenario 0001") << number;
    }
}

TEST_F(Scenarios, EveryChangeOfTheListIsUnsavedWork) {
    openWithNames({"One"});
    const std::function<void()> changes[] = {[&] { press(0); },
                                             [&] {
                                                 press(3);
                                                 name("Another");
                                             },
                                             [&] { press(2); }};
    for (const auto& change : changes) {
        app.save("named");
        select({1});
        EXPECT_FALSE(app.session().isDirty());
        EXPECT_FALSE(app.unsavedStudy().has_value());
        change();
        EXPECT_TRUE(app.session().isDirty());
        EXPECT_TRUE(app.unsavedStudy().has_value());
    }
    EXPECT_EQ(count(), 1u);
}

TEST_F(Scenarios, ASaveLeavesTheSelectionAndANameThatIsBeingTyped) {
    openWithNames({"One", "Two"});
    select({2});
    press(3);
    app.type("frmScenariosName.txtScenariosName", "Typed");
    app.save("named");
    EXPECT_EQ(app.scenarioWindow().vsNames().selected, std::vector<std::size_t>{2});
    EXPECT_TRUE(app.scenarioWindow().nameIsOpen());
    app.tool("Add scenario");
    app.click("frmScenariosName.cmdScenarioNameOk(0)");
    EXPECT_EQ(row(2)[1], "Typed") << "a new scenario leaves the dialog, too";
}

TEST_F(Scenarios, NoMoreThanAFileHolds) {
    app.tool("Add scenario");
    app.save("one");
    const std::string text = outside.files.files["one"];
    const std::size_t header = text.find('\n') + 1;
    const std::size_t block = text.find("System ABCDE") - header;
    std::string full = text.substr(0, header);
    for (std::size_t i = 0; i < ScenarioGrid::largestNumberOfScenarios; ++i)
        full += text.substr(header, block);
    outside.files.files["full"] = full + text.substr(header + block);
    app.open("full");
    app.tool("Add scenario");
    EXPECT_EQ(count(), ScenarioGrid::largestNumberOfScenarios);
    ASSERT_EQ(outside.messages.take().size(), 1u);
    outside.files.files["over"] = full + text.substr(header, block);
    try {
        app.open("over");
        FAIL() << "opened";
    } catch (const FileProblem& problem) {
        EXPECT_NE(std::string(problem.what()).find("more than 10000 scenarios"), std::string::npos);
    }
}

}  // namespace
}  // namespace lorvane
