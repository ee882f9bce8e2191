// The command for the cheapest design, and for the most power that a budget pays.
#include "cli/optimal_command.h"

#include <cmath>
#include <nlohmann/json.hpp>
#include <ostream>

#include "base/names.h"
#include "base/number_text.h"
#include "base/use_problem.h"
#include "cli/json_text.h"
#include "platform/time_limit.h"
#include "search/optimal_proof.h"
#include "search/optimal_texts.h"
#include "search/proof_texts.h"
#include "session/answers.h"
#include "session/assignments.h"
#include "session/structure.h"

namespace lorvane {

namespace {

using Json = nlohmann::ordered_json;

constexpr double highestBudget = 2147483647;

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
    if (request.budget && (request.power || request.told))
        throw UseProblem(std::string("--budget asks for the most power; leave ") +
                         (request.power ? "--power" : "--told") + " out.");
    if (request.budget && !(*request.budget >= 1 && *request.budget <= highestBudget))
        throw UseProblem("--budget takes an amount from 1 to 2147483647, not " +
                         shortestText(*request.budget) + ".");
    OptimalOptions options;
    options.numReps.fill(1);
    options.iterations = session.settings().IterationsForOptimal;
    options.power = request.power.value_or(session.study().ReqPower);
    options.allowLowCellCounts = session.settings().AllowLowCellCounts;
    options.goal = request.budget ? OptimalGoal::mostPower : OptimalGoal::cheapest;
    options.budget = std::floor(request.budget.value_or(0));
    for (const std::string& text : request.fixes)
        fix(text, session.study().NumLevels, options);
    return options;
}

/// The search for one request, and what it tells.
struct Answer {
    OptimalOptions options;
    OptimalResult result;
    std::string notes;
    std::string why;  ///< why nothing was found; empty when something was
    bool found() const { return why.empty(); }
    bool asksForPower() const { return options.goal == OptimalGoal::mostPower; }
    bool isProven() const { return result.proof && result.proof->proven; }

    /// The design of the exact search, where it ran and met one.
    const Trial& best() const {
        return result.proof && result.proof->best ? *result.proof->best : result.bestTrial();
    }
};

OptimalResult run(const OptimalRequest& request, const OptimalOptions& options, const Session& session) {
    NoProgress unwatched;
    TimeLimit limit(unwatched, session.clock(), longestProof);
    if (options.goal == OptimalGoal::mostPower)
        return searchMostPower(session.trial(), options, limit);
    OptimalResult result = searchOptimalDesign(session.trial(), options, unwatched);
    if (result.ending == OptimalEnding::found && !request.told)
        proveCheapest(session.trial(), options, limit, result);
    return result;
}

// The sentence of the proof comes first. That a cheaper design exists is not told: it is the answer.
std::string notesOf(const Study& s, const Answer& answer, const Currency& currency) {
    const OptimalResult& result = answer.result;
    std::vector<std::string> notes;
    if (answer.isProven())
        notes.push_back(answer.asksForPower() ? proofWords(s, result, currency)
                                              : "No cheaper design exists.");
    if (otherDesign(result))
        notes.push_back("The quick search finds " + optimalCostText(result.bestTrial().cost, currency) +
                        " with " + sizesInWords(s, result.bestTrial().sizes) + ".");
    for (std::string& note : optimalNotes(s, result, answer.options, currency)) {
        if (!otherDesign(result) || note != proofWords(s, result, currency))
            notes.push_back(std::move(note));
    }
    std::string text;
    for (const std::string& note : notes)
        text += (text.empty() ? "" : "\n\n") + note;
    return text;
}

Answer search(const OptimalRequest& request, Session& session) {
    Answer answer;
    if (!hasPower(session)) {
        answer.why = onOneLine(whyNoPower(session));
        return answer;
    }
    answer.options = optionsOf(request, session);
    answer.result = run(request, answer.options, session);
    session.keepSearchOutcome(answer.result.flags);
    const Currency& currency = session.settings().currency;
    if (answer.result.ending != OptimalEnding::found) {
        const OptimalFailure failure =
            optimalFailure(session.study(), answer.result, readinessProblems(session.study()), currency);
        const std::string title = onOneLine(failure.title);
        answer.why = title + (title.empty() ? "" : ". ") + onOneLine(failure.text);
        return answer;
    }
    answer.notes = notesOf(session.study(), answer, currency);
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

// What is asked for comes first.
void printFound(const Study& s, const Answer& answer, const Currency& currency, std::ostream& out) {
    const Trial& best = answer.best();
    const std::string cost = optimalCostText(best.cost, currency);
    if (!answer.asksForPower())
        printLine(out, "Cost", cost);
    printLine(out, "Power", powerText(best.power));
    if (answer.asksForPower()) {
        printLine(out, "Cost", cost);
        printLine(out, "Left", leftOfBudget(best, answer.options.budget, currency));
    }
    for (int level = s.NumLevels; level >= 1; --level)
        printLine(out, s.txtName(level), sizeWords(s, level, best.sizes(level)));
    printNote(out, answer.notes);
}

Json sizesJson(const Study& s, const Trial& design) {
    Json sizes = Json::array();
    for (int level = 1; level <= s.NumLevels; ++level)
        sizes.push_back({{"level", level},
                         {"name", s.txtName(level)},
                         {"blocked", s.isBlocked(level)},
                         {"size", design.sizes(level)}});
    return sizes;
}

Json optimalJson(const Study& s, const Answer& answer) {
    Json json = {{"found", answer.found()}, {"proven", answer.found() && answer.isProven()}};
    json["cost"] = answer.found() ? Json(answer.best().cost) : Json();
    json["power"] = answer.found() ? Json(answer.best().power) : Json();
    json["sizes"] = answer.found() ? sizesJson(s, answer.best()) : Json::array();
    json["notes"] = answer.notes;
    json["message"] = answer.why;
    if (answer.asksForPower()) {
        json["budget"] = answer.options.budget;
        json["left"] = answer.found() ? Json(answer.options.budget - answer.best().cost) : Json();
    } else if (answer.found() && answer.result.proof) {
        const Trial& quick = answer.result.bestTrial();
        json["told"] = {{"cost", quick.cost}, {"power", quick.power}, {"sizes", sizesJson(s, quick)}};
    }
    return json;
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
        printFound(session.study(), answer, session.settings().currency, line.out);
    if (!answer.found()) {
        line.errors << answer.why << '\n';
        return ExitCodes::noAnswer;
    }
    if (!request.out.empty()) {
        pasteSizes(session, answer.best().sizes);
        line.store.save(session, request.out);
    }
    return ExitCodes::done;
}

}  // namespace lorvane
