// Time from a click on an arrow to the repainted screen, with four levels, a binary outcome and all panels
// open.
#include <benchmark/benchmark.h>

#include <QApplication>

#include "desktop/desk.h"
#include "desktop/kit/theme.h"
#include "desktop/main_window.h"
#include "desktop/panels.h"
#include "os/disk_file_store.h"
#include "support/test_library.h"

namespace {

using namespace lorvane;

const std::vector<Assignment> fourLevels = {
    {"NumLevels", 4.0},  {"RandomizedLevel", 2.0}, {"DataType", 2.0},     {"ICC Metric", 1.0},
    {"txtOR", 1.6},      {"txtPrev", 0.4},         {"txtICC(2)", 0.05},   {"txtICC(3)", 0.05},
    {"txtICC(4)", 0.05}, {"txtTauSq(3)", 0.02},    {"txtTauSq(4)", 0.02}, {"txtNB(4)", 20.0}};

void clickToScreen(benchmark::State& state) {
    NumericDistributionLibrary distributions;
    const FixedLocale locale;
    DiskFileStore files;
    ScriptedDialogs messages;
    MemorySettings settings;
    Application application({distributions, locale, files, messages, messages, settings, "."});
    application.load(fourLevels);
    desktop::Desk desk(application, messages);
    desktop::MainWindow window(desk);
    desktop::Panels panels(desk, window);
    window.show();
    for (const char* tool : {"gfrmDisplayICC", "gfrmDisplayTauSq", "gfrmCounts", "gfrmDetails"})
        desk.tool(tool);
    for (int i = 0; i < 20; ++i)
        QCoreApplication::processEvents();
    int direction = 1;
    for (auto _ : state) {
        desk.spin("spnNB(4)", direction);
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        direction = -direction;
    }
}

BENCHMARK(clickToScreen)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication qt(argc, argv);
    lorvane::desktop::applyTheme(qt);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
