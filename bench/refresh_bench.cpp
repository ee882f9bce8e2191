// Time of one refresh of each of the eighteen designs, when the degrees of freedom are those of the last
// refresh and when they are new; of one edit beside its refresh; and of an edit that shows everything.
#include <benchmark/benchmark.h>

#include <string>

#include "engine/design_routines.h"
#include "screen/design.h"
#include "support/test_library.h"
#include "support/usual_study.h"

namespace {

using namespace lorvane;

// The size at the top, which moves the degrees of freedom of every design.
void setTop(Study& s, double size) {
    s.txtNT(s.NumLevels) = s.txtNC(s.NumLevels) = s.txtNB(s.NumLevels) = size;
}

void refreshOfTrial(benchmark::State& state, int levels, int randomized, DataTypes dataType, bool newDf) {
    NumericDistributionLibrary library;
    StudyTrial trial({}, library);
    makeUsual(trial.study, levels, randomized, dataType);
    double size = 20;
    for (auto _ : state) {
        if (newDf) {
            size = size < 4000 ? size + 1 : 20;
            setTop(trial.study, size);
        }
        trial.refresh();
        benchmark::DoNotOptimize(trial.study.result.txtPower);
    }
    if (!trial.study.result.xValid)
        state.SkipWithError("the study gives no power");
}

// A session on four levels with a binary outcome, without followers until something is shown.
struct EditBench {
    EditBench() {
        session.edit({"", Reach::anew},
                     [](SessionState& state) { makeUsual(state.study, 4, 2, DataTypes::binary); });
    }

    static void toggle(Study& s) { s.txtNB(4) = s.txtNB(4) == 20 ? 21 : 20; }

    void edit(Reach reach) {
        session.edit({"number of districts", reach}, [](SessionState& state) { toggle(state.study); });
    }

    NumericDistributionLibrary library;
    ScriptedDialogs messages;
    SteadyClock clock;
    Session session{library, detectCurrency(FixedLocale()), clock};
};

// The refresh that an edit of one field runs.
void refreshAlone(benchmark::State& state) {
    EditBench bench;
    StudyTrial trial = bench.session.trial();
    for (auto _ : state) {
        EditBench::toggle(trial.study);
        trial.refresh();
    }
}

// The same with the door around it: the snapshot for undo, the comparison with it, the step.
void editWithRefresh(benchmark::State& state) {
    EditBench bench;
    for (auto _ : state)
        bench.edit(Reach::study);
}

// What the door costs by itself, by an edit that nothing is computed for.
void editAlone(benchmark::State& state) {
    EditBench bench;
    for (auto _ : state)
        bench.edit(Reach::setting);
}

// An edit with everything on display.
void editShown(benchmark::State& state) {
    EditBench bench;
    Design design(bench.session, bench.messages);
    bench.session.follow([&](const Changed& changed) { design.show(changed); });
    for (auto _ : state)
        bench.edit(Reach::study);
}

void registerAll() {
    using Run = void (*)(benchmark::State&);
    for (const auto& [name, run] : {std::pair<const char*, Run>{"refresh_alone", refreshAlone},
                                    {"edit_with_refresh", editWithRefresh},
                                    {"edit_alone", editAlone},
                                    {"edit_shown", editShown}})
        benchmark::RegisterBenchmark((std::string("FourLevelRBClassesBinary/") + name).c_str(), run);
    for (int levels = 2; levels <= 4; ++levels) {
        for (int randomized = 1; randomized <= levels; ++randomized) {
            for (const DataTypes dataType : {DataTypes::means, DataTypes::binary}) {
                const std::string name = std::string(routinesOf(levels, randomized).name) +
                                         (dataType == DataTypes::means ? "Means" : "Binary");
                for (const bool newDf : {false, true})
                    benchmark::RegisterBenchmark((name + (newDf ? "/new_df" : "/same_df")).c_str(),
                                                 refreshOfTrial, levels, randomized, dataType, newDf);
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
