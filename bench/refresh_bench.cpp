// Time of one silent refresh of each of the eighteen designs, when the degrees of freedom are those of the
// last refresh and when they are new; and of one refresh that shows everything.
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

void silentRefresh(benchmark::State& state, int levels, int randomized, int dataType, bool newDf) {
    NumericDistributionLibrary library;
    const FixedLocale locale;
    ScriptedDialogs messages;
    Design design(library, locale, messages);
    makeUsual(design.study(), levels, randomized, dataType);
    double size = 20;
    for (auto _ : state) {
        if (newDf) {
            size = size < 4000 ? size + 1 : 20;
            setTop(design.study(), size);
        }
        design.DoRefresh(false);
        benchmark::DoNotOptimize(design.study().result.txtPower);
    }
    if (design.study().result.xValid != 1)
        state.SkipWithError("the study gives no power");
}

// A refresh with everything on display, four levels and a binary outcome.
void shownRefresh(benchmark::State& state) {
    NumericDistributionLibrary library;
    const FixedLocale locale;
    ScriptedDialogs messages;
    Design design(library, locale, messages);
    makeUsual(design.study(), 4, 2, DataTypes::binary);
    design.applyChoices();
    for (auto _ : state) {
        setTop(design.study(), design.study().txtNB(4) == 20 ? 21 : 20);
        design.DoRefresh(true);
    }
}

void registerAll() {
    benchmark::RegisterBenchmark("FourLevelRBClassesBinary/shown", shownRefresh);
    for (int levels = 2; levels <= 4; ++levels) {
        for (int randomized = 1; randomized <= levels; ++randomized) {
            for (const int dataType : {DataTypes::means, DataTypes::binary}) {
                const std::string name = std::string(routinesOf(levels, randomized).name) +
                                         (dataType == DataTypes::means ? "Means" : "Binary");
                for (const bool newDf : {false, true})
                    benchmark::RegisterBenchmark((name + (newDf ? "/new_df" : "/same_df")).c_str(),
                                                 silentRefresh, levels, randomized, dataType, newDf);
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
