// Commands that come in series, by their rows.
#include "app/command_series.h"

#include <algorithm>

#include "app/command_table.h"
#include "session/assignments.h"

namespace lorvane {

namespace {

using enum ToolCategory;
using P = const Program&;

// Commands that give a field one value
// ------------------------------------------------------------------------

struct ChoiceRow {
    const char* key;
    const char* caption;
    const char* tip;
    const char* field;
    double value;
};

constexpr ChoiceRow choiceTable[] = {
    {"Use t-distribution", "Use &t-distribution", "Test a risk difference with the t-distribution",
     "PowerOption", 1},
    {"Use Z-distribution", "Use &Z-distribution", "Test a risk difference with the normal distribution",
     "PowerOption", 2},
    {"Alpha = 0.01", "Alpha = 0.0&1", "Test at the 0.01 level", "txtAlpha", 0.01},
    {"Alpha = 0.05", "Alpha = 0.0&5", "Test at the 0.05 level", "txtAlpha", 0.05},
    {"Alpha = 0.10", "Alpha = 0.1&0", "Test at the 0.10 level", "txtAlpha", 0.10},
    {"Alpha = 0.20", "Alpha = 0.&20", "Test at the 0.20 level", "txtAlpha", 0.20},
    {"One-tailed test", "&One-tailed test", "Test one direction of the effect", "txtTails", 1},
    {"Two-tailed test", "&Two-tailed test", "Test both directions of the effect", "txtTails", 2},
    {"Set power 80", "&80%", "Aim at a power of 80%", "ReqPower", 0.80},
    {"Set power 85", "8&5%", "Aim at a power of 85%", "ReqPower", 0.85},
    {"Set power 90", "9&0%", "Aim at a power of 90%", "ReqPower", 0.90},
    {"Set power 95", "95&%", "Aim at a power of 95%", "ReqPower", 0.95},
    {"Set power 99", "&99%", "Aim at a power of 99%", "ReqPower", 0.99},
    {"For optimal design use 5 iterations", "Use &5 iterations", "Try 5 sizes of the top level",
     "IterationsForOptimal", 5},
    {"For optimal design use 10 iterations", "Use &10 iterations", "Try 10 sizes of the top level",
     "IterationsForOptimal", 10},
    {"For optimal design use 20 iterations", "Use &20 iterations", "Try 20 sizes of the top level",
     "IterationsForOptimal", 20},
    {"For optimal design use 30 iterations", "Use &30 iterations", "Try 30 sizes of the top level",
     "IterationsForOptimal", 30},
};

// Commands that there is one of for every level
// ---------------------------------------------------------------

bool isUsed(P p, int level) { return level <= p.session.study().NumLevels; }

bool isArmed(P p, int level) { return isUsed(p, level) && !p.session.study().isBlocked(level); }

struct LevelRow {
    const char* key;  ///< "{}" stands for the level
    const char* before;
    const char* after;  ///< the caption is what stands before and after the name of the level
    const char* tip;
    ToolCategory category;
    void (*run)(P, int level);
    ToolState (*state)(P, int level);
};

template <void (*set)(Session&, int, int), PerLevel<int> StudySettings::*steps, int step>
constexpr LevelRow stepRow(const char* key, const char* before, const char* after, const char* tip) {
    return {key,
            before,
            after,
            tip,
            increment,
            [](P p, int level) { set(p.session, level, step); },
            [](P p, int level) -> ToolState {
                return {.checked = (p.session.settings().*steps)(level) == step, .visible = isUsed(p, level)};
            }};
}

// Of a pair of links the one that is not in force is on offer.
const LevelRow levelTable[] = {
    {"Randomize Level {}", "Randomize ", "", "Assign treatment at this level", choice,
     [](P p, int level) { randomizeLevel(p.session, level); },
     [](P p, int level) -> ToolState {
         return {.checked = level == p.session.study().RandomizedLevel, .visible = isUsed(p, level)};
     }},
    {"Link N for Level {}", "Link number of ", " for the two groups", "Keep both groups at the same number",
     command, [](P p, int level) { linkSizes(p.session, level, true); },
     [](P p, int level) { return visibleIf(isArmed(p, level) && !p.session.study().LinkN(level)); }},
    {"Unlink N for Level {}", "Set number of ", " for each group separately",
     "Let the groups have different numbers", command,
     [](P p, int level) { linkSizes(p.session, level, false); },
     [](P p, int level) { return visibleIf(isArmed(p, level) && p.session.study().LinkN(level)); }},
    stepRow<setStepOfSizes, &StudySettings::IncN, 1>("Increment Level {} by 1", "Increment number of ",
                                                     " by 1", "One click changes the number by 1"),
    stepRow<setStepOfSizes, &StudySettings::IncN, 10>("Increment Level {} by 10", "Increment number of ",
                                                      " by 10", "One click changes the number by 10"),
    stepRow<setStepOfSizes, &StudySettings::IncN, 100>("Increment Level {} by 100", "Increment number of ",
                                                       " by 100", "One click changes the number by 100"),
    {"Link cost for Level {}", "Link cost of ", " for the two groups", "Keep both groups at the same cost",
     command, [](P p, int level) { linkCosts(p.session, level, true); },
     [](P p, int level) { return visibleIf(isArmed(p, level) && !p.session.study().LinkCost(level)); }},
    {"Unlink cost for Level {}", "Set cost of ", " for each group separately",
     "Let the groups have different costs", command,
     [](P p, int level) { linkCosts(p.session, level, false); },
     [](P p, int level) { return visibleIf(isArmed(p, level) && p.session.study().LinkCost(level)); }},
    stepRow<setStepOfCosts, &StudySettings::IncCost, 1>("Increment Level {} cost by 1", "Increment cost of ",
                                                        " by 1", "One click changes the cost by 1"),
    stepRow<setStepOfCosts, &StudySettings::IncCost, 10>(
        "Increment Level {} cost by 10", "Increment cost of ", " by 10", "One click changes the cost by 10"),
    stepRow<setStepOfCosts, &StudySettings::IncCost, 100>("Increment Level {} cost by 100",
                                                          "Increment cost of ", " by 100",
                                                          "One click changes the cost by 100"),
    {"Find N for Level {}", "Find number of ", "", "Find the number that the required power needs", command,
     [](P p, int) { p.optimal.open(); }, [](P p, int level) { return visibleIf(isUsed(p, level)); }},
};

// Commands that choose what one click of the arrows does
// ------------------------------------------------------

struct StepChoice {
    const char* text;
    int decimals;
    int step;
};

constexpr StepChoice stepChoices[] = {
    {".01", 2, 1}, {".10", 1, 1}, {"1", 0, 1}, {"10", 0, 10}, {"100", 0, 100}};

struct SteppedField {
    const char* word;
    const char* field;
    int StudySettings::*step;  ///< none: the field has decimals alone
};

constexpr SteppedField steppedFields[] = {{"mean", "txtMean", &StudySettings::IncMean},
                                          {"SD", "txtSD", &StudySettings::IncSD},
                                          {"MRange", "txtMRange", &StudySettings::IncMRange},
                                          {"DRange", "txtDRange", nullptr}};

// A span of effects has no step of its own, so only the decimals are on offer.
bool offers(const SteppedField& field, const StepChoice& choice) {
    return field.step != nullptr || choice.decimals > 0;
}

// The columns whose details a command shows.
constexpr const char* detailColumns[] = {"colBlocked", "colLevels", "colUnits", "colReplicates", "colICC",
                                         "colMSpan",   "colTauSq",  "colDSpan", "colOmega",      "colModel",
                                         "colRsq",     "colCost",   "colES"};

// Keys
// ---------------------------------------------------------------------------------------------------------

std::string decimalsKey(std::string_view word, int decimals) {
    return "Use " + std::to_string(decimals) +
           (decimals == 1 ? " decimal place for " : " decimal places for ") + std::string(word);
}

std::string stepKey(const SteppedField& field, const StepChoice& choice) {
    return std::string("Change ") + field.word + " by " + choice.text;
}

constexpr int mostDecimalsOfField = 4;

// Values on the scale of the scores are often whole numbers.
int fewestDecimals(const Field& field) {
    return field.step == StepSource::mean || field.step == StepSource::sd ? 0 : 1;
}

// From rows to commands
// ----------------------------------------------------------------------------------------

void addChoices(std::vector<Command>& commands, P p) {
    for (const ChoiceRow& row : choiceTable) {
        const FieldRef field{&fieldOf(row.field), 0};
        commands.push_back({toolOf(row.key, row.caption, row.tip, choice),
                            [p, field, value = row.value] { enterValue(p.session, field, value); },
                            [p, field, value = row.value] {
                                return checkedIf(readNumberField(p.session.state(), field) == value);
                            }});
    }
}

void addLevelCommands(std::vector<Command>& commands, P p) {
    for (const LevelRow& row : levelTable) {
        for (int level = highestLevel; level >= lowestLevel; --level) {
            const std::string key = ofLevel(row.key, level);
            commands.push_back(
                {toolOf(key, key, row.tip, row.category), [p, &row, level] { row.run(p, level); },
                 [p, &row, level] {
                     ToolState state = row.state(p, level);
                     state.caption = row.before + plainCaption(p.session.study().txtName(level)) + row.after;
                     return state;
                 }});
        }
    }
}

void addDecimals(std::vector<Command>& commands, P p) {
    for (const Field& field : fieldBook()) {
        for (int n = fewestDecimals(field); !field.decimalsWord.empty() && n <= mostDecimalsOfField; ++n) {
            const std::string key = decimalsKey(field.decimalsWord, n);
            commands.push_back(
                {toolOf(key, key, "Decimals shown; one click changes the last one", increment),
                 [p, &field, n] { SETDECS(p.session, field, n); },
                 [p, &field, n] { return checkedIf(decimalsOf(p.session.study(), field) == n); }});
        }
    }
}

void choose(P p, const SteppedField& stepped, const StepChoice& choice) {
    const Field& field = fieldOf(stepped.field);
    if (stepped.step == nullptr)
        SETDECS(p.session, field, choice.decimals);
    else
        setStep(p.session, field, stepped.step, choice.step, choice.decimals);
}

bool isChosen(P p, const SteppedField& stepped, const StepChoice& choice) {
    const int step = stepped.step == nullptr ? choice.step : p.session.settings().*stepped.step;
    return decimalsOf(p.session.study(), fieldOf(stepped.field)) == choice.decimals && step == choice.step;
}

void addSteps(std::vector<Command>& commands, P p) {
    for (const SteppedField& field : steppedFields) {
        for (const StepChoice& choice : stepChoices) {
            if (offers(field, choice))
                commands.push_back({toolOf(stepKey(field, choice), std::string("Change by ") + choice.text,
                                           "What one click changes the value by", increment),
                                    [p, &field, &choice] { choose(p, field, choice); },
                                    [p, &field, &choice] { return checkedIf(isChosen(p, field, choice)); }});
        }
    }
}

void addDetails(std::vector<Command>& commands, P p) {
    for (const char* column : detailColumns)
        commands.push_back({toolOf(detailsKey(column), "Show &details", "Explain this column", help),
                            [p, column] { p.details.openColumn(column); },
                            {}});
}

Keys stepKeys(const SteppedField& field) {
    Keys keys;
    for (const StepChoice& choice : stepChoices) {
        if (offers(field, choice))
            keys.push_back(stepKey(field, choice));
    }
    return keys;
}

const SteppedField* steppedOf(const Field& field) {
    const auto found = std::find_if(std::begin(steppedFields), std::end(steppedFields),
                                    [&](const SteppedField& row) { return field.stem == row.field; });
    return found == std::end(steppedFields) ? nullptr : found;
}

}  // namespace

void addCommandSeries(std::vector<Command>& commands, const Program& program) {
    addChoices(commands, program);
    addLevelCommands(commands, program);
    addDecimals(commands, program);
    addSteps(commands, program);
    addDetails(commands, program);
}

std::string ofLevel(std::string_view pattern, int level) {
    std::string key(pattern);
    return key.replace(key.find("{}"), 2, std::to_string(level));
}

std::string detailsKey(std::string_view column) { return "Show details " + std::string(column); }

Keys decimalsKeys(const Field& field) {
    Keys keys;
    for (int n = fewestDecimals(field); !field.decimalsWord.empty() && n <= mostDecimalsOfField; ++n)
        keys.push_back(decimalsKey(field.decimalsWord, n));
    return keys;
}

Keys stepKeysOf(const Field& field) {
    const SteppedField* stepped = steppedOf(field);
    return stepped == nullptr ? Keys() : stepKeys(*stepped);
}

}  // namespace lorvane
