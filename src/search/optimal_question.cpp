// The question of the optimal design wizard.
#include "search/optimal_question.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "base/money.h"
#include "base/names.h"
#include "base/number_text.h"
#include "base/use_problem.h"
#include "session/field_words.h"

namespace lorvane {

namespace {

using enum OptimalGoal;

constexpr const char* settingsFollow = ", using the following settings";
constexpr double nearby = 1e-9;  // parts one choice of a power from another

FieldRef requiredPower() { return {&fieldOf("ReqPower"), 0}; }

std::string percentText(double power) { return shortestText(roundHalfToEven(power * 100 * 100) / 100) + "%"; }

// "80%, 85% and 90%"
std::string choicesText() {
    const auto choices = requiredPower()->choices;
    std::string text;
    for (std::size_t i = 0; i < choices.size(); ++i) {
        if (i > 0)
            text += i + 1 < choices.size() ? ", " : " and ";
        text += percentText(choices[i]);
    }
    return text;
}

// A power that is typed as "90" or "90%"; nothing where it is no choice.
std::optional<double> readPower(std::string_view text) {
    text = trimmed(text);
    if (text.ends_with('%'))
        text.remove_suffix(1);
    const auto percent = readNumber(text);
    for (const double choice : requiredPower()->choices) {
        if (percent && std::fabs(*percent / 100 - choice) < nearby)
            return choice;
    }
    return std::nullopt;
}

// An amount that is typed with or without its currency and the commas of its thousands.
std::optional<double> readMoney(std::string_view text, const std::string& symbol) {
    text = trimmed(text);
    if (text.starts_with(symbol))
        text.remove_prefix(symbol.size());
    else if (text.ends_with(symbol))
        text.remove_suffix(symbol.size());
    text = trimmed(text);
    std::string digits(text);
    std::erase(digits, ',');
    const auto amount = readNumber(digits);
    const bool fits =
        amount && *amount >= OptimalQuestion::leastBudget && *amount <= OptimalQuestion::largestBudget;
    const bool isGrouped = digits.size() != text.size();
    if (!fits || (isGrouped && groupedText(static_cast<std::int64_t>(*amount)) != text))
        return std::nullopt;
    return amount;
}

// The power of ten that is at most a hundredth of the budget.
double budgetStep(double budget) {
    double step = 1;
    while (step * 1000 <= budget)
        step *= 10;
    return step;
}

}  // namespace

OptimalQuestion::OptimalQuestion(Design& design) : design_(design) {
    optGoal_(numberOf(cheapest)).Caption = "Cheapest design for a power of";
    optGoal_(numberOf(mostPower)).Caption = "Most power for a budget of";
    startAnew();
}

void OptimalQuestion::registerNames(ControlRegistry& registry) const {
    const std::string power = "frmOptimal.txtReqPower", budget = "frmOptimal.txtBudget";
    for (const OptimalGoal goal : {cheapest, mostPower}) {
        registry.add(indexedName("frmOptimal.optGoal", numberOf(goal)), optGoal(goal));
        registry.add((goal == cheapest ? power : budget) + ".AtRest",
                     [this, goal]() -> ControlValue { return isAtRest(goal); });
    }
    registry.add(power, &field(cheapest).Text);
    registry.add(budget, &budget_);
    registry.add(budget + ".Text", &field(mostPower).Text);
}

void OptimalQuestion::startAnew() {
    ask(cheapest);
    budgetIsSet_ = false;
    follow(false);
}

void OptimalQuestion::follow(bool isAnswered) {
    const bool budgetStays = budgetIsSet_ || (isAnswered && goal_ == mostPower);
    if (!budgetStays)
        budget_ = std::max<double>(leastBudget, design_.study().result.txtCost);
    writeFields();
}

std::string OptimalQuestion::heading() const {
    const Study& s = design_.study();
    if (goal_ == mostPower)
        return "Find the most power for a budget of " + money(budget_) + settingsFollow;
    return "Find the number of " + s.txtName(s.NumLevels) + " needed for power of " +
           percentText(s.ReqPower) + settingsFollow;
}

bool OptimalQuestion::ask(OptimalGoal goal) {
    for (const OptimalGoal each : {cheapest, mostPower})
        optGoal_(numberOf(each)).Value = each == goal;
    return std::exchange(goal_, goal) != goal;
}

// Pushes of the arrows that follow each other are one step of undo.
bool OptimalQuestion::changePower(double power, const std::string& run) {
    const bool isOther = ask(cheapest);
    if (power == design_.study().ReqPower)
        return isOther;
    Session& session = design_.session();
    session.edit({stepWords(session.study(), requiredPower()), Reach::study, IfFault::keep, run},
                 [&](SessionState& state) { enterField(state, requiredPower(), power); });
    return true;
}

bool OptimalQuestion::spinPower(int direction) {
    const double now = design_.study().ReqPower;
    double power = now;
    for (const double choice : requiredPower()->choices) {
        const bool isNext = direction > 0 && choice > now + nearby && power == now;
        const bool isFormer = direction < 0 && choice < now - nearby;
        if (isNext || isFormer)
            power = choice;
    }
    return changePower(power, "frmOptimal.spnReqPower");
}

bool OptimalQuestion::setBudget(double amount) {
    const bool isOther = ask(mostPower);
    budgetIsSet_ = true;
    const double whole = roundHalfToEven(amount);
    const bool changes = std::exchange(budget_, whole) != whole;
    writeFields();
    return changes || isOther;
}

bool OptimalQuestion::spinBudget(int direction) {
    const double step = budgetStep(budget_);
    const double steps = budget_ / step;
    const double next = direction > 0 ? std::floor(steps) + 1 : std::ceil(steps) - 1;
    return setBudget(std::clamp(next * step, leastBudget, largestBudget));
}

bool OptimalQuestion::takePower() {
    const std::string typed = field(cheapest).Text;
    writeFields();
    if (const auto power = readPower(typed))
        return changePower(*power, "");
    throw UseProblem("The required power is one of " + choicesText() + ", not " + inQuotes(typed) + ".");
}

bool OptimalQuestion::takeBudget() {
    const std::string typed = field(mostPower).Text;
    writeFields();
    if (const auto amount = readMoney(typed, design_.settings().currency.Symbol))
        return setBudget(*amount);
    throw UseProblem("The budget is a whole amount from " + money(leastBudget) + " to " +
                     money(largestBudget) + ", not " + inQuotes(typed) + ".");
}

std::string OptimalQuestion::money(double amount) const {
    return amountText(amount, design_.settings().currency);
}

void OptimalQuestion::writeFields() {
    field(cheapest).Text = percentText(design_.study().ReqPower);
    field(mostPower).Text = money(budget_);
}

}  // namespace lorvane
