// The command for the cheapest design.
#include "cli/optimal_command.h"

#include <cmath>
#include <nlohmann/json.hpp>
#include <ostream>

#include "base/names.h"
#include "base/number_text.h"
#include "base/use_problem.h"
#include "cli/json_text.h"
#include "search/optimal_texts.h"
#include "session/answers.h"
#include "session/assignments.h"
#include "session/structure.h"

namespace lorvane {

namespace {

using Json = nlohmann::ordered_json;

// The setting has a name of its own on the command line.
void setIterations(Session& session, int iterations) {
    const FieldRef field = writableField("IterationsForOptimal");
    const std::vector<Assignment> values = {{field.name(), static_cast<double>(iterations)}};
    const std::string why = refusal(session.study(), field, values[0].value, ValueSource::dialog);
    if (!why.empty())
        throw UseProblem("--iterations" + why.substr(field.name().size()));
    setValues(session, values);
}

// "2=5": level 2 gets 5 units per unit above.
void fix(const std::string& text, int top, OptimalOptions& options) {
    const std::size_t sign = text.find('=');
    const auto level = readNumber(text.substr(0, sign));
    const auto size = sign == std::string::npos ? std::nullopt : readNumber(text.substr(sign + 1));
    const auto isWhole = [](double value) { return value == std::floor(value); };
    if (!level || !size || !isWhole(*level) || !isWhole(*size) || *level < 1 || *level >= top || *size < 1 ||
        *size > 1000000)
        throw UseProblem("--fix takes LEVEL=N with a level below the top, 1 to " + std::to_string(top - 1) +
                         ", and a whole number of units from 1 to 1000000, not " + inQuotes(text) + ".");
    options.manual(static_cast<int>(*level)) = true;
    options.numReps(static_cast<int>(*level)) = *size;
}

OptimalOptions optionsOf(const OptimalRequest& request, const Session& session) {
    if (request.power && !(*request.power > 0 && *request.power < 1))
        throw UseProblem("--power takes a power above 0 and below 1, not " + shortestText(*request.power) +
                         ".");
    OptimalOptions options;
    options.numReps.fill(1);
    options.iterations = session.settings().IterationsForOptimal;
    options.power = request.power.value_or(session.study().ReqPower);
    options.allowLowCellCounts = session.settings().AllowLowCellCounts;
    for (const std::string& text : request.fixes)
        fix(text, session.study().NumLevels, options);
    return options;
}

/// The search for one request, and what it tells.
struct Answer {
    OptimalResult result;
    std::string cost;
    std::string notes;
    std::string why;  ///< why nothing was found; empty when something was
    bool found() const { return why.empty(); }
};

Answer search(const OptimalRequest& request, Session& session) {
    Answer answer;
    if (!hasPower(session)) {
        answer.why = onOneLine(whyNoPower(session));
        return answer;
    }
    const OptimalOptions options = optionsOf(request, session);
    NoProgress unwatched;
    answer.result = searchOptimalDesign(session.trial(), options, unwatched);
    session.keepSearchOutcome(answer.result.flags);
    if (answer.result.ending != OptimalEnding::found) {
        const OptimalFailure failure =
            optimalFailure(session.study(), answer.result, readinessProblems(session.study()));
        const std::string title = onOneLine(failure.title);
        answer.why = title + (title.empty() ? "" : ". ") + onOneLine(failure.text);
        return answer;
    }
    const Currency& currency = session.settings().currency;
    answer.cost = optimalCostText(answer.result.cheapest().cost, currency);
    for (const std::string& note : optimalNotes(session.study(), answer.result, options, currency))
        answer.notes += (answer.notes.empty() ? "" : "\n\n") + note;
    return answer;
}

std::string sizeWords(const Study& s, int level, double size) {
    std::string words = shortestText(size);
    if (level == s.RandomizedLevel)
        words += " per group";
    if (level < s.NumLevels)
        words += " in each of the " + s.txtName(level + 1);
    return words;
}

void printFound(const Study& s, const Answer& answer, std::ostream& out) {
    const Trial& best = answer.result.cheapest();
    printLine(out, "Cost", answer.cost);
    printLine(out, "Power", fixedText(best.power, 4));
    for (int level = s.NumLevels; level >= 1; --level)
        printLine(out, s.txtName(level), sizeWords(s, level, best.sizes(level)));
    printNote(out, answer.notes);
}

Json optimalJson(const Study& s, const Answer& answer) {
    Json sizes = Json::array();
    for (int level = 1; answer.found() && level <= s.NumLevels; ++level)
        sizes.push_back({{"level", level},
                         {"name", s.txtName(level)},
                         {"blocked", s.isBlocked(level)},
                         {"size", answer.result.cheapest().sizes(level)}});
    return {{"found", answer.found()},
            {"cost", answer.found() ? Json(answer.result.cheapest().cost) : Json()},
            {"power", answer.found() ? Json(answer.result.cheapest().power) : Json()},
            {"sizes", std::move(sizes)},
            {"notes", answer.notes},
            {"message", answer.why}};
}

}  // namespace

int printOptimal(const OptimalRequest& request, const CommandLine& line) {
    Session& session = line.session;
    if (!request.out.empty() && !request.force)
        line.store.checkFree(request.out);
    line.store.open(session, request.study);
    applySettings(request.settings, session);
    if (request.iterations)
        setIterations(session, *request.iterations);
    const Answer answer = search(request, session);
    if (request.json)
        line.out << jsonText(optimalJson(session.study(), answer)) << '\n';
    else if (answer.found())
        printFound(session.study(), answer, line.out);
    if (!answer.found()) {
        line.errors << answer.why << '\n';
        return ExitCodes::noAnswer;
    }
    if (!request.out.empty()) {
        pasteSizes(session, answer.result.cheapest().sizes);
        line.store.save(session, request.out);
    }
    return ExitCodes::done;
}

}  // namespace lorvane
