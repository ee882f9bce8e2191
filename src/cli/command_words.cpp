// What the commands for people share.
#include "cli/command_words.h"

#include <algorithm>
#include <cctype>
#include <ostream>

#include "base/names.h"
#include "base/number_text.h"
#include "base/utf8.h"
#include "session/assignments.h"
#include "session/idle_value.h"

namespace lorvane {

namespace {

constexpr std::size_t labelWidth = 20;

std::vector<Assignment> assignments(const std::vector<std::string>& settings) {
    std::vector<Assignment> values;
    for (const std::string& setting : settings) {
        const std::size_t sign = setting.find('=');
        if (sign == std::string::npos)
            throw UseProblem("--set takes FIELD=VALUE, not " + inQuotes(setting) + ".");
        values.push_back(parseAssignment(setting.substr(0, sign), setting.substr(sign + 1)));
    }
    return values;
}

}  // namespace

void applySettings(const std::vector<std::string>& settings, Session& session) {
    if (settings.empty())
        return;
    const std::vector<Assignment> values = assignments(settings);
    setValues(session, values);
    for (const Assignment& value : values) {
        const std::string why = whyIdle(session.state(), writableField(value.name));
        if (!why.empty())
            throw UseProblem(why);
    }
}

std::string capitalised(std::string text) {
    text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
    return text;
}

std::string onOneLine(std::string text) {
    std::replace(text.begin(), text.end(), '\n', ' ');
    while (const auto twice = text.find("  ") + 1)
        text.erase(twice, 1);
    return printable(trimmed(text));
}

void printLine(std::ostream& out, std::string label, const std::string& value) {
    label.resize(std::max(label.size() + 1, labelWidth), ' ');
    out << printable(label) << printable(value) << '\n';
}

void printNote(std::ostream& out, const std::string& note) {
    if (!note.empty())
        out << '\n' << printable(note, LineEnds::kept) << '\n';
}

}  // namespace lorvane
