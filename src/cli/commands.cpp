// The commands for people.
#include "cli/commands.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>
#include <ostream>

#include "base/number_text.h"
#include "cli/command_words.h"
#include "cli/json_text.h"
#include "engine/effect_metrics.h"

namespace lorvane {

namespace {

using Json = nlohmann::ordered_json;

struct Effect {
    std::string name;
    double value;
};

Effect effectOf(const Study& s) {
    const std::string name(GetESName(s));
    if (s.isMeans())
        return {name + (s.DType == DTypes::within ? ", d (within)" : ", d (total)"), s.txtd};
    switch (s.BinaryType) {
    case BinaryTypes::oddsRatio:
        return {name, s.txtOR};
    case BinaryTypes::riskRatio:
        return {name, s.txtRR};
    case BinaryTypes::riskDifference:
        return {name, s.txtRD};
    default:
        return {name, s.txtP2};
    }
}

std::string costText(const Application& application) {
    const std::int32_t cost = application.design().study().result.txtCost;
    return cost < 1 ? "n/a" : ReFormatCurrency(cost, application.design().settings().currency);
}

void printPowerLines(const Application& application, std::ostream& out) {
    const Study& s = application.design().study();
    const Effect effect = effectOf(s);
    if (application.hasPower()) {
        printLine(out, "Power", fixedText(s.result.txtPower, 4));
        printLine(out, "Critical value", fixedText(s.result.txtCritT, 4));
        printLine(out, "Degrees of freedom", shortestText(s.result.xdf));
        printLine(out, "Lambda", fixedText(s.result.xLambda, 4));
    }
    printLine(out, "Cost", costText(application));
    printLine(out, "Effect", capitalised(effect.name) + " " + shortestText(effect.value));
}

Json powerJson(const Application& application) {
    const Study& s = application.design().study();
    const bool valid = application.hasPower();
    const auto ifValid = [&](double value) { return valid ? Json(value) : Json(); };
    const Effect effect = effectOf(s);
    return {{"valid", valid},
            {"power", ifValid(s.result.txtPower)},
            {"criticalValue", ifValid(s.result.txtCritT)},
            {"df", ifValid(s.result.xdf)},
            {"lambda", ifValid(s.result.xLambda)},
            {"cost", s.result.txtCost < 1 ? Json() : Json(s.result.txtCost)},
            {"effectName", effect.name},
            {"effect", effect.value},
            {"message", valid ? "" : application.whyNoPower()}};
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

}  // namespace

int printPower(const PowerRequest& request, Application& application, std::ostream& out,
               std::ostream& errors) {
    application.open(request.study);
    if (!request.scenario.empty())
        application.restoreScenario(request.scenario);
    applySettings(request.settings, application);
    if (request.json)
        out << jsonText(powerJson(application)) << '\n';
    else
        printPowerLines(application, out);
    if (application.hasPower())
        return ExitCodes::done;
    errors << onOneLine(application.whyNoPower()) << '\n';
    return ExitCodes::noAnswer;
}

int makeNew(const NewRequest& request, Application& application, std::ostream& out) {
    applySettings(request.settings, application);
    application.save(request.out);
    out << "The file " << request.out << " has been saved.\n";
    return ExitCodes::done;
}

int printScenarios(const ScenariosRequest& request, Application& application, std::ostream& out) {
    application.open(request.study);
    const std::vector<ScenarioLine> lines = application.scenarios();
    if (request.json) {
        Json rows = Json::array();
        for (const ScenarioLine& line : lines)
            rows.push_back({{"name", line.name},
                            {"description", line.description},
                            {"power", line.power},
                            {"cost", line.cost}});
        out << jsonText({{"scenarios", std::move(rows)}}) << '\n';
        return ExitCodes::done;
    }
    Table table = {{"Name", "Description", "Power", "Cost"}};
    for (const ScenarioLine& line : lines)
        table.push_back({line.name, line.description, line.power, line.cost});
    printTable(table, out);
    return ExitCodes::done;
}

}  // namespace lorvane
