// Time of the search for the cheapest design on all nine designs, means and binary, with the runs of the
// computation that it took; of a search whose top level ends in the millions; and of the curve of power.
#include <benchmark/benchmark.h>

#include <string>

#include "engine/design_routines.h"
#include "search/optimal_search.h"
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
                for (const auto& [what, run] : {std::pair{"optimal/", &optimal}, {"curve/", &powerCurve}})
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
