// Which values most likely stopped the arithmetic.
#include "session/likely_cause.h"

#include <cmath>
#include <limits>

#include "session/field_book.h"

namespace lorvane {

namespace {

// A value within so many powers of ten of 1 stops no formula by itself.
constexpr double usualPowers = 4;

bool counts(const Study& s, FieldRef field) {
    const FieldCell& cell = field->cell;
    if (cell.stem.empty() || (field->index == FieldIndex::level && field.index > s.NumLevels))
        return false;
    return cell.shown == nullptr || cell.shown(s, field.index);
}

// How far a value is from what is usual, in powers of ten.
double extremity(const FieldLimits& limits, double value) {
    if (!std::isfinite(value) || (limits.low < limits.high && !limits.holds(value)))
        return std::numeric_limits<double>::infinity();
    return value == 0 ? 0 : std::fabs(std::log10(std::fabs(value)));
}

}  // namespace

std::string likelyCause(const Study& study) {
    SessionState state;
    state.study = study;
    double furthest = usualPowers;
    std::string cause = "the values entered last";
    forEachField([&](FieldRef field) {
        if (!counts(study, field))
            return;
        const double powers = extremity(limitsOf(study, *field.field), readNumberField(state, field));
        if (powers <= furthest)
            return;
        furthest = powers;
        cause = field->index == FieldIndex::level ? "the values of " + study.txtName(field.index)
                                                  : "the values of the effect";
    });
    return cause;
}

}  // namespace lorvane
