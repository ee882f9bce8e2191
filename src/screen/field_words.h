// What a field is, in words: for the value dialog, the status line and accessible names.
#pragma once

#include <string>

#include "engine/study.h"
#include "screen/session_settings.h"

namespace lorvane {

/// "Number of schools, Treated", "ICC of Classes", "Standardized mean difference, d (total)". The field's own
/// name where there are no words for it.
std::string fieldWords(const Study& study, const std::string& field);

/// The words with what the keys do: "ICC of Classes. Up and Down change it by 0.01. Enter opens it for
/// typing."
std::string fieldHint(const Study& study, const SessionSettings& settings, const std::string& field,
                      int decimals);

}  // namespace lorvane
