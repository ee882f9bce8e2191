// A scripted session.
#include "cli/drive.h"

#include <array>
#include <cmath>
#include <functional>
#include <istream>
#include <nlohmann/json.hpp>
#include <ostream>
#include <vector>

#include "base/names.h"
#include "base/number_text.h"
#include "cli/chart_json.h"
#include "cli/document_json.h"
#include "cli/guide_json.h"
#include "cli/json_text.h"
#include "cli/script_words.h"
#include "platform/failure_words.h"

namespace lorvane {

namespace {

using Json = nlohmann::ordered_json;

using Session = DriveSession;

Json done() { return {{"ok", true}}; }

std::string valueWords(const std::string& name) {
    return inQuotes(name) + " takes a number, a text, or true or false.";
}

FieldValue fieldValueOf(const std::string& name, const nlohmann::json& value) {
    if (value.is_boolean())
        return value.get<bool>();
    if (value.is_number())
        return value.get<double>();
    if (value.is_string())
        return value.get<std::string>();
    throw UseProblem(valueWords(name));
}

// The members of an object in their order; the last value of a name counts. The parser's own
// object that keeps an order looks through all its names at every new one.
std::vector<Assignment> assignmentsOf(const std::string& text) {
    std::vector<std::string> names;
    const auto watch = [&](int depth, nlohmann::json::parse_event_t event, const nlohmann::json& parsed) {
        using Event = nlohmann::json::parse_event_t;
        const bool opens = event == Event::object_start || event == Event::array_start;
        if (opens && !names.empty())
            throw UseProblem(valueWords(names.back()));
        if (event == Event::key && depth == 1)
            names.push_back(parsed.get<std::string>());
        return event != Event::array_start;
    };
    nlohmann::json fields = nlohmann::json::parse(text, watch, false);
    if (!fields.is_object())
        throw UseProblem("load takes one JSON object, such as load {\"txtd\": 0.5}.");
    std::vector<Assignment> values;
    for (const std::string& name : names) {
        if (!fields.contains(name))
            continue;
        values.push_back({name, fieldValueOf(name, fields[name])});
        fields.erase(name);
    }
    return values;
}

Json load(Session& session, ScriptWords& words) {
    session.application.load(assignmentsOf(words.rest()));
    return done();
}

double numberOf(const std::string& what, const std::string& text) {
    if (const auto number = readNumber(text))
        return *number;
    throw UseProblem(what + " must be a number, not " + unreadNumber(text));
}

Json set(Session& session, ScriptWords& words) {
    const std::string name = words.need("The name of a field");
    const std::string text = words.rest();
    if (session.application.hasNumber(name)) {
        session.application.setNumber(name, numberOf(name, text));
        return done();
    }
    const std::array values = {parseAssignment(name, text)};
    session.application.set(values);
    return done();
}

Json get(Session& session, ScriptWords& words) {
    const ControlRegistry& registry = session.application.names();
    Json answer = Json::object();
    while (const auto name = words.next()) {
        const auto value = registry.read(*name);
        if (!value)
            throw UseProblem("There is no name " + inQuotes(*name) + "; the nearest is \"" +
                             nearestName(*name, registry.names()) + "\".");
        answer[*name] = jsonOf(*value);
    }
    if (answer.empty())
        throw UseProblem("get takes at least one name.");
    return answer;
}

Json names(Session& session, ScriptWords& words) {
    const std::string prefix = words.rest();
    Json answer = Json::array();
    for (const std::string& name : session.application.names().names()) {
        if (name.starts_with(prefix))
            answer.push_back(name);
    }
    return answer;
}

Json state(Session& session, ScriptWords&) {
    const ControlRegistry& registry = session.application.names();
    Json answer = Json::object();
    for (const std::string& name : registry.names())
        answer[name] = jsonOf(*registry.read(name));
    return answer;
}

struct AnswerWord {
    const char* word;
    Answer answer;
};

constexpr AnswerWord answerWords[] = {
    {"OK", Answer::OK}, {"Cancel", Answer::Cancel}, {"Yes", Answer::Yes}, {"No", Answer::No}};

const char* wordOf(Answer answer) {
    for (const AnswerWord& known : answerWords) {
        if (known.answer == answer)
            return known.word;
    }
    return "";
}

Json jsonOf(const ScriptedDialogs::ShownMessage& shown) {
    Json buttons = Json::array();
    Json labels = Json::array();
    for (const MessageButton& button : shown.message.buttons) {
        buttons.push_back(wordOf(button.answer));
        labels.push_back(button.label.empty() ? wordOf(button.answer) : button.label);
    }
    Json message = {{"kind", "message"},
                    {"title", shown.message.title},
                    {"text", shown.message.text},
                    {"buttons", buttons},
                    {"answer", wordOf(shown.answer)}};
    if (labels != buttons)
        message["labels"] = std::move(labels);
    return message;
}

Json jsonOf(const ScriptedDialogs::ShownFileDialog& shown) {
    return {{"kind", "file"},
            {"title", shown.dialog.title},
            {"filter", shown.dialog.filter},
            {"default", shown.dialog.defaultExtension},
            {"answer", shown.answer.value_or("cancel")}};
}

Json messages(Session& session, ScriptWords&) {
    Json answer = Json::array();
    for (const ScriptedDialogs::Shown& shown : session.messages.take())
        answer.push_back(std::visit([](const auto& dialog) { return jsonOf(dialog); }, shown));
    return answer;
}

Json queueFile(Session& session, ScriptWords& words) {
    const std::string path = words.rest();
    if (path.empty())
        throw UseProblem("file takes a path, or cancel.");
    session.messages.queueFile(path == "cancel" ? std::nullopt : std::optional(path));
    return done();
}

Json queueAnswer(Session& session, ScriptWords& words) {
    const std::string word = words.need("OK, Cancel, Yes or No");
    for (const AnswerWord& known : answerWords) {
        if (word == known.word) {
            session.messages.queue(known.answer);
            return done();
        }
    }
    throw UseProblem("The answer must be OK, Cancel, Yes or No, not " + inQuotes(word) + ".");
}

Json tool(Session& session, ScriptWords& words) {
    session.application.tool(words.rest());
    return done();
}

Json click(Session& session, ScriptWords& words) {
    session.application.click(words.rest());
    return done();
}

Json type(Session& session, ScriptWords& words) {
    const std::string control = words.need("The name of a text box");
    session.application.type(control, words.rest());
    return done();
}

std::size_t rowOf(const std::string& word) {
    const auto number = readNumber(word);
    if (!number || *number < 0 || *number != std::floor(*number) || *number > 1e6)
        throw UseProblem("A row must be a whole number, not " + inQuotes(word) + ".");
    return static_cast<std::size_t>(*number);
}

Json select(Session& session, ScriptWords& words) {
    const std::string grid = words.need("The name of a table");
    std::vector<std::size_t> rows;
    while (const auto word = words.next())
        rows.push_back(rowOf(*word));
    session.application.select(grid, rows);
    return done();
}

Json close(Session& session, ScriptWords& words) {
    session.application.close(words.rest());
    return done();
}

Json spin(Session& session, ScriptWords& words) {
    const std::string control = words.need("The name of the arrows");
    const std::string direction = words.need("up or down");
    if (direction != "up" && direction != "down")
        throw UseProblem("The direction must be up or down, not " + inQuotes(direction) + ".");
    const std::string times = words.next().value_or("1");
    const auto count = readNumber(times);
    if (!count || *count < 1 || *count != std::floor(*count) || *count > 1000000)
        throw UseProblem("The number of clicks must be a whole number from 1 to 1000000, not " +
                         inQuotes(times) + ".");
    session.application.spin(control, direction == "up" ? 1 : -1, ArrowHold::click, static_cast<int>(*count));
    return done();
}

Json grid(Session& session, ScriptWords& words) {
    const std::string name = words.need("The name of a grid");
    const ControlRegistry& registry = session.application.names();
    if (const auto table = registry.grid(name))
        return jsonOf(*table);
    throw UseProblem("There is no grid " + inQuotes(name) + "; the nearest is \"" +
                     nearestName(name, registry.gridNames()) + "\".");
}

std::string needPath(ScriptWords& words) {
    std::string path = words.rest();
    if (path.empty())
        throw UseProblem("A path is missing.");
    return path;
}

Json save(Session& session, ScriptWords& words) {
    session.application.save(needPath(words));
    return done();
}

Json open(Session& session, ScriptWords& words) {
    session.application.open(needPath(words));
    return done();
}

double needNumber(ScriptWords& words, const char* what) { return numberOf(what, words.need(what)); }

Json chart(Session& session, ScriptWords&) {
    const GraphScreen& graph = session.application.graph();
    if (!graph.hasGraph())
        throw UseProblem("There is no graph yet; draw one with tool Graph.");
    return chartJson(graph.chart(), graph.axis());
}

Json document(Session& session, ScriptWords&) {
    return documentJson(session.application.report().document());
}

Json guide(Session& session, ScriptWords& words) {
    const std::string which = words.rest();
    if (which == "graph")
        return guideJson(session.application.graphGuide().frame());
    if (which.empty())
        return guideJson(session.application.guide().frame());
    throw UseProblem("guide takes graph or nothing, not " + inQuotes(which) + ".");
}

Json valueOf(double value) { return {{"value", value}}; }

Json dist(Session& session, ScriptWords& words) {
    DistributionLibrary& library = session.distributions;
    const std::string function = words.need("The name of a distribution function");
    double value = 0;
    if (function == "normal") {
        library.VBDNORDF(needNumber(words, "X"), value);
        return valueOf(value);
    }
    if (function == "normal-inverse") {
        library.VBDNORIN(needNumber(words, "P"), value);
        return valueOf(value);
    }
    if (function == "t-inverse") {
        const double p = needNumber(words, "P");
        library.VBDTIN(p, needNumber(words, "DF"), value);
        return valueOf(value);
    }
    if (function == "noncentral-t") {
        const double t = needNumber(words, "T");
        const double df = needNumber(words, "DF");
        const double lambda = needNumber(words, "LAMBDA");
        library.VBDTNDF(t, df, lambda, value);
        double upper = 1 - value;
        double unused = 0;
        if (t >= 0)
            library.NoncentralTTails(t, df, lambda, upper, unused);
        return {{"value", value}, {"upper", upper}};
    }
    throw UseProblem("There is no distribution function " + inQuotes(function) +
                     "; there are normal, normal-inverse, t-inverse and noncentral-t.");
}

struct Command {
    std::string_view name;
    Json (*run)(Session&, ScriptWords&);
};

constexpr Command commands[] = {{"load", load},          {"set", set},           {"get", get},
                                {"names", names},        {"state", state},       {"tool", tool},
                                {"spin", spin},          {"click", click},       {"type", type},
                                {"select", select},      {"close", close},       {"file", queueFile},
                                {"answer", queueAnswer}, {"messages", messages}, {"grid", grid},
                                {"chart", chart},        {"document", document}, {"save", save},
                                {"open", open},          {"dist", dist},         {"guide", guide}};

Json run(Session& session, std::string_view line) {
    ScriptWords words(line);
    const std::string name = words.need("A command");
    for (const Command& command : commands) {
        if (command.name == name)
            return command.run(session, words);
    }
    throw UseProblem("There is no command " + inQuotes(name) + ".");
}

}  // namespace

std::string answerTo(std::string_view line, DriveSession& session) {
    const std::string_view command = trimmed(line);
    if (command.empty() || command.front() == '#')
        return "";
    try {
        return jsonText(run(session, command));
    } catch (...) {
        return jsonText({{"error", failureWords()}});
    }
}

void drive(std::istream& in, std::ostream& out, DriveSession& session) {
    std::string line;
    while (out && std::getline(in, line)) {
        const std::string answer = answerTo(line, session);
        if (!answer.empty())
            out << answer << '\n' << std::flush;
    }
}

}  // namespace lorvane
