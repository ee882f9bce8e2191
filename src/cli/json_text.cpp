// JSON on one line.
#include "cli/json_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <nlohmann/json.hpp>

namespace lorvane {

namespace {

using Json = nlohmann::ordered_json;

std::string quoted(const std::string& text) {
    return Json(text).dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string numberText(double value) {
    if (!std::isfinite(value))
        return "null";
    std::array<char, 40> buffer{};
    const int length = std::snprintf(buffer.data(), buffer.size(), "%.17g", value);
    return {buffer.data(), static_cast<std::size_t>(length)};
}

void append(std::string& text, const Json& value);

void appendObject(std::string& text, const Json& object) {
    const char* separator = "{";
    for (const auto& [key, member] : object.items()) {
        text += separator;
        text += quoted(key);
        text += ':';
        append(text, member);
        separator = ",";
    }
    text += object.empty() ? "{}" : "}";
}

void appendArray(std::string& text, const Json& array) {
    const char* separator = "[";
    for (const Json& element : array) {
        text += separator;
        append(text, element);
        separator = ",";
    }
    text += array.empty() ? "[]" : "]";
}

void append(std::string& text, const Json& value) {
    if (value.is_object())
        appendObject(text, value);
    else if (value.is_array())
        appendArray(text, value);
    else if (value.is_number_float())
        text += numberText(value.get<double>());
    else if (value.is_string())
        text += quoted(value.get_ref<const std::string&>());
    else
        text += value.dump();
}

struct JsonOfValue {
    Json operator()(double value) const { return value; }
    Json operator()(bool value) const { return value; }
    Json operator()(const std::string& value) const { return value; }
    Json operator()(const Colour& value) const { return Json::array({value.red, value.green, value.blue}); }
};

}  // namespace

std::string jsonText(const Json& value) {
    std::string text;
    append(text, value);
    return text;
}

void addNotes(Json& answer, const std::string& note) {
    if (!note.empty())
        answer["notes"] = Json::array({note});
}

Json jsonOf(const ControlValue& value) { return std::visit(JsonOfValue(), value); }

Json jsonOf(const Grid& grid) {
    std::size_t columns = 0;
    for (const Grid::Row& row : grid.rows)
        columns = std::max(columns, row.size());
    Json rows = Json::array();
    for (const Grid::Row& row : grid.rows) {
        Grid::Row cells = row;
        cells.resize(columns);
        rows.push_back(std::move(cells));
    }
    return rows;
}

}  // namespace lorvane
