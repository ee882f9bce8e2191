// JSON on one line with numbers in 17 significant digits, so that every double reads back as it was.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>

#include "platform/control_registry.h"
#include "platform/controls.h"

namespace lorvane {

/// One line of JSON. Infinities and NaN become null; text that is not UTF-8 gets replacement characters.
std::string jsonText(const nlohmann::ordered_json& value);

/// Gives an answer its notes, a list; nothing where there is no note.
void addNotes(nlohmann::ordered_json& answer, const std::string& note);

/// A named value: numbers as numbers, flags as true and false, colours as [red, green, blue].
nlohmann::ordered_json jsonOf(const ControlValue& value);

/// The cells of a table as an array of rows of text, every row as long as the longest.
nlohmann::ordered_json jsonOf(const Grid& grid);

}  // namespace lorvane
