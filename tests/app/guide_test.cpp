// The guide: which frames there are for which study, how one goes through them, and that every text can be
// told for every study.
#include "guidance/guide.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "app_bench.h"
#include "guidance/guide_words.h"

namespace lorvane {
namespace {

std::vector<int> walked(const GuideFrames& frames, int from, int delta) {
    std::vector<int> way;
    for (int frame = from;;) {
        way.push_back(frame);
        const int next = GetTip(frame, delta, frames);
        if (next == frame)
            return way;
        frame = next;
    }
}

std::vector<int> joined(std::vector<int> frames, int first, int last) {
    for (int frame = first; frame <= last; ++frame)
        frames.push_back(frame);
    return frames;
}

// The frames on blocked levels that each design has, the rest being the same for all.
struct DesignRow {
    int levels;
    int randomized;
    std::vector<int> blocks;
};
const DesignRow designs[] = {{2, 1, {64}},     {2, 2, {}},   {3, 1, {63, 64}},
                             {3, 2, {63}},     {3, 3, {}},   {4, 1, {62, 63, 64}},
                             {4, 2, {62, 63}}, {4, 3, {62}}, {4, 4, {}}};

std::vector<int> expectedFrames(const DesignRow& design, bool means) {
    std::vector<int> frames = joined({0, 1, 2, 10, 11, 12, 13, 15, 16}, 20, 27);
    frames = joined(std::move(frames), 30, 39);
    if (!means)
        std::erase(frames, 32);
    frames.insert(frames.end(), {59, 60});
    if (!design.blocks.empty()) {
        frames.push_back(61);
        frames.insert(frames.end(), design.blocks.begin(), design.blocks.end());
        frames = joined(std::move(frames), 65, 71);
        frames.insert(frames.end(), {73, 74});
    }
    frames = joined(std::move(frames), 79, means ? 85 : 86);
    if (design.blocks.empty())
        std::erase(frames, 81);
    return joined(joined(joined(std::move(frames), 89, 96), 300, 310), 311, 329);
}

TEST(GuideFrames, FollowTheDesignForwardAndBack) {
    for (const DesignRow& design : designs) {
        for (const DataTypes type : {DataTypes::means, DataTypes::binary}) {
            Study study;
            study.NumLevels = design.levels;
            study.RandomizedLevel = design.randomized;
            study.DataType = type;
            const GuideFrames frames = framesOf(study);
            std::vector<int> expected = expectedFrames(design, type == DataTypes::means);
            EXPECT_EQ(walked(frames, 0, 1), expected) << design.levels << design.randomized;
            std::reverse(expected.begin(), expected.end());
            EXPECT_EQ(walked(frames, lastGuideFrame, -1), expected) << design.levels << design.randomized;
            EXPECT_EQ(GetTip(32, 0, frames), type == DataTypes::means ? 32 : 33);
        }
    }
}

TEST(GuideTexts, RefuseWhatNoOneKnows) {
    const auto problemOf = [](const char* text) -> std::string {
        try {
            GuideEntries entries;
            readGuide(text, entries);
            const SessionState state;
            textOf(entries.at(1), {state, MainScreen()});
        } catch (const std::logic_error& problem) {
            return problem.what();
        }
        return "";
    };
    EXPECT_EQ(problemOf("frame 1\ntitle A\n\nTwo **words** of {txtAlpha}.\n[not means] None."), "");
    const std::pair<const char*, const char*> faults[] = {{"Text.", "before the first frame"},
                                                          {"frame 1\ncolour red\n", "title, at and menu"},
                                                          {"frame 1\n\n{moon}", "place \"moon\""},
                                                          {"frame 1\n\n[moon] A.", "condition \"moon\""},
                                                          {"frame 1\n\n[each moon] A.", "kind of level"},
                                                          {"frame 1\n\n{cite moon}", "No source"},
                                                          {"frame 1\n\n{name 7}", "level \"7\""},
                                                          {"frame 1\nframe 1\n", "there twice"}};
    for (const auto& [text, words] : faults)
        EXPECT_NE(problemOf(text).find(words), std::string::npos) << text << ": " << problemOf(text);
}

class GuideWalk : public AppBench {
protected:
    std::size_t sentences(const std::string& text) {
        std::size_t count = 0;
        for (std::size_t i = 0; i < text.size(); ++i) {
            const bool ends = (text[i] == '.' && !text.substr(0, i).ends_with("et al")) || text[i] == '?';
            count += ends && (i + 1 == text.size() || text[i + 1] == ' ' || text[i + 1] == '\n');
        }
        return count;
    }

