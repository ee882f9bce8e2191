// The cells of a graph against single refreshes at each of its points, and what a graph leaves behind.
#include <numeric>

#include "base/number_text.h"
#include "graph_words.h"
#include "graphs/graph_compute.h"
#include "support/counted_allocations.h"
#include "support/test_platform.h"
#include "validation/study_bench.h"

namespace lorvane {
namespace {

/// What some points of the graph lack.
enum class Gaps { none, power, allPower, cost };

struct GraphCase {
    const char* x;
    const char* range;
    const char* series;  ///< with its values
    const char* study;
    Gaps gaps = Gaps::none;

    GraphRequest request() const {
        GraphRequest made{variablesOf(x)[0], {}, rangeOf(range), {}};
        std::istringstream words(series);
        if (std::string name; words >> name)
            made.LVar = variablesOf(name)[0];
        for (std::size_t j = 1; words >> made.lines[j]; ++j)
            made.lines[0] = double(j);
        return made;
    }
};

// A level with arms has the same number in both.
void setOf(Study& s, const GraphVariable& variable, double value) {
    variable.in(s) = value;
    if (variable->stem == "txtNT")
        s.txtNC(variable.level) = value;
}

std::string textOf(const GraphVariable& variable, double value, int decimals) {
    const bool counts = variable->stem == "txtNT" || variable->stem == "txtNB";
    return fixedText(value, counts ? 0 : decimals);
}

/// Each point from the study as it was, by a refresh of its own.
struct SinglePoints {
    SinglePoints(const StudyTrial& start, const GraphRequest& request, const Intervals& axis)
        : rows(19, Grid::Row(static_cast<std::size_t>(axis.Points) + 1)) {
        const bool hasSeries = request.lines[0] >= 2;
        rows[2][0] = rows[12][0] = GetTitleX(start.study, request.XVar);
        if (hasSeries)
            rows[1][0] = rows[11][0] =
                GetTitleL(start.study, request.LVar).append("\n").append(countSuffix(request.LVar));
        for (std::size_t i = 1; i < rows[0].size(); ++i) {
            const double x = double(i) * axis.Step + axis.Start - axis.Step;
            rows[1][i] = "Table of Power";
            rows[11][i] = "Table of Cost";
            rows[2][i] = rows[12][i] = textOf(request.XVar, x, 3);
            for (std::size_t j = 1; j <= (hasSeries ? std::size_t(request.lines[0]) : 1); ++j) {
                StudyTrial trial = start;
                setOf(trial.study, request.XVar, x);
                if (hasSeries) {
                    rows[3 + j][0] = rows[13 + j][0] = textOf(request.LVar, request.lines[j], 4);
                    setOf(trial.study, request.LVar, request.lines[j]);
                }
                trial.refresh();
                add(trial.study, i, j);
            }
        }
    }

    void add(const Study& s, std::size_t i, std::size_t j) {
        const bool hasTest = s.isMeans() || s.BinaryType == BinaryTypes::oddsRatio ||
                             s.BinaryType == BinaryTypes::riskDifference;
        if (s.result.xValid && hasTest)
            rows[3 + j][i] = fixedText(s.result.txtPower, 4);
        if (s.result.xValid)
            maxCost = std::max(maxCost, s.result.txtCost);
        if (!s.result.txtCostProblem)
            rows[13 + j][i] = groupedText(s.result.txtCost);
        ++points;
        powers += !rows[3 + j][i].empty();
        costs += !rows[13 + j][i].empty();
    }

    Gaps gaps() const {
        if (costs < points)
            return Gaps::cost;
        return powers == points ? Gaps::none : powers == 0 ? Gaps::allPower : Gaps::power;
    }

