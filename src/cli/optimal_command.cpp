// The command for the cheapest design.
#include "cli/optimal_command.h"

#include <cmath>
#include <nlohmann/json.hpp>
#include <ostream>

#include "base/number_text.h"
#include "cli/command_words.h"
#include "cli/commands.h"
#include "cli/json_text.h"

namespace lorvane {

namespace {

using Json = nlohmann::ordered_json;

// "2=5": level 2 gets 5 units per unit above.
void fix(const std::string& text, Application& application) {
    const std::size_t sign = text.find('=');
    const auto level = readNumber(text.substr(0, sign));
    const auto size = sign == std::string::npos ? std::nullopt : readNumber(text.substr(sign + 1));
    const int top = application.design().study().NumLevels;
    const auto isWhole = [](double value) { return value == std::floor(value); };
    if (!level || !size || !isWhole(*level) || !isWhole(*size) || *level < 1 || *level >= top || *size < 1 ||
        *size > 1000000)
        throw UseProblem("--fix takes LEVEL=N with a level below the top, 1 to " + std::to_string(top - 1) +
                         ", and a whole number of units from 1 to 1000000, not \"" + text + "\".");
    application.optimalWindow().setByHand(static_cast<int>(*level), *size);
}

void search(const OptimalRequest& request, Application& application) {
    OptimalWindow& wizard = application.optimalWindow();
    if (request.power && !(*request.power > 0 && *request.power < 1))
        throw UseProblem("--power takes a power above 0 and below 1, not " + shortestText(*request.power) +
                         ".");
    wizard.DisplayOptimalOptions();
    if (request.power)
        wizard.requirePower(*request.power);
    for (const std::string& text : request.fixes)
        fix(text, application);
    wizard.ComputeOptimalDesign();
}

std::string sizeWords(const Study& s, int level, double size) {
    std::string words = shortestText(size);
    if (level == s.RandomizedLevel)
        words += " per group";
    if (level < s.NumLevels)
        words += " in each of the " + s.txtName(level + 1);
    return words;
}

void printFound(const Application& application, const OptimalResult& result, std::ostream& out) {
    const Study& s = application.design().study();
    const Trial& best = result.cheapest();
    printLine(out, "Cost", application.optimalWindow().costFigure());
    printLine(out, "Power", fixedText(best.power, 4));
    for (int level = s.NumLevels; level >= 1; --level)
        printLine(out, s.txtName(level), sizeWords(s, level, best.sizes(level)));
    const std::string& notes = application.optimalWindow().pnlAdjustInner().Caption;
    if (!notes.empty())
        out << '\n' << notes << '\n';
}

Json optimalJson(const Application& application, const OptimalResult* result, const std::string& why) {
    const Study& s = application.design().study();
    Json sizes = Json::array();
    for (int level = 1; result != nullptr && level <= s.NumLevels; ++level)
        sizes.push_back({{"level", level},
                         {"name", s.txtName(level)},
                         {"blocked", s.isBlocked(level)},
                         {"size", result->cheapest().sizes(level)}});
    return {{"found", result != nullptr},
            {"cost", result == nullptr ? Json() : Json(result->cheapest().cost)},
            {"power", result == nullptr ? Json() : Json(result->cheapest().power)},
            {"sizes", std::move(sizes)},
            {"notes", result == nullptr ? "" : application.optimalWindow().pnlAdjustInner().Caption},
            {"message", why}};
}

// Why nothing was found: the wizard's title and text.
std::string whyNothing(const Application& application) {
    const OptimalWindow& wizard = application.optimalWindow();
    std::string why = onOneLine(wizard.pnlOptimalTitle().Caption);
    why += why.empty() ? "" : ". ";
    return why + onOneLine(wizard.pnlOptimalInner().Caption);
}

}  // namespace

int printOptimal(const OptimalRequest& request, Application& application, std::ostream& out,
                 std::ostream& errors) {
    application.open(request.study);
    applySettings(request.settings, application);
    if (request.iterations)
        application.set(
            std::vector<Assignment>{{"IterationsForOptimal", static_cast<double>(*request.iterations)}});
    const bool computable = application.hasPower();
    if (computable)
        search(request, application);
    const OptimalResult* result = computable ? application.optimalWindow().result() : nullptr;
    const std::string why = result != nullptr ? ""
                            : computable      ? whyNothing(application)
                                              : onOneLine(application.whyNoPower());
    if (request.json)
        out << jsonText(optimalJson(application, result, why)) << '\n';
    else if (result != nullptr)
        printFound(application, *result, out);
    if (result == nullptr) {
        errors << why << '\n';
        return ExitCodes::noAnswer;
    }
    if (!request.out.empty()) {
        application.optimalWindow().paste();
        application.save(request.out);
    }
    return ExitCodes::done;
}

}  // namespace lorvane
