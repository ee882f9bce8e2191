// The commands for people.
#include "cli/commands.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>
#include <ostream>

#include "base/number_text.h"
#include "base/utf8.h"
#include "cli/json_text.h"
#include "engine/power_test.h"
#include "persistence/scenario_list.h"
#include "session/answers.h"
#include "validation/icc_messages.h"

namespace lorvane {

namespace {

using Json = nlohmann::ordered_json;

void printPowerLines(const Session& session, std::ostream& out) {
    const PowerResult& result = session.study().result;
    const EffectAnswer effect = effectOf(session.study());
    if (hasPower(session)) {
        printLine(out, "Power", fixedText(result.txtPower, 4));
        printLine(out, "Critical value", fixedText(result.txtCritT, 4));
        if (!isNormalTest(session.study()))
            printLine(out, "Degrees of freedom", shortestText(result.xdf));
        printLine(out, "Lambda", fixedText(result.xLambda, 4));
    }
    printLine(out, "Cost", costText(result.txtCost, session.settings().currency));
    printLine(out, "Effect", capitalised(effect.name) + " " + shortestText(effect.value));
    printNote(out, truncationNote(session.study()));
}

Json powerJson(const Session& session) {
    const PowerResult& result = session.study().result;
    const bool valid = hasPower(session);
    const auto ifValid = [&](double value) { return valid ? Json(value) : Json(); };
    const EffectAnswer effect = effectOf(session.study());
    Json json = {{"valid", valid},
                 {"power", ifValid(result.txtPower)},
                 {"criticalValue", ifValid(result.txtCritT)},
                 {"df", ifValid(result.xdf)},
                 {"lambda", ifValid(result.xLambda)},
                 {"cost", result.txtCost < 1 ? Json() : Json(result.txtCost)},
                 {"effectName", effect.name},
                 {"effect", effect.value},
                 {"message", valid ? "" : whyNoPower(session)}};
    if (isNormalTest(session.study()))
        json.erase("df");
    addNotes(json, truncationNote(session.study()));
    return json;
}

using Table = std::vector<std::array<std::string, 4>>;

// Letters of a UTF-8 text: all bytes but those that continue a letter.
std::size_t lettersOf(const std::string& text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

void printTable(const Table& table, std::ostream& out) {
    std::array<std::size_t, 4> widths{};
    for (const auto& row : table) {
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], lettersOf(row[i]));
    }
    for (const auto& row : table) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::string fill(widths[i] - lettersOf(row[i]), ' ');
            const bool isNumber = i >= 2;
            line += (i > 0 ? "  " : "") + (isNumber ? fill + row[i] : row[i] + fill);
        }
        out << line << '\n';
    }
}

struct NotedScenario {
    ScenarioLine line;
    std::string note;
};

std::vector<NotedScenario> notedScenarios(const Session& session) {
    std::vector<NotedScenario> scenarios;
    for (const std::size_t place : session.scenarios().listed())
        scenarios.push_back({scenarioLine(session.scenarios(), place), scenarioNote(session, place)});
    return scenarios;
}

void printScenariosAsJson(const std::vector<NotedScenario>& scenarios, std::ostream& out) {
    Json rows = Json::array();
    for (const auto& [scenario, note] : scenarios) {
        rows.push_back({{"name", scenario.name},
                        {"description", scenario.description},
                        {"power", scenario.power},
                        {"cost", scenario.cost}});
        addNotes(rows.back(), note);
    }
    out << jsonText({{"scenarios", std::move(rows)}}) << '\n';
}

void printScenarioTable(const std::vector<NotedScenario>& scenarios, std::ostream& out) {
    Table table = {{"Name", "Description", "Power", "Cost"}};
    for (const auto& [scenario, note] : scenarios)
        table.push_back(
            {printable(scenario.name), printable(scenario.description), scenario.power, scenario.cost});
    printTable(table, out);
    for (const auto& [scenario, note] : scenarios) {
        if (!note.empty())
            printNote(out, printable(scenario.name) + ": " + note);
    }
}

}  // namespace

int printPower(const PowerRequest& request, const CommandLine& line) {
    Session& session = line.session;
    line.store.open(session, request.study);
    if (!request.scenario.empty())
        restoreScenario(session, request.scenario);
    applySettings(request.settings, session);
    if (request.json)
        line.out << jsonText(powerJson(session)) << '\n';
    else
        printPowerLines(session, line.out);
    if (hasPower(session))
        return ExitCodes::done;
    line.errors << onOneLine(whyNoPower(session)) << '\n';
    return ExitCodes::noAnswer;
}

int makeNew(const NewRequest& request, const CommandLine& line) {
    if (!request.force)
        line.store.checkFree(request.out);
    applySettings(request.settings, line.session);
    line.store.save(line.session, request.out);
    line.out << "The file " << printable(request.out) << " has been saved.\n";
    return ExitCodes::done;
}

int printScenarios(const ScenariosRequest& request, const CommandLine& line) {
    line.store.open(line.session, request.study);
    const std::vector<NotedScenario> scenarios = notedScenarios(line.session);
    if (request.json)
        printScenariosAsJson(scenarios, line.out);
    else
        printScenarioTable(scenarios, line.out);
    return ExitCodes::done;
}

}  // namespace lorvane
