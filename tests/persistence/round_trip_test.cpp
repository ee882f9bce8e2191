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

}  // namespace
}  // namespace lorvane
