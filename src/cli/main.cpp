// lorvane-cli: the program without a screen.
#include <CLI/CLI.hpp>
#include <csignal>
#include <functional>
#include <iostream>
#include <sstream>
#include <system_error>

#include "app/application.h"
#include "base/utf8.h"
#include "cli/commands.h"
#include "cli/drive.h"
#include "cli/graph_command.h"
#include "cli/mdes_command.h"
#include "cli/optimal_command.h"
#include "cli/report_command.h"
#include "numerics/numeric_distribution_library.h"
#include "os/disk_file_store.h"
#include "os/environment_locale.h"
#include "os/program_folder.h"
#include "platform/failure_words.h"
#include "qt/qt_chart.h"
#include "qt/qt_document_press.h"
#include "sheets/sheet_files.h"

namespace {

using namespace lorvane;

struct Requests {
    PowerRequest power;
    NewRequest fresh;
    ScenariosRequest scenarios;
    OptimalRequest optimal;
    MdesRequest mdes;
    GraphCommandRequest graph;
    ReportRequest report;
    std::string driven;
};

void addSettings(CLI::App* command, std::vector<std::string>& settings) {
    command->add_option("--set", settings, "Give a field or a design choice a value; may be repeated")
        ->type_name("FIELD=VALUE")
        ->allow_extra_args(false);
}

void addForce(CLI::App* command, bool& force) {
    command->add_flag("--force", force, "Write over a file that is there");
}

void addPower(CLI::App& cli, PowerRequest& request) {
    CLI::App* command = cli.add_subcommand("power", "Power and cost of a study");
    command->add_option("STUDY", request.study, "Study file")->required();
    addSettings(command, request.settings);
    command->add_option("--scenario", request.scenario, "Answer for this scenario of the file")
        ->type_name("NAME");
    command->add_flag("--json", request.json, "Answer with one JSON object");
    command->footer("Example:\n  lorvane-cli power schools.Lorvane --set \"txtNB(3)=24\"");
}

void addOptimal(CLI::App& cli, OptimalRequest& request) {
    CLI::App* command =
        cli.add_subcommand("optimal", "The cheapest design for a power, or the most power for a budget");
    command->add_option("STUDY", request.study, "Study file")->required();
    command->add_option("--power", request.power, "Required power; the study's own where it is not given")
        ->type_name("P");
    command->add_option("--budget", request.budget, "Find the most power that costs at most so much")
        ->type_name("B");
    command->add_flag("--told", request.told, "Only the quick search, without the proof behind it");
    command
        ->add_option("--fix", request.fixes,
                     "Keep a level below the top at N units per unit above; may be repeated")
        ->type_name("LEVEL=N")
        ->allow_extra_args(false);
    command->add_option("--iterations", request.iterations, "Larger top levels to try: 5, 10, 20 or 30")
        ->type_name("K");
    addSettings(command, request.settings);
    command->add_option("--out", request.out, "Save the study with the sizes found")->type_name("NEW");
    addForce(command, request.force);
    command->add_flag("--json", request.json, "Answer with one JSON object");
    command->footer(
        "Example:\n  lorvane-cli optimal schools.Lorvane --power 0.9 --fix 1=22 --out cheap.Lorvane\n"
        "  lorvane-cli optimal schools.Lorvane --budget 120000");
}

void addMdes(CLI::App& cli, MdesRequest& request) {
    CLI::App* command = cli.add_subcommand("mdes", "The smallest effect that the study can detect");
    command->add_option("STUDY", request.study, "Study file")->required();
    command->add_option("--power", request.power, "Required power; the study's own where it is not given")
        ->type_name("P");
    addSettings(command, request.settings);
    command->add_flag("--json", request.json, "Answer with one JSON object");
    command->footer("Example:\n  lorvane-cli mdes schools.Lorvane --power 0.9");
}

void addGraph(CLI::App& cli, GraphCommandRequest& request) {
    CLI::App* command =
        cli.add_subcommand("graph", "Power over a parameter of the study, as picture or table");
    command->add_option("STUDY", request.study, "Study file")->required();
    command->add_option("--x", request.x, "Variable of the X-axis, as \"ICC for Level 2\"")
        ->required()
        ->type_name("KEY");
    command->add_option("--series", request.series, "Variable with a line for each value")->type_name("KEY");
    command->add_option("--values", request.values, "Values of the series, 2 to 5")
        ->delimiter(',')
        ->type_name("A,B,...");
    command->add_option("--range", request.range, "Range of the X-axis; automatic where it is not given")
        ->type_name("A:B");
    addSettings(command, request.settings);
    command->add_flag("--cost", request.cost, "Show the cost, too");
    command
        ->add_option("--out", request.out,
                     "Picture (.png, .jpg, .svg, .pdf) or table (.csv, .xls, .xlsx) to write")
        ->required()
        ->type_name("FILE");
    command->footer(
        "Example:\n  lorvane-cli graph schools.Lorvane --x \"Number of Level 3\" --out schools.png");
}

void addReport(CLI::App& cli, ReportRequest& request) {
    CLI::App* command = cli.add_subcommand("report", "The study in sentences and tables, as a document");
    command->add_option("STUDY", request.study, "Study file")->required();
    addSettings(command, request.settings);
    command->add_flag("--checklist", request.checklist,
                      "Add what a paper on a cluster trial has to tell of its sample size");
    command->add_option("--out", request.out, "Document to write: .pdf, .rtf or .txt")
        ->required()
        ->type_name("FILE");
    command->footer("Example:\n  lorvane-cli report schools.Lorvane --out schools.pdf");
}

void addNew(CLI::App& cli, NewRequest& request) {
    CLI::App* command = cli.add_subcommand("new", "A study file from the start values");
    command->add_option("--out", request.out, "Study file to write")->required()->type_name("STUDY");
    addForce(command, request.force);
    addSettings(command, request.settings);
    command->footer("Example:\n  lorvane-cli new --out trial.Lorvane --set NumLevels=3 --set txtd=0.4");
}

void addScenarios(CLI::App& cli, ScenariosRequest& request) {
    CLI::App* command = cli.add_subcommand("scenarios", "The table of scenarios of a study");
    command->add_option("STUDY", request.study, "Study file")->required();
    command->add_flag("--json", request.json, "Answer with one JSON object");
    command->footer("Example:\n  lorvane-cli scenarios schools.Lorvane");
}

void addDrive(CLI::App& cli, std::string& study) {
    CLI::App* command =
        cli.add_subcommand("drive", "A scripted session: one command a line from standard input");
    command->add_option("STUDY", study, "Study file to start from");
    command->footer("Example:\n  echo 'get txtPower' | lorvane-cli drive schools.Lorvane");
}

int runDrive(const std::string& study, DistributionLibrary& distributions, const SystemLocale& locale,
             FileStore& files) {
    ScriptedDialogs messages;
    MemorySettings settings;
    QtChart chart;
    SheetFiles sheets;
    QtDocumentPress press;
    Platform platform{distributions, locale, files, messages, messages, settings, programFolder()};
    platform.chart = &chart;
    platform.sheets = &sheets;
    platform.press = &press;
    platform.facts.version = LORVANE_VERSION;
    Application application(platform);
    if (study.empty())
        application.start("");
    else
        application.open(study);
    DriveSession session{application, distributions, messages};
    drive(std::cin, std::cout, session);
    return ExitCodes::done;
}

int runChosen(const CLI::App& cli, const Requests& requests) {
    NumericDistributionLibrary distributions;
    const EnvironmentLocale locale;
    DiskFileStore files;
    if (cli.got_subcommand("drive"))
        return runDrive(requests.driven, distributions, locale, files);
    const SteadyClock clock;
    Session session(distributions, detectCurrency(locale), clock);
    const StudyStore store(files, programFolder());
    const CommandLine line{session, store, std::cout, std::cerr};
    if (cli.got_subcommand("power"))
        return printPower(requests.power, line);
    if (cli.got_subcommand("optimal"))
        return printOptimal(requests.optimal, line);
    if (cli.got_subcommand("mdes"))
        return printMdes(requests.mdes, line);
    if (cli.got_subcommand("graph")) {
        QtChart chart;
        SheetFiles sheets;
        return makeGraph(requests.graph, {files, chart, sheets}, line);
    }
    if (cli.got_subcommand("report")) {
        QtDocumentPress press;
        return writeReport(requests.report, files, press, line);
    }
    if (cli.got_subcommand("new"))
        return makeNew(requests.fresh, line);
    return printScenarios(requests.scenarios, line);
}

// The exit code for the exception in flight.
int codeOfFailure() {
    try {
        throw;
    } catch (const UseProblem&) {
        return ExitCodes::wrongUse;
    } catch (const FileProblem&) {
        return ExitCodes::fileFailed;
    } catch (const std::system_error&) {
        return ExitCodes::fileFailed;
    } catch (...) {
        return ExitCodes::noAnswer;
    }
}

int run(int argc, char** argv) {
    CLI::App cli("Lorvane plans cluster-randomized trials: power and cost of designs of two to four levels.",
                 "lorvane-cli");
    Requests requests;
    cli.set_version_flag("--version", "Lorvane " LORVANE_VERSION);
    cli.require_subcommand(1);
    cli.footer("Example:\n  lorvane-cli power schools.Lorvane\n"
               "Exit codes: 0 done, 1 the study gives no answer, 2 wrong use, 3 a file could not be read or "
               "written.");
    addPower(cli, requests.power);
    addOptimal(cli, requests.optimal);
    addMdes(cli, requests.mdes);
    addGraph(cli, requests.graph);
    addReport(cli, requests.report);
    addNew(cli, requests.fresh);
    addScenarios(cli, requests.scenarios);
    addDrive(cli, requests.driven);
    try {
        cli.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        std::ostringstream told;
        if (cli.exit(error, std::cout, told) == 0)
            return ExitCodes::done;
        std::cerr << printable(told.str(), LineEnds::kept);
        return ExitCodes::wrongUse;
    }
    return runChosen(cli, requests);
}

// Whatever happens ends in one sentence.
int runOrTell(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (...) {
        std::cerr << failureWords() << '\n';
        return codeOfFailure();
    }
}

}  // namespace

// A reader that goes away early is told of like a full disk, not by a silent end.
int main(int argc, char** argv) {
    std::signal(SIGPIPE, SIG_IGN);
    const int code = runOrTell(argc, argv);
    if (std::cout.flush())
        return code;
    std::cerr << "The answer cannot be written to standard output; check that its reader goes on reading or "
                 "that its disk has room.\n";
    return ExitCodes::fileFailed;
}