    std::vector<Grid::Row> rows;
    std::int32_t maxCost = 0;
    int points = 0, powers = 0, costs = 0;
};

TEST(GraphCompute, CellsAreSingleRefreshes) {
    const GraphCase cases[] = {
        {"NT(2)", "auto", "d 0.5 0.3", "ICC_Metric=1 ICC(2)=0.05 d=0.16 NT(1)=20 NC(1)=15"},
        {"d", "auto", "", "ICC_Metric=1 d=-0.3 NT(2)=20 NC(2)=20 CostT(1)=7"},
        {"ICC(3)", "auto", "NT(1) 40 20 10", "L=3 R=2 ICC_Metric=1 d=0.4 NB(3)=4 CostT(1)=40 CostC(1)=9"},
        {"OR", "0.5 2", "NB(4) 12 10 8 6 4", "L=4 R=2 DataType=2 ICC_Metric=1 ICC(2)=0.1 CostB(4)=900"},
        {"ICC(2)", "0.9 0", "ICC(3) 0.05 0.5", "L=3 R=3 ICC_Metric=1 d=0.4 CostT(3)=10", Gaps::power},
        {"RD", "-0.5 0.9", "Alpha 0.1 0.01", "DataType=2 BinaryType=3 RD=0.2 Prev=0.3", Gaps::power},
        {"RR", "auto", "", "DataType=2 BinaryType=2 RR=1.5 Prev=0.3 CostT(2)=5", Gaps::allPower},
        {"P2", "auto", "Prev 0.2 0.3", "DataType=2 BinaryType=4 P2=0.6 CostC(2)=5", Gaps::allPower},
        {"NT(2)", "2 50", "", "ICC_Metric=1 ICC(2)=0.05 CostT(1)=7000000", Gaps::cost}};
    for (const GraphCase& c : cases) {
        SCOPED_TRACE(c.x + std::string(" ") + c.study);
        StudyBench bench;
        bench.play(c.study);
        NoProgress nobody;
        const GraphRequest request = c.request();
        const GraphTable table = GraphCompute(bench.session.trial(), request, nobody);

        // The range is found with the series in its middle.
        StudyTrial middle = bench.session.trial();
        const auto lines = static_cast<std::size_t>(request.lines[0]);
        if (lines >= 2)
            setOf(middle.study, request.LVar,
                  std::accumulate(&request.lines[1], &request.lines[lines] + 1, 0.0) / double(lines));
        middle.refresh();
        const Intervals axis = intervalsOf(middle, request.XVar, request.range);
        EXPECT_EQ(std::tie(table.axis.Start, table.axis.End, table.axis.Step, table.axis.Points),
                  std::tie(axis.Start, axis.End, axis.Step, axis.Points));
        EXPECT_EQ(table.axis.Reversed, axis.Reversed);

        const SinglePoints single(bench.session.trial(), request, axis);
        EXPECT_EQ(table.cells.rows, single.rows);
        EXPECT_EQ(table.GraphMaxCost, single.maxCost);
        EXPECT_EQ(table.NumLines, lines < 2 ? 1 : int(lines));
        EXPECT_EQ(single.gaps(), c.gaps) << "the case does not show what it is for";
    }
}

// Beside the texts of the cells nothing else runs than these trials.
TEST(GraphCompute, SearchesAllocateNothing) {
    StudyBench bench;
    bench.play("L=4 R=2 DataType=2 ICC_Metric=1 ICC(2)=0.1 OR=2 CostB(4)=900");
    for (const GraphVariableRow& variable : graphVariables()) {
        StudyTrial trial = bench.session.trial();
        const long before = allocations;
        intervalsOf(trial, {&variable, variable.values == nullptr ? 0 : 4}, {});
        EXPECT_EQ(allocations, before) << variable.stem;
    }
    EXPECT_GT(allocations, 0);
}

TEST(GraphVariables, HaveTitlesOnTheAxisAndInTheLegend) {
    const char* means = "L=3 R=1 DType=2";
    const char* odds = "L=3 R=1 DataType=2";
    const char* risks = "L=3 R=1 DataType=2 BinaryType=3";
    const char* ratio = "L=3 R=1 DataType=2 BinaryType=2";
    for (const auto& [variable, study, x, series] :
         {std::tuple{"NT(1)", means, "Number of subjects", "Number of subjects"},
          {"NB(3)", odds, "Number of level 3s", "Number of level 3s"},
          {"ICC(2)", odds, "ICC for Level 2s", "ICC Level 2s"},
          {"MRange(2)", means, "Span of means for Level 2s", "Span of means (Level 2s)"},
          {"MRange(3)", risks, "Span of risks for Level 3s", "Span of risks (Level 3s)"},
          {"TauSq(3)", means, "Tau-squared for Level 3s", "Tau-sq Level 3s"},
          {"DRange(3)", "L=3 R=1 DType=1", "Span of effects for Level 3s", "Span of dw (Level 3s)"},
          {"DRange(3)", means, "Span of effects for Level 3s", "Span of dt (Level 3s)"},
          {"DRange(3)", odds, "Span of effects for Level 3s", "Span of log(OR) (Level 3s)"},
          {"DRange(3)", risks, "Span of effects for Level 3s", "Span of RD (Level 3s)"},
          {"DRange(3)", ratio, "Span of effects for Level 3s", ""},
          {"Omega(2)", means, "Omega for Level 2s", "Omega Level 2s"},
          {"Rsq(1)", means, "R-squared for Subjects", "R-sq Subjects"},
          {"d", means, "Standard difference (d)", "Std diff (d)"},
          {"Prev", odds, "Event rate in control group", "Event rate in control group"},
          {"OR", odds, "Odds ratio", "Odds ratio"},
          {"RR", ratio, "Risk ratio", "Risk ratio"},
          {"RD", risks, "Risk difference", "Risk difference"},
          {"P2", odds, "Event rate in treated group", "Event rate in treated group"},
          {"Alpha", means, "Alpha", "Alpha"}}) {
        StudyBench bench;
        bench.play(study);
        EXPECT_EQ(GetTitleX(bench.study, variablesOf(variable)[0]), x) << study;
        EXPECT_EQ(GetTitleL(bench.study, variablesOf(variable)[0]), series) << study;
    }
}

/// A user who stops the work after some points.
struct Patience final : Progress {
    bool goOn() override { return left-- > 1; }
    int left = 1000;
};

TEST(GraphScreen, KeepsTheGraphBeforeOneThatIsStopped) {
    Patience user;
    TestPlatform outside;
    Platform platform = outside.platform();
    platform.progress = &user;
    Application app(platform);
    app.load(std::vector<Assignment>{{"ICC Metric", 1.0}, {"txtICC(2)", 0.05}, {"txtd", 0.5}});
    app.tool("Graph");
    const ChartContent drawn = app.graph().chart();
    user.left = 5;
    app.tool("X Alpha");
    EXPECT_EQ(app.graph().chart(), drawn);
    EXPECT_EQ(user.left, 0);
    EXPECT_FALSE(app.graph().state().GraphRun);
}

struct NoTable final : SheetWriter {
    std::string write(const Sheet&, SheetFormats) override { return "table"; }
};

TEST(GraphScreen, TellsThatATableCouldNotBeWritten) {
    NoTable sheets;
    TestPlatform outside;
    Platform platform = outside.platform();
    platform.sheets = &sheets;
    Application app(platform);
    app.load(std::vector<Assignment>{{"txtd", 0.5}});
    app.tool("Graph");
    outside.files.full = true;
    outside.messages.queueFile("table.xls");
    app.tool("Save table");
    const auto shown = outside.messages.take();
    ASSERT_EQ(shown.size(), 2u);
    EXPECT_EQ(std::get<ScriptedDialogs::ShownMessage>(shown[1]).message.text,
              "File could not be saved.  It is probably being used by another program                ");
}

}  // namespace
}  // namespace lorvane
