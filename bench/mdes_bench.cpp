// Time and refreshes of one search for the smallest effect, for each of the nine designs: means, and both
// binary metrics in both directions. "runs" counts the refreshes of one search.
#include <benchmark/benchmark.h>

#include <string>

#include "engine/design_routines.h"
#include "search/mdes_search.h"
#include "support/test_library.h"

namespace {

using namespace lorvane;

struct Metric {
    const char* name;
    DataTypes dataType;
    BinaryTypes binaryType;
    int direction;
    double units;  ///< of the top level; few units send the search through the whole range
};

constexpr Metric metrics[] = {
    {"means", DataTypes::means, BinaryTypes::oddsRatio, 1, 20},
    {"odds_ratio_up", DataTypes::binary, BinaryTypes::oddsRatio, 1, 20},
    {"odds_ratio_down", DataTypes::binary, BinaryTypes::oddsRatio, -1, 20},
    {"risk_difference_up", DataTypes::binary, BinaryTypes::riskDifference, 1, 20},
    {"risk_difference_down", DataTypes::binary, BinaryTypes::riskDifference, -1, 20},
    {"odds_ratio_few_units", DataTypes::binary, BinaryTypes::oddsRatio, 1, 6},
    {"risk_difference_few_units", DataTypes::binary, BinaryTypes::riskDifference, 1, 6},
};

void fill(Study& s, int levels, int randomized, const Metric& metric) {
    s.NumLevels = levels;
    s.RandomizedLevel = randomized;
    s.DataType = metric.dataType;
    s.BinaryType = metric.binaryType;
    s.IccMetric = IccMetrics::icc;
    s.txtPrev = 0.4;
    s.txtd = s.txtRD = 0.1 * metric.direction;
    s.txtOR = metric.direction == 1 ? 1.5 : 0.7;
    for (int level = 1; level <= levels; ++level) {
        s.txtNT(level) = s.txtNC(level) = s.txtNB(level) = level == levels ? metric.units : 5;
        s.txtICC(level) = level > 1 ? 0.05 : 0;
        s.txtTauSq(level) = 0.02;
    }
}

void search(benchmark::State& state, int levels, int randomized, const Metric& metric) {
    NumericDistributionLibrary library;
    Study study;
    fill(study, levels, randomized, metric);
    MdesResult result;
    for (auto _ : state)
        result = FindMDES({study, library}, study.ReqPower);
    if (result.outcome == MdesOutcome::problem)
        state.SkipWithError("the study gives no power");
    state.counters["runs"] = result.runs;
    state.counters["effect"] = result.effect;
}

void registerAll() {
    for (int levels = 2; levels <= 4; ++levels) {
        for (int randomized = 1; randomized <= levels; ++randomized) {
            for (const Metric& metric : metrics) {
                const std::string name = std::string(routinesOf(levels, randomized).name) + "/" + metric.name;
                benchmark::RegisterBenchmark(name.c_str(), search, levels, randomized, metric);
            }
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    registerAll();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