    void expectGood(const GuideFrame& frame) {
        std::string text;
        for (const std::string& paragraph : frame.text)
            text += (text.empty() ? "" : "\n") + paragraph;
        const std::string all = frame.title + "\n" + text;
        for (const char* fault : {"{", "}", "**", "  ", " .", " ,", "..", " nan ", " inf "})
            EXPECT_EQ(all.find(fault), std::string::npos) << frame.frame << ": " << fault << ": " << all;
        EXPECT_GE(sentences(text), 2u) << frame.frame;
        EXPECT_LE(sentences(text), 7u) << frame.frame << text;
        EXPECT_TRUE(text.empty() || std::string(".?").find(text.back()) != std::string::npos) << frame.frame;
        EXPECT_LE(frame.title.size(), 44u) << frame.title;
        if (!frame.menu.empty()) {
            EXPECT_NE(app.commands().band(frame.menu), nullptr) << frame.frame << frame.menu;
        }
        if (!frame.target.empty()) {
            EXPECT_TRUE(app.names().read(frame.target + ".Caption")) << frame.frame << frame.target;
        }
    }

    void walk() {
        app.click("frmTips.Section(1)");
        for (const int frame : app.guide().frame().frames) {
            ASSERT_EQ(app.guide().CurrentTip(), frame);
            expectGood(app.guide().frame());
            app.click("frmTips.frmClusterWizbutton(3)");
        }
    }
};

TEST_F(GuideWalk, TellsEveryFrameOfEveryStudy) {
    app.tool("gfrmTips");
    for (const DesignRow& design : designs) {
        for (const int outcome : {1, 2, 3, 4}) {
            for (const double entry : {1.0, 2.0, 3.0}) {
                app.load(Values{{"NumLevels", static_cast<double>(design.levels)},
                                {"RandomizedLevel", static_cast<double>(design.randomized)},
                                {"DataType", outcome <= 2 ? 1.0 : 2.0},
                                {"DType", outcome == 1 ? 1.0 : 2.0},
                                {"BinaryType", outcome == 3 ? 1.0 : 3.0},
                                {"ICC Metric", entry == 1 ? 1.0 : 2.0},
                                {"Tau-sq Metric", entry},
                                {"txtTails", entry == 3 ? 1.0 : 2.0},
                                {"txtNC(1)", 11.0},
                                {"txtModel(2)", entry == 2 ? 1.0 : 0.0}});
                walk();
            }
        }
    }
}

TEST_F(GuideWalk, OpensEveryPartWithItsTitle) {
    app.load(Values{{"DataType", 2.0}, {"BinaryType", 1.0}});
    const std::pair<int, const char*> titles[] = {{0, "Welcome"},
                                                  {10, "The effect size"},
                                                  {15, "Alpha and tails"},
                                                  {20, "The study design"},
                                                  {26, "Number of units"},
                                                  {30, "ICC or span of risks"},
                                                  {59, "Tau-squared or span of odds ratios"},
                                                  {79, "Number of covariates and R-squared"},
                                                  {89, "Statistical model"},
                                                  {93, "Costs"},
                                                  {300, "Summary"},
                                                  {301, "Sample size"},
                                                  {305, "The optimal design wizard"},
                                                  {312, "Make a report"},
                                                  {315, "Find the MDES"},
                                                  {318, "Sensitivity analysis"},
                                                  {322, "Make a graph"},
                                                  {324, "Save scenarios"},
                                                  {327, "Save the file"}};
    auto title = std::begin(titles);
    for (const GuidePart& part : guideParts()) {
        ASSERT_NE(title, std::end(titles));
        EXPECT_EQ(part.first, title->first);
        const std::string before = part.caption.empty() ? "" : std::string(part.caption) + ": ";
        EXPECT_EQ(app.guide().sectionCaption(part.first), before + title->second);
        ++title;
    }
}

TEST_F(GuideWalk, SteersTheWizardAndLeavesOneThatAPersonHasOpened) {
    app.load(Values{
        {"txtd", 0.5}, {"txtNT(2)", 10.0}, {"txtNC(2)", 10.0}, {"txtNT(1)", 20.0}, {"txtNC(1)", 20.0}});
    app.tool("gfrmTips");
    app.click("frmTips.Section(11)");
    const auto wizardIsOpen = [&] { return app.design().isOpen(WindowId::frmOptimal); };
    while (app.guide().CurrentTip() < 307)
        app.click("frmTips.frmClusterWizbutton(3)");
    EXPECT_TRUE(wizardIsOpen());
    app.click("frmTips.frmClusterWizbutton(2)");
    EXPECT_FALSE(wizardIsOpen());
    app.tool("gfrmOptimal");
    for (int i = 0; i < 5; ++i)
        app.click("frmTips.frmClusterWizbutton(3)");
    EXPECT_TRUE(wizardIsOpen());

    app.tool("gfrmMDES");
    EXPECT_EQ(app.guide().CurrentTip(), mdesFrame);
    app.close("frmTips");
    app.tool("gfrmMDES");
    app.tool("gfrmTips");
    EXPECT_EQ(app.guide().CurrentTip(), mdesFrame) << "it is resumed where it was";
}

}  // namespace
}  // namespace lorvane
