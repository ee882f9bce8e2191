// Whether a value that is entered counts for anything.
#pragma once

#include <string>

#include "session/field_book.h"

namespace lorvane {

/// Why a value of a field has no effect as the study stands, as a sentence that names the choice or the field
/// that is needed for it; empty when it has one.
std::string whyIdle(const SessionState& state, FieldRef field);

}  // namespace lorvane
