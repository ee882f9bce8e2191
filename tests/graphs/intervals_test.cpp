// The range of every variable, automatic and by hand, against cases that were worked out on paper; the power
// of the engine was taken as given.
#include <set>

#include "base/arithmetic_fault.h"
#include "graph_words.h"
#include "validation/study_bench.h"

namespace lorvane {
namespace {

std::string told(const Intervals& axis) {
    std::ostringstream text;
    text.precision(15);
    text << axis.Start << ' ' << axis.End << ' ' << axis.Step << ' ' << axis.Points
         << (axis.Reversed ? " reversed" : "");
    return axis.isCutToNothing ? "nothing" : text.str();
}

std::string answer(StudyTrial& trial, const GraphVariable& variable, const XRange& range) {
    try {
        return told(intervalsOf(trial, variable, range));
    } catch (const ArithmeticFault&) {
        return "fault";
    }
}

// The entered values are put back, and what a refresh makes of them.
void expectSame(const SessionState& before, const Study& now) {
    SessionState after = before;
    after.study = now;
    EXPECT_TRUE(sameValues(after, before));
    const PowerResult &a = before.study.result, &b = now.result;
    EXPECT_EQ(std::tie(a.txtPower, a.txtCost, a.xLambda, a.xdf, a.xValid, a.ValidES),
              std::tie(b.txtPower, b.txtCost, b.xLambda, b.xdf, b.xValid, b.ValidES));
}

// What follows from the values of a study without an answer is not defined.
void check(const std::string& study, const GraphVariable& variable, const XRange& range,
           const std::string& expected) {
    StudyBench bench;
    bench.play(study + " ;");
    StudyTrial trial = bench.session.trial();
    trial.refresh();
    SessionState before = bench.session.state();
    before.study = trial.study;
    EXPECT_EQ(answer(trial, variable, range), expected);
    if (before.study.result.xValid)
        expectSame(before, trial.study);
}

TEST(Intervals, OfEveryVariable) {
    std::ifstream lines(LORVANE_TEST_DATA "/../graphs/ranges.txt");
    ASSERT_TRUE(lines);
    std::set<int> seen;
    for (std::string line, with, variables, study, range, expected; std::getline(lines, line);) {
        SCOPED_TRACE(line);
        std::istringstream columns(line);
        if (line.starts_with("with"))
            with = line.substr(4) + ' ';
        if (line.find('|') == std::string::npos || line[0] == '#')
            continue;
        std::getline(columns, variables, ' ');
        std::getline(columns.ignore(2), study, '|');
        std::getline(columns, range, '|');
        std::getline(columns >> std::ws, expected);
        for (const GraphVariable& variable : variablesOf(variables)) {
            check(with + study, variable, rangeOf(range), expected);
            seen.insert(variable.number());
        }
    }
    EXPECT_EQ(seen.size(), 39u);
}

// Steps of 1, 2 and 5 keep 50 to 100 intervals in a span; a range as long as a bound has the next step.
TEST(Intervals, StepsOfASpan) {
    StudyBench bench;
    bench.play("ICC_Metric=2 MRange(1)=40000000 SD=10000000");
    StudyTrial trial = bench.session.trial();
    std::vector<double> bounds;
    for (int exponent = -2; exponent <= 6; ++exponent) {
        for (const char digit : {'1', '2', '5'})
            bounds.push_back(std::stod(std::string(1, digit) + 'e' + std::to_string(exponent)));
    }
    for (std::size_t i = 0; i < bounds.size(); ++i) {
        const double below = bounds[i] * 0.99;
        const Intervals axis = GetIntervalsMrange(trial, 2, {1, 0, below});
        EXPECT_EQ(std::tie(axis.Start, axis.End, axis.Points), std::tuple(0, below, 100)) << bounds[i];
        EXPECT_DOUBLE_EQ(axis.Step, bounds[i] / 100);
        if (i + 1 < bounds.size()) {
            EXPECT_DOUBLE_EQ(GetIntervalsMrange(trial, 2, {1, bounds[i], 0}).Step, bounds[i + 1] / 100);
        }
    }
}

}  // namespace
}  // namespace lorvane
