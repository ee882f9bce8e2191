// Time of the longest report: its steps alone, its steps on measured pages, and its files.
#include <benchmark/benchmark.h>

#include "platform/clock.h"
#include "qt/qt_document_press.h"
#include "reporting/make_report.h"
#include "reporting/report_formats.h"
#include "session/currency.h"
#include "support/test_library.h"
#include "support/usual_study.h"

namespace {

using namespace lorvane;

// Three blocked levels have the most to tell.
struct Bench {
    Bench() {
        session.edit({"", Reach::anew}, [](SessionState& state) {
            makeUsual(state.study, 4, 1, DataTypes::means);
            for (int level = 1; level <= 4; ++level)
                state.study.txtQ(level) = 2;
        });
    }

    void make(DocumentPress* pages) { makeReport(session, {true}, pages, made); }

    NumericDistributionLibrary library;
    SteadyClock clock;
    Session session{library, {"$", CurrencyPositions::before}, clock};
    QtDocumentPress press;
    MadeReport made;
};

void steps(benchmark::State& state) {
    Bench bench;
    for (auto _ : state)
        bench.make(nullptr);
    state.counters["steps"] = static_cast<double>(bench.made.document.steps.size());
}

void measuredSteps(benchmark::State& state) {
    Bench bench;
    for (auto _ : state)
        bench.make(&bench.press);
    state.counters["pages"] = bench.made.pages;
}

void file(benchmark::State& state, ReportFormats format) {
    Bench bench;
    bench.make(&bench.press);
    std::string bytes;
    for (auto _ : state)
        bytes = reportBytes(bench.made.document, format, &bench.press);
    state.counters["KB"] = static_cast<double>(bytes.size()) / 1024;
}

}  // namespace

int main(int argc, char** argv) {
    benchmark::RegisterBenchmark("report_steps", steps);
    benchmark::RegisterBenchmark("report_measured_steps", measuredSteps);
    benchmark::RegisterBenchmark("report_pdf", file, ReportFormats::pdf);
    benchmark::RegisterBenchmark("report_rtf", file, ReportFormats::rtf);
    benchmark::RegisterBenchmark("report_text", file, ReportFormats::text);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
