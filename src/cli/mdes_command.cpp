// The command for the smallest detectable effect.
#include "cli/mdes_command.h"

#include <nlohmann/json.hpp>
#include <ostream>

#include "base/number_text.h"
#include "base/use_problem.h"
#include "cli/json_text.h"
#include "engine/effect_metrics.h"
#include "search/mdes_texts.h"
#include "session/answers.h"
#include "validation/icc_messages.h"

namespace lorvane {

namespace {

using Json = nlohmann::ordered_json;

constexpr double lowestPower = 0.01;
constexpr double highestPower = 0.999;

double requiredPower(const MdesRequest& request, const Study& study) {
    const double power = request.power.value_or(study.ReqPower);
    if (request.power && !(power >= lowestPower && power <= highestPower))
        throw UseProblem("--power takes a power from 0.01 to 0.999, not " + shortestText(power) + ".");
    return power;
}

std::string words(const Study& s, const MdesResult& result) {
    const MdesLines lines = mdesLines(s, result);
    return lines.first + "\n" + lines.second;
}

// Why there is no effect; empty when there is one.
std::string whyNothing(const Session& session, const MdesResult& result) {
    if (result.outcome == MdesOutcome::problem && !hasPower(session))
        return onOneLine(whyNoPower(session));
    return result.outcome == MdesOutcome::found ? "" : onOneLine(words(session.study(), result));
}

void printFound(const Study& s, double required, const MdesResult& result, std::ostream& out) {
    printLine(out, capitalised(std::string(GetESName(s))), shortestText(result.effect));
    printLine(out, "Power", fixedText(result.power, 4));
    printLine(out, "Required power", shortestText(required));
    if (s.isBinary()) {
        printLine(out, "Rate, " + s.treatedName(), fixedText(result.treatedRate, 4));
        printLine(out, "Rate, " + s.controlName(), fixedText(result.controlRate, 4));
    }
    printNote(out, words(s, result));
    printNote(out, truncationNote(s));
}

Json mdesJson(const Study& s, double required, const MdesResult& result, const std::string& why) {
    const bool found = result.outcome == MdesOutcome::found;
    const auto ifSearched = [&](double value) {
        return result.outcome == MdesOutcome::problem ? Json() : Json(value);
    };
    Json json = {{"found", found},
                 {"effectName", std::string(GetESName(s))},
                 {"effect", ifSearched(result.effect)},
                 {"power", ifSearched(result.power)},
                 {"requiredPower", required},
                 {"treatedRate", found && s.isBinary() ? Json(result.treatedRate) : Json()},
                 {"controlRate", found && s.isBinary() ? Json(result.controlRate) : Json()},
                 {"lowCellCounts", found && result.countsAreLow},
                 {"text", found ? words(s, result) : ""},
                 {"message", why}};
    addNotes(json, truncationNote(s));
    return json;
}

}  // namespace

int printMdes(const MdesRequest& request, const CommandLine& line) {
    Session& session = line.session;
    line.store.open(session, request.study);
    applySettings(request.settings, session);
    const Study& study = session.study();
    const double required = requiredPower(request, study);
    const MdesResult result = FindMDES(session.trial(), required);
    const std::string why = whyNothing(session, result);
    if (request.json)
        line.out << jsonText(mdesJson(study, required, result, why)) << '\n';
    else if (result.outcome == MdesOutcome::found)
        printFound(study, required, result, line.out);
    if (result.outcome == MdesOutcome::found)
        return ExitCodes::done;
    line.errors << why << '\n';
    return ExitCodes::noAnswer;
}

}  // namespace lorvane
