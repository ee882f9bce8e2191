// The tools: what each leaves behind in every design.
#include <set>
#include <stdexcept>

#include "screen/screen_bench.h"

namespace lorvane {
namespace {

/// Groups of tools of which exactly one is checked. The first is that of the data types.
std::vector<Texts> choiceGroups() {
    std::vector<Texts> groups = rowsOf("choices.txt");
    for (Texts& group : groups) {
        const std::string pattern = group.front();
        group.erase(group.begin());
        for (std::string& name : group)
            name = std::string(pattern).replace(pattern.find("{}"), 2, name);
    }
    return groups;
}

struct Tools : ScreenTest {
    const Tool& tool(const std::string& name) const { return *app.commands().find(name); }

    /// The study has a power, or says what to modify; the tools tell how it stands.
    void expectInOrder(const std::string& clicked) const {
        const Study& s = app.design().study();
        EXPECT_TRUE(s.NumLevels >= 2 && s.NumLevels <= 4 && s.RandomizedLevel <= s.NumLevels);
        EXPECT_EQ(see("pnlPower.Caption").starts_with("Please modify "), !s.result.xValid);
        EXPECT_EQ(tool("Add a level").Enabled, s.NumLevels < 4);
        EXPECT_EQ(tool("Remove a level").Enabled, s.NumLevels > 2);
        for (const Texts& group : groups) {
            const auto isChecked = [&](const std::string& name) { return tool(name).Checked; };
            const bool isFree = group.front().starts_with("Change ") && clicked.starts_with("Use ");
            const auto checked = std::count_if(group.begin(), group.end(), isChecked);
            EXPECT_TRUE(checked == 1 || (isFree && checked == 0)) << group.front();
            EXPECT_TRUE(std::count(group.begin(), group.end(), clicked) == 0 || isChecked(clicked));
        }
        for (const std::string show : {"Show power using ", "Show cost using "}) {
            EXPECT_NE(tool(show + "graph").Visible, tool(show + "digits").Visible);
            EXPECT_FALSE(clicked.starts_with(show) && tool(clicked).Visible) << "the other mode is on offer";
        }
    }

    void expectInOrderAfter(const std::string& name) {
        SCOPED_TRACE(see("pnlSense.Caption") + ' ' + name);
        if (!tool(name).Enabled) {
            EXPECT_THROW(app.tool(name), UseProblem);
            return;
        }
        const bool isValid = app.design().study().result.xValid;
        const bool changesType = std::count(groups[0].begin(), groups[0].end(), name) == 1;
        if (changesType)
            messages.script.queue(Answer::OK);
        app.tool(name);
        const bool drawsInVain = (name == "Graph" || name == "gxPlot") && !isValid;
        const bool speaks = changesType || drawsInVain || speaking.contains(name);
        EXPECT_EQ(messages.script.take().size(), speaks ? 1u : 0u);
        expectInOrder(name);
    }

    const std::vector<Texts> groups = choiceGroups();
    const std::set<std::string> speaking = {"Exit", "Clear", "Open", "Save", "SaveAs", "Restore scenario"};
};

TEST_F(Tools, EachOneInEveryDesign) {
    std::set<std::string> names;
    for (const Band& band : app.commands().bands()) {
        if (!band.screen.empty())
            continue;
        for (const BandEntry& entry : band.entries) {
            if (entry.kind == BandEntry::Kind::tool)
                names.insert(entry.name);
        }
    }
    EXPECT_GT(names.size(), 150u);
    for (int design = 0; design < 24; ++design) {
        const int levels = 2 + design % 3, randomized = 1 + design / 3 % 4, type = 1 + design / 12;
        for (const std::string& name : names) {
            if (randomized > levels || (name.starts_with("Randomize") && name.back() - '0' > levels))
                continue;
            load("txtd=0.4 txtOR=2 ICC_Metric=1 txtICC(2)=0.1 txtICC(3)=0.05 txtNB(2)=9 txtNB(3)=9 "
                 "NumLevels=" +
                 std::to_string(levels) + " RandomizedLevel=" + std::to_string(randomized) +
                 " DataType=" + std::to_string(type));
            expectInOrderAfter(name);
        }
    }
}

TEST_F(Tools, DecimalsRoundWhatIsStored) {
    for (const Texts& row : rowsOf("decimals.txt")) {
        load(row[1] + '=' + row[2]);
        app.tool(row[0]);
        expect({{row[1], row[3]}, {row[1] + ".FmtDecDigits", row[4]}});
        EXPECT_TRUE(tool(row[0]).Checked) << row[0];
    }
    expect({{"IncMRange", "100"}, {"IncMean", "1"}, {"pnlMRange(1).Caption", "        13"}});
}

TEST(CommandBookTest, AMenuThatNamesWhatIsMissingStopsTheProgram) {
    using Kind = BandEntry::Kind;
    const auto make = [](std::vector<std::string> keys, BandEntry entry) {
        std::vector<Command> commands;
        for (const std::string& key : keys)
            commands.emplace_back().tool.Name = key;
        CommandBook(std::move(commands), {{"bndFile", "&File", BandKind::menu, {std::move(entry)}}});
    };
    EXPECT_NO_THROW(make({"Save"}, {Kind::tool, "Save"}));
    EXPECT_THROW(make({"Save"}, {Kind::tool, "Safe"}), std::logic_error);
    EXPECT_THROW(make({"Save"}, {Kind::band, "popNone"}), std::logic_error);
    EXPECT_THROW(make({"Save", "Save"}, {Kind::line, ""}), std::logic_error);
}

}  // namespace
}  // namespace lorvane
