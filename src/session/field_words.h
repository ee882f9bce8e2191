// What a field is, in words: for the value dialog, the status line, accessible names and the steps of undo.
#pragma once

#include <string>

#include "session/field_book.h"

namespace lorvane {

/// "Number of schools, Treated", "ICC of Classes", "Standardized mean difference, d (total)". The field's own
/// name where there are no words for it.
std::string fieldWords(const Study& study, FieldRef field);

/// The same where there is little room, "d (total)"; empty for a field that has no fewer words.
std::string briefWords(const Study& study, FieldRef field);

/// A pattern such as "Number of {units}" with the study's names in it.
std::string filledIn(const Study& study, FieldRef field, std::string_view pattern);

/// The words with what the keys do: "ICC of Classes. Up and Down change it by 0.01. Enter opens it for
/// typing."
std::string fieldHint(const SessionState& state, FieldRef field);

/// What toggling the link of its two arms does: "Unlink the two groups". The field must have a twin.
std::string linkWords(const Study& study, FieldRef field);

/// What the dialog that asks for a value says of it: the words without the arms, "Number of schools"; what it
/// means, "Treated group. Control is linked and takes the same value."; the unit behind the number, "schools
/// per group", empty without one; what can be entered, "a whole number from 1 to 1000000".
std::string fieldHeading(const Study& study, FieldRef field);
std::string fieldSense(const Study& study, FieldRef field);
std::string fieldUnit(const SessionState& state, FieldRef field);
std::string entryWords(const Study& study, FieldRef field);

/// Why the arrows of a value that another entry decides rest, and where to change that; empty for any other.
std::string restWords(const Study& study, FieldRef field);

/// The words inside a sentence, without the arms where they are linked: "number of schools".
std::string stepWords(const Study& study, FieldRef field);

/// What became of the one value on the screen that differs between two states: ", 14 to 15". Empty where none
/// or several do.
std::string valueChange(const SessionState& from, const SessionState& to);

/// A text with its first letter in upper case.
std::string beginSentence(std::string text);

/// A text with its first letter in lower case, unless it is a sign or an abbreviation ("ICC", "R-sq").
std::string inSentence(std::string text);

}  // namespace lorvane
