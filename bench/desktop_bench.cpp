// Time from a click to the repainted screen: of an arrow, with four levels, a binary outcome and all panels
// open; and of the graph.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <optional>

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

/// The program with its windows.
struct Stage {
    explicit Stage(const std::vector<Assignment>& study)
        : application({distributions, locale, files, messages, messages, settings, "."}),
          desk(application, messages) {
        application.load(study);
        window.emplace(desk);
        panels.emplace(desk, *window);
        window->show();
    }

    void settle() {
        for (int i = 0; i < 20; ++i)
            QCoreApplication::processEvents();
    }

    NumericDistributionLibrary distributions;
    const FixedLocale locale;
    DiskFileStore files;
    ScriptedDialogs messages;
    MemorySettings settings;
    Application application;
    desktop::Desk desk;
    std::optional<desktop::MainWindow> window;
    std::optional<desktop::Panels> panels;
};

void paint() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

void clickToScreen(benchmark::State& state) {
    Stage stage(fourLevels);
    for (const char* tool : {"gfrmDisplayICC", "gfrmDisplayTauSq", "gfrmCounts", "gfrmDetails"})
        stage.desk.tool(tool);
    stage.settle();
    int direction = 1;
    for (auto _ : state) {
        stage.desk.spin("spnNB(4)", direction);
        paint();
        direction = -direction;
    }
}

/// Five lines with their costs over a range by hand.
struct LargeGraph {
    double binaryType;
    const char* x;
    const char* start;
    const char* end;
};
constexpr LargeGraph largestWithTest{1, "X Odds ratio", "1", "20.9"};
constexpr LargeGraph largest{2, "X Risk ratio", "1", "99.9"};

void draw(desktop::Desk& desk, const LargeGraph& graph) {
    desk.tool(graph.x);
    desk.tool("Modify range for X-axis");
    desk.click("frmXVar.optManual(1)");
    desk.type("frmXVar.txtXVar(1)", QLatin1String(graph.start));
    desk.type("frmXVar.txtXVar(2)", QLatin1String(graph.end));
    desk.click("frmXVar.Command1");
    desk.tool("L Number of Level 4");
    for (int line = 3; line <= 5; ++line)
        desk.click("frmLVar.cmdAddRemove(1)");
    for (int line = 1; line <= 5; ++line)
        desk.type("frmLVar.txtLVar(" + std::to_string(line) + ")", QString::number(10 * line));
    desk.click("frmLVar.Command1");
    desk.tool("Show cost");
}

// From a click that computes the graph anew, and changes how much room the chart has, to the painted window.
void drawAgain(benchmark::State& state, Stage& stage) {
    stage.panels->panel(QStringLiteral("xPlot"))->resize(1200, 800);
    stage.settle();
    const int points = stage.application.graph().axis().Points;
    for (auto _ : state) {
        stage.desk.tool("Header show");
        paint();
    }
    state.counters["points"] = points;
}

void defaultGraph(benchmark::State& state) {
    Stage stage(fourLevels);
    stage.desk.tool("Graph");
    drawAgain(state, stage);
}

void largeGraph(benchmark::State& state, const LargeGraph& graph) {
    std::vector<Assignment> study = fourLevels;
    study.push_back({"BinaryType", graph.binaryType});
    Stage stage(study);
    draw(stage.desk, graph);
    drawAgain(state, stage);
}

BENCHMARK(clickToScreen)->Unit(benchmark::kMillisecond);
BENCHMARK(defaultGraph)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(largeGraph, largestWithTest, largestWithTest)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(largeGraph, largest, largest)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication qt(argc, argv);
    lorvane::desktop::applyTheme(qt);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
