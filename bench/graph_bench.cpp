// Time of the computation of graphs: the largest with a test, the largest of all, the one that opens first,
// one of every variable; and of more and more points.
#include <benchmark/benchmark.h>

#include "graphs/graph_compute.h"
#include "support/test_library.h"
#include "support/usual_study.h"

namespace {

using namespace lorvane;
using enum GraphFields;

struct Bench {
    Bench(int levels, int randomized, DataTypes dataType, BinaryTypes binaryType = BinaryTypes::oddsRatio) {
        makeUsual(trial.study, levels, randomized, dataType);
        trial.study.BinaryType = binaryType;
        trial.refresh();
    }

    GraphTable compute(const GraphRequest& request) { return GraphCompute(trial, request, progress); }

    void run(benchmark::State& state, const GraphRequest& request) {
        GraphTable table;
        for (auto _ : state)
            table = compute(request);
        state.counters["points"] = table.axis.Points;
        state.counters["lines"] = table.NumLines;
        state.counters["powers"] = powersOf(table);
    }

    static int powersOf(const GraphTable& table) {
        int powers = 0;
        for (int line = 1; line <= table.NumLines; ++line) {
            for (int point = 1; point <= table.axis.Points; ++point)
                powers += table.number(GraphRows::power + line, point).has_value();
        }
        return powers;
    }

    NumericDistributionLibrary library;
    NoProgress progress;
    StudyTrial trial{Study(), library};
};

const LineValues fiveAlphas = {5, 0.1, 0.05, 0.04, 0.02, 0.01};

// Five lines of a series that moves the degrees of freedom take the most.
const LineValues fiveNumbers = {5, 60, 50, 40, 30, 20};

void largestWithTest(benchmark::State& state) {
    Bench bench(4, 2, DataTypes::binary);
    bench.run(state, {graphVariable(OR), graphVariable(NB, 4), {1, 1, 20.9}, fiveNumbers});
}

void numbersOfFourLevels(benchmark::State& state) {
    Bench bench(4, 2, DataTypes::binary);
    bench.run(state, {graphVariable(NB, 4), graphVariable(Alpha), {1, 1, 1000000}, fiveAlphas});
}

void largestOfAll(benchmark::State& state) {
    Bench bench(4, 2, DataTypes::binary, BinaryTypes::riskRatio);
    bench.run(state, {graphVariable(RR), graphVariable(NB, 4), {1, 1, 99.9}, fiveNumbers});
}

void defaultGraph(benchmark::State& state, int levels, int randomized, DataTypes dataType, double effect) {
    Bench bench(levels, randomized, dataType);
    bench.trial.study.txtd = effect;
    bench.trial.study.txtOR = 1 + effect;
    bench.trial.refresh();
    bench.run(state, {numberAtTop(bench.trial.study), {}, {}, {}});
}

// In one study, so most of them are levels that the design does not have or forms that are not entered.
void everyVariable(benchmark::State& state) {
    Bench bench(4, 2, DataTypes::binary);
    int graphs = 0;
    for (auto _ : state) {
        graphs = 0;
        for (const GraphVariableRow& row : graphVariables()) {
            const int levels = row.values == nullptr ? 0 : 4;
            for (int level = levels == 0 ? 0 : 1; level <= levels; ++level, ++graphs)
                benchmark::DoNotOptimize(bench.compute({{&row, level}, {}, {}, {}}));
        }
    }
    state.counters["graphs"] = graphs;
}

// Steps of 0.1 up from 1.1.
void pointsAgainstTime(benchmark::State& state) {
    Bench bench(4, 2, DataTypes::binary, BinaryTypes::riskRatio);
    const auto points = static_cast<double>(state.range(0));
    bench.run(state, {graphVariable(RR), graphVariable(NB, 4), {1, 1.1, 1 + points / 10}, fiveNumbers});
    state.SetComplexityN(state.range(0));
}

void registerAll() {
    benchmark::RegisterBenchmark("largest_with_test", largestWithTest);
    benchmark::RegisterBenchmark("numbers_of_four_levels", numbersOfFourLevels);
    benchmark::RegisterBenchmark("largest_of_all", largestOfAll);
    benchmark::RegisterBenchmark("default/two_levels_means", defaultGraph, 2, 2, DataTypes::means, 0.3);
    benchmark::RegisterBenchmark("default/four_levels_risks", defaultGraph, 4, 4, DataTypes::binary, 0.6);
    benchmark::RegisterBenchmark("default/in_blocks", defaultGraph, 4, 2, DataTypes::binary, 0.6);
    benchmark::RegisterBenchmark("default/tiny_effect", defaultGraph, 4, 4, DataTypes::binary, 0.02);
    benchmark::RegisterBenchmark("every_variable", everyVariable);
    auto* points = benchmark::RegisterBenchmark("points", pointsAgainstTime);
    for (const int count : {50, 100, 200, 400})
        points->Arg(count);
    points->Complexity(benchmark::oN);
}

}  // namespace

int main(int argc, char** argv) {
    registerAll();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
