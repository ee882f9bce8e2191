// The question of the optimal design wizard: the cheapest design for a power, or the most power for a budget.
// A display model; knows no search.
#pragma once

#include <string>

#include "platform/control_registry.h"
#include "platform/controls.h"
#include "screen/design.h"
#include "search/optimal_types.h"

namespace lorvane {

class OptimalQuestion {
public:
    explicit OptimalQuestion(Design& design);

    void registerNames(ControlRegistry& registry) const;

    /// Asks the first question; the budget is the cost of the study from here on.
    void startAnew();

    /// Brings the fields up to date with the study. While there is an answer, which may have been pasted, its
    /// budget stays.
    void follow(bool isAnswered);

    OptimalGoal goal() const noexcept { return goal_; }
    double budget() const noexcept { return budget_; }  ///< whole money, 1 or more

    /// What is asked for, as the head of the options.
    std::string heading() const;

    /// Each asks the question of what it changes, and tells whether anything has changed. The required power
    /// is that of the study, and its change a step of undo. Throws ArithmeticFault.
    bool ask(OptimalGoal goal);
    bool spinPower(int direction);   ///< to the next or the former of its choices
    bool spinBudget(int direction);  ///< to a multiple of a step that is at most a hundredth of it
    bool setBudget(double amount);   ///< must lie within the limits

    /// The same with the text that was typed into a field. Throws UseProblem for one that does not fit, and
    /// the field has its former text again.
    bool takePower();
    bool takeBudget();

    /// The option and the field of a question. A field at rest is the one of the question not asked.
    const Option& optGoal(OptimalGoal goal) const { return optGoal_(numberOf(goal)); }
    const TextBox& field(OptimalGoal goal) const { return fields_(numberOf(goal)); }
    TextBox& field(OptimalGoal goal) { return fields_(numberOf(goal)); }
    bool isAtRest(OptimalGoal goal) const { return goal != goal_; }

    static constexpr double leastBudget = 1;
    static constexpr double largestBudget = 2147483647;

private:
    static int numberOf(OptimalGoal goal) { return static_cast<int>(goal); }
    bool changePower(double power, const std::string& run);
    std::string money(double amount) const;
    void writeFields();

    Design& design_;
    OptimalGoal goal_ = OptimalGoal::cheapest;
    double budget_ = leastBudget;
    bool budgetIsSet_ = false;
    IndexedArray<Option, 1, 2> optGoal_;
    IndexedArray<TextBox, 1, 2> fields_;
};

}  // namespace lorvane
