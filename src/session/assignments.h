// Values for fields by name, as scripts and the command line give them.
#pragma once

#include <span>
#include <string>

#include "base/use_problem.h"
#include "session/field_book.h"
#include "session/session.h"

namespace lorvane {

/// A field by name with its new value.
struct Assignment {
    std::string name;
    FieldValue value;
};

/// The writable field of a name. Throws UseProblem that tells the nearest known name.
FieldRef writableField(const std::string& name);

/// A field's value from its text, by the kind of the field. Throws UseProblem for an unknown field, with the
/// nearest known name, and for a text that does not spell a value.
Assignment parseAssignment(const std::string& name, const std::string& text);

/// Starts from a new study without scenarios and file, and writes the values at once, as opening a file with
/// them would: what no dialog offers is taken. Throws UseProblem or ArithmeticFault and changes nothing then.
void loadValues(Session& session, std::span<const Assignment> values);

/// Writes values as dialogs would, within their limits; design choices first, whatever their order, each by
/// its operation. One step. Throws UseProblem or ArithmeticFault and changes nothing then.
void setValues(Session& session, std::span<const Assignment> values);

/// Writes a number into a field as its value dialog does, with the other arm where the two are linked. The
/// number must lie within the field's limits. Throws ArithmeticFault.
void enterValue(Session& session, FieldRef field, double value);

}  // namespace lorvane
