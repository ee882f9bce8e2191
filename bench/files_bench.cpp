// Time of saving and opening a study with many scenarios on a real disk, of adding one, and of the picture
// that is kept of unsaved work.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>

#include "app/application.h"
#include "os/disk_file_store.h"
#include "support/test_library.h"

namespace {

using namespace lorvane;

// A program with a number of scenarios, and its file.
struct Bench {
    explicit Bench(std::int64_t scenarios) {
        for (std::int64_t i = 0; i < scenarios; ++i)
            app.tool("Add scenario");
        app.save(path);
    }
    ~Bench() { std::filesystem::remove(path); }

    const std::string path = (std::filesystem::temp_directory_path() / "lorvane-bench.Lorvane").string();
    NumericDistributionLibrary library;
    FixedLocale locale;
    DiskFileStore files;
    ScriptedDialogs dialogs;
    MemorySettings settings;
    Application app{{library, locale, files, dialogs, dialogs, settings, "."}};
};

void save(benchmark::State& state) {
    Bench bench(state.range(0));
    for (auto _ : state)
        bench.app.save(bench.path);
    state.counters["bytes"] = static_cast<double>(std::filesystem::file_size(bench.path));
}

void open(benchmark::State& state) {
    Bench bench(state.range(0));
    for (auto _ : state)
        bench.app.open(bench.path);
}

// Beyond twice the number they are thrown away again, outside the measured time.
void add(benchmark::State& state) {
    Bench bench(state.range(0));
    for (auto _ : state) {
        bench.app.tool("Add scenario");
        if (bench.app.scenarioWindow().vsNames().rows.size() < 2 * static_cast<std::size_t>(state.range(0)))
            continue;
        state.PauseTiming();
        bench.app.open(bench.path);
        state.ResumeTiming();
    }
}

void restore(benchmark::State& state) {
    Bench bench(state.range(0));
    bench.app.select("frmScenarios.vsNames", {static_cast<std::size_t>(state.range(0))});
    for (auto _ : state)
        bench.app.tool("Restore scenario");
}

void pictureOfUnsavedWork(benchmark::State& state) {
    Bench bench(state.range(0));
    bench.app.tool("Add scenario");
    for (auto _ : state)
        benchmark::DoNotOptimize(bench.app.unsavedStudy());
}

BENCHMARK(save)->Arg(20)->Arg(200)->Arg(2000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(open)->Arg(20)->Arg(200)->Arg(2000)->Unit(benchmark::kMillisecond);
BENCHMARK(add)->Arg(200)->Unit(benchmark::kMillisecond);
BENCHMARK(restore)->Arg(200)->Unit(benchmark::kMillisecond);
BENCHMARK(pictureOfUnsavedWork)->Arg(200)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
