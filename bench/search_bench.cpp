// Time of the quick search for the cheapest design on all nine designs, means and binary, of the proof behind
// it and of the most power for a budget, with the runs of the computation that each took; of a search whose
// top level ends in the millions; and of the curve of power.
#include <benchmark/benchmark.h>

#include <string>

#include "engine/design_routines.h"
#include "search/optimal_proof.h"
#include "search/power_curve.h"
#include "support/test_library.h"
#include "support/usual_study.h"

namespace {

using namespace lorvane;

// Units are dearer the higher they stand.
void fill(Study& s, int levels, int randomized, DataTypes dataType) {
    makeUsual(s, levels, randomized, dataType);
    s.PowerOption = PowerOptions::tDistribution;
    const double costs[] = {10, 150, 900, 4000};
    for (int level = 1; level <= levels; ++level)
        s.txtCostT(level) = s.txtCostC(level) = s.txtCostB(level) = costs[level - 1];
}

struct Bench {
    Bench(int levels, int randomized, DataTypes dataType) {
        fill(trial.study, levels, randomized, dataType);
        trial.refresh();
    }

    OptimalResult search() { return searchOptimalDesign(trial, OptimalOptions(), progress); }

    NumericDistributionLibrary library;
    NoProgress progress;
    StudyTrial trial{Study(), library};
};

void optimal(benchmark::State& state, int levels, int randomized, DataTypes dataType) {
    Bench bench(levels, randomized, dataType);
    OptimalResult result;
    for (auto _ : state)
        result = bench.search();
    state.counters["runs"] = static_cast<double>(result.runs);
    if (result.ending != OptimalEnding::found)
        state.SkipWithError("nothing was found");
}

// The proof, from the result of the quick search on.
void proof(benchmark::State& state, int levels, int randomized, DataTypes dataType) {
    Bench bench(levels, randomized, dataType);
    OptimalResult result = bench.search();
    for (auto _ : state)
        proveCheapest(bench.trial, OptimalOptions(), bench.progress, result);
    state.counters["runs"] = static_cast<double>(result.proof->runs);
    if (!result.proof->proven)
        state.SkipWithError("nothing was proven");
}

// The most power for what the quick search costs, with the trials around it.
void mostPower(benchmark::State& state, int levels, int randomized, DataTypes dataType) {
    Bench bench(levels, randomized, dataType);
    OptimalOptions options;
    options.goal = OptimalGoal::mostPower;
    options.budget = bench.search().bestTrial().cost;
    OptimalResult result;
    for (auto _ : state)
        result = searchMostPower(bench.trial, options, bench.progress);
    state.counters["runs"] = static_cast<double>(result.runs);
    if (!result.proof || !result.proof->proven)
        state.SkipWithError("nothing was proven");
}

// A whole curve.
void powerCurve(benchmark::State& state, int levels, int randomized, DataTypes dataType) {
    NumericDistributionLibrary library;
    const SteadyClock clock;
    Session session(library, {}, clock);
    session.edit({"", Reach::anew},
                 [&](SessionState& changed) { fill(changed.study, levels, randomized, dataType); });
    PowerCurveRun run;
    for (auto _ : state) {
        run.begin(session);
        while (run.goOn(8)) {
        }
    }
    state.counters["points"] = run.curve() == nullptr ? 0 : static_cast<double>(run.curve()->points.size());
}

// A tiny effect needs a top level of millions.
void optimalInTheMillions(benchmark::State& state) {
    Bench bench(2, 2, DataTypes::means);
    Study& s = bench.trial.study;
    s.txtd = 0.0011;
    for (int level = 1; level <= 2; ++level)
        s.txtCostT(level) = s.txtCostC(level) = 1;
    bench.trial.refresh();
    OptimalResult result;
    for (auto _ : state)
        result = bench.search();
    state.counters["runs"] = static_cast<double>(result.runs);
    state.counters["top"] = result.ending == OptimalEnding::found ? result.bestTrial().sizes(2) : 0;
}

void registerAll() {
    for (int levels = 2; levels <= 4; ++levels) {
        for (int randomized = 1; randomized <= levels; ++randomized) {
            const std::string name(routinesOf(levels, randomized).name);
            for (const auto& [suffix, type] :
                 {std::pair{"Means", DataTypes::means}, {"Binary", DataTypes::binary}}) {
                for (const auto& [what, run] : {std::pair{"optimal/", &optimal},
                                                {"proof/", &proof},
                                                {"power/", &mostPower},
                                                {"curve/", &powerCurve}})
                    benchmark::RegisterBenchmark((what + name + suffix).c_str(), run, levels, randomized,
                                                 type)
                        ->Unit(benchmark::kMillisecond);
            }
        }
    }
    benchmark::RegisterBenchmark("optimal/millions", optimalInTheMillions)->Unit(benchmark::kMillisecond);
}

}  // namespace

int main(int argc, char** argv) {
    registerAll();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
