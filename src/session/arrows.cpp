// The arrows of the fields.
#include "session/arrows.h"

#include "base/arithmetic_fault.h"
#include "base/names.h"
#include "base/number_text.h"
#include "session/field_words.h"
#include "session/spin_step.h"
#include "validation/effect_dispersion.h"
#include "validation/icc_span.h"

namespace lorvane {

namespace {

// The value after one step by units of the last decimal.
double spunByStep(const SessionState& state, FieldRef field, int direction) {
    const FieldLimits limits = limitsOf(state.study, *field.field);
    const int step = stepOf(state.settings, field);
    const double value =
        spun(readNumberField(state, field), direction, limits, decimalsOf(state.study, *field.field), step);
    return field->snaps ? snapped(value, direction, step) : value;
}

double afterArrow(const SessionState& state, FieldRef field, int direction) {
    switch (field->arrows) {
    case ArrowRule::twoStates:
        return direction > 0 ? SamplingModels::fixed : SamplingModels::random;
    case ArrowRule::byOne:
        return readNumberField(state, field) + direction;
    case ArrowRule::byStep:
    case ArrowRule::none:
        break;
    }
    return spunByStep(state, field, direction);
}

// Whether effect and dispersion let the computation go on. On a copy, since a check writes what it finds.
bool passesChecks(Study study) {
    try {
        SynchICC(study);
        SynchTauSq(study);
    } catch (const ArithmeticFault&) {
        return false;
    }
    return study.result.ValidES && study.outcome.ValidICC(0) && study.effect.ValidTauSq(0);
}

void writeDecimals(SessionState& state, const Field& field, int decimals) {
    const bool passed = passesChecks(state.study);
    state.study.decimals.*field.decimals = decimals;
    for (int i = indicesOf(field).first; i <= indicesOf(field).last; ++i) {
        const FieldRef ref{&field, i};
        const double value = readNumberField(state, ref);
        const double rounded = *readNumber(fixedText(value, decimals));
        if (!limitsOf(state.study, field).holds(rounded))
            continue;
        writeField(state, ref, rounded);
        if (passed && !passesChecks(state.study))
            writeField(state, ref, value);
    }
}

std::string nameOfDecimals(const Field& field) {
    return "decimals of " + std::string(field.decimalsWord.empty() ? "spans" : field.decimalsWord);
}

// Where a click leaves the value, those after it would, too.
void stepTimes(SessionState& state, FieldRef field, int direction, int times) {
    for (int i = 0; i < times; ++i) {
        const double before = readNumberField(state, field);
        enterField(state, field, afterArrow(state, field, direction));
        if (readNumberField(state, field) == before)
            return;
    }
}

}  // namespace

void stepField(Session& session, FieldRef field, int direction, ArrowHold hold, int times) {
    const std::string run = indexedName(field->spin, field.index);
    session.edit(
        {stepWords(session.study(), field), Reach::study, IfFault::keep, run, hold == ArrowHold::tick},
        [&](SessionState& state) { stepTimes(state, field, direction, times); });
}

void SETDECS(Session& session, const Field& field, int decimals) {
    session.edit({nameOfDecimals(field)},
                 [&](SessionState& state) { writeDecimals(state, field, decimals); });
}

void setStep(Session& session, const Field& field, int StudySettings::*step, int units, int decimals) {
    session.edit({"step of " + inSentence(fieldWords(session.study(), {&field, indicesOf(field).first}))},
                 [&](SessionState& state) {
                     state.settings.*step = units;
                     writeDecimals(state, field, decimals);
                 });
}

}  // namespace lorvane
