// The cells of a graph against single refreshes at each of its points, and what a graph leaves behind.
#include <cstdlib>
#include <new>
#include <numeric>

#include "base/number_text.h"
#include "graph_words.h"
#include "graphs/graph_compute.h"
#include "support/test_platform.h"
#include "validation/study_bench.h"

namespace {

long allocations = 0;

}  // namespace

[[gnu::noinline]] void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
}

[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

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

}  // namespace
}  // namespace lorvane
