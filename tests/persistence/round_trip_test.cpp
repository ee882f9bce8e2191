// A saved and reopened study is the same study, cell for cell and name for name.
#include <gtest/gtest.h>

#include "file_bench.h"
#include "support/random_study.h"
#include "support/test_platform.h"

namespace lorvane {
namespace {

TEST(RoundTrip, RandomStudiesComeBackAsTheyWere) {
    TestPlatform outside;
    MemoryFileStore& files = outside.files;
    Application application(outside.platform());
    RandomStudies random(20260101);
    int withPower = 0;
    for (int i = 0; i < 3000; ++i) {
        application.load(random.next());
        application.save("study");
        // A second save starts from the same screen as the reopened one.
        const std::string first = files.files["study"];
        const double power = application.design().study().result.txtPower;
        withPower += hasPower(application.session());
        application.load(std::vector<Assignment>{});
        application.open("study");
        ASSERT_EQ(application.design().study().result.txtPower, hasPower(application.session()) ? power : 0);
        application.save("study");
        ASSERT_EQ(files.files["study"], first);
    }
    EXPECT_GT(withPower, 1000);
}

TEST(RoundTrip, TheScreenComesBackWithTheStudy) {
    TestPlatform outside;
    Application saved(outside.platform());
    RandomStudies random(77);
    for (int i = 0; i < 200; ++i) {
        saved.load(random.next());
        saved.save("study");
        Application opened(outside.platform());
        opened.open("study");
        ASSERT_EQ(stateOf(opened), stateOf(saved));
    }
}

TEST(RoundTrip, ScenariosKeepTheirOrderAndSummary) {
    TestPlatform outside;
    MemoryFileStore& files = outside.files;
    Application application(outside.platform());
    application.save("study");
    ScenarioGrid grid = LoadGrid(files, "study");
    Scenario copy = grid.scenario(0);
    copy.name = "Copy";
    copy.block.put(1, descriptionColumn, "as it was");
    copy.block.put(1, powerColumn, "812.5");
    copy.block.put(1, costColumn, "1234567");
    grid.add(std::move(copy));
    SaveGrid(files, "study", grid);
    application.open("study");
    ASSERT_EQ(application.scenarios().size(), 1u);
    const ScenarioLine line = application.scenarios()[0];
    EXPECT_EQ(line.name, "Copy");
    EXPECT_EQ(line.description, "as it was");
    EXPECT_EQ(line.power, "0.813");
    EXPECT_EQ(line.cost, "1,234,567");
    EXPECT_NO_THROW(application.restoreScenario("Copy"));
    EXPECT_THROW(application.restoreScenario("Kopy"), UseProblem);
}

// Limits that follow from spans are in no file, so that other files stay as they were.
TEST(RoundTrip, EnteredLimitsOfRisksComeBack) {
    TestPlatform outside;
    Application application(outside.platform());
    const auto power = [](const Application& from) { return from.design().study().result.txtPower; };
    const auto restore = [&](std::size_t row) {
        application.select("frmScenarios.vsNames", {row});
        application.tool("Restore scenario");
    };
    application.load(std::vector<Assignment>{{"DataType", 2.0},
                                             {"txtPrev", 0.5},
                                             {"txtOR", 3.0},
                                             {"txtNT(2)", 20.0},
                                             {"txtNC(2)", 20.0},
                                             {"ICC Metric", 2.0},
                                             {"txtMRange(2)", 0.3}});
    application.tool("Add scenario");
    application.save("spans");
    EXPECT_EQ(LoadGrid(outside.files, "spans").block(0).text(62, 1), "");
    const double ofSpans = power(application);
    application.set(std::vector<Assignment>{{"RangeMode", 2.0}, {"txtLL(2)", 0.3}, {"txtUL(2)", 0.7}});
    const double ofLimits = power(application);
    ASSERT_TRUE(ofLimits > 0 && ofLimits != ofSpans) << ofLimits;
    application.tool("Add scenario");
    application.save("limits");
    const ScenarioGrid grid = LoadGrid(outside.files, "limits");
    const ScenarioBlock& block = grid.block(1);
    std::string text;
    for (const auto& [k, column] : {std::pair{62, 1}, {62, 2}, {63, 1}, {65, 1}, {65, 2}, {65, 3}, {66, 1}})
        text += std::string(block.text(static_cast<std::size_t>(k), static_cast<std::size_t>(column))) + "|";
    EXPECT_EQ(text, "RangeMode|2|Limits 4|Limits 2|0.3|0.7||");
    Application opened(outside.platform());
    opened.open("limits");
    EXPECT_EQ(power(opened), ofLimits);
    restore(1);
    EXPECT_EQ(power(application), ofSpans);
    restore(2);
    EXPECT_EQ(power(application), ofLimits);
}

}  // namespace
}  // namespace lorvane
