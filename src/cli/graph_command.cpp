// The command for a sensitivity graph.
#include "cli/graph_command.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <ostream>

#include "base/names.h"
#include "base/number_text.h"
#include "base/use_problem.h"
#include "base/utf8.h"
#include "graphs/graph_chart.h"
#include "graphs/graph_files.h"
#include "graphs/graph_points.h"
#include "graphs/graph_rules.h"
#include "graphs/graph_sheet.h"
#include "session/answers.h"
#include "validation/icc_messages.h"

namespace lorvane {

namespace {

std::string withoutPrefix(const std::string& key, const char* prefix) {
    return key.starts_with(prefix) ? key.substr(2) : key;
}

// A key with or without the letter of its menu.
GraphVariable variableOf(const char* option, const std::string& text, const char* prefix,
                         const Study& study) {
    const std::string wanted = withoutPrefix(text, prefix);
    std::vector<std::string> known;
    for (const GraphKey& key : graphKeys()) {
        if (key.key != wanted) {
            known.push_back(key.key);
            continue;
        }
        const GraphVariable variable = key.bound(study);
        if (!variable.isOnOffer(study))
            throw UseProblem(std::string(option) + " " + inQuotes(text) +
                             " has no effect in this study; choose a variable that the study is entered in.");
        return variable;
    }
    throw UseProblem(std::string(option) + " does not know " + inQuotes(text) + "; the nearest is \"" +
                     nearestName(wanted, known) + "\".");
}

void requireWhole(const char* option, const GraphVariable& variable, std::initializer_list<double> values) {
    for (const double value : values) {
        if (variable->isCount() && value != std::floor(value))
            throw UseProblem(std::string(option) + ": a number of units is whole, not " +
                             shortestText(value) + ".");
    }
}

XRange rangeOf(const std::string& text, const GraphVariable& x, const Study& study) {
    if (text.empty())
        return {};
    const std::size_t colon = text.find(':');
    const auto start = readNumber(text.substr(0, colon));
    const auto end = colon == std::string::npos ? std::nullopt : readNumber(text.substr(colon + 1));
    if (!start || !end)
        throw UseProblem("--range takes START:END, two numbers, not " + inQuotes(text) + ".");
    requireWhole("--range", x, {*start, *end});
    const FieldLimits limits = axisLimitsOf(study, x);
    if (!limits.holds(*start) || !limits.holds(*end))
        throw UseProblem("--range: " + rangeWords(limits, x->decimals));
    if (*start == *end)
        throw UseProblem(std::string("--range: ") + equalEnds);
    return {1, *start, *end};
}

LineValues valuesOf(const std::vector<double>& values, const GraphVariable& series) {
    if (values.size() < 2 || values.size() > mostLines)
        throw UseProblem("--values takes 2 to 5 numbers, parted by commas.");
    for (const double value : values) {
        requireWhole("--values", series, {value});
        if (!series->lineLimits.holds(value))
            throw UseProblem("--values: " + rangeWords(series->lineLimits, series->decimals));
        if (std::count(values.begin(), values.end(), value) > 1)
            throw UseProblem(std::string("--values: ") + equalValues);
    }
    LineValues lines{static_cast<double>(values.size())};
    const std::vector<double> sorted = sortedValues(series, values);
    std::copy(sorted.begin(), sorted.end(), lines.begin() + 1);
    return lines;
}

GraphRequest requestOf(const GraphCommandRequest& wanted, const Study& study) {
    GraphRequest request;
    request.XVar = variableOf("--x", wanted.x, "X ", study);
    request.range = rangeOf(wanted.range, request.XVar, study);
    if (wanted.series.empty() != wanted.values.empty())
        throw UseProblem("--series and --values belong together; give both or neither.");
    if (wanted.series.empty())
        return request;
    request.LVar = variableOf("--series", wanted.series, "L ", study);
    if (request.LVar == request.XVar)
        throw UseProblem("The Series variable cannot be the same as the X-axis variable.");
    request.lines = valuesOf(wanted.values, request.LVar);
    return request;
}

// What a reader of the graph has to know.
std::string noteOf(const DrawnGraph& graph, const Study& study) {
    for (const GraphVariable& variable : {graph.request.XVar, graph.request.LVar}) {
        if (lacksCovariates(study, variable))
            return "There are no covariates at the level of R-squared, so most of the graph is empty.";
    }
    return truncationNote(study);
}

// Why a graph would say nothing; empty where it does.
std::string whyEmpty(const DrawnGraph& graph, const Study& study) {
    if (graph.table.drawnByItself)
        return cutToNothing;
    if (!study.isTested() || GetInitialPoint(graph, {}))
        return "";
    for (const GraphVariable& variable : {graph.request.XVar, graph.request.LVar}) {
        if (lacksCovariates(study, variable))
            return "There are no covariates at the level of R-squared; add --set \"txtQ(" +
                   std::to_string(variable.level) + ")=1\".";
    }
    return "No point of this graph has a power; modify the range or the study.";
}

std::string fileOf(const DrawnGraph& graph, const GraphCommandRequest& wanted, const GraphWriters& writers,
                   const SessionState& session) {
    const auto sheet = sheetFormatOf(wanted.out);
    if (sheet)
        return writers.sheets.write(graphSheet(graph.table, wanted.cost), *sheet);
    GraphState state;
    state.showCost = wanted.cost;
    state.CostScale = costScaleOf(graph.table);
    return writers.chart.picture(chartOf(graph, state, session, ""), *pictureFormatOf(wanted.out),
                                 PictureSizes::slide);
}

}  // namespace

int makeGraph(const GraphCommandRequest& wanted, const GraphWriters& writers, const CommandLine& line) {
    if (!sheetFormatOf(wanted.out) && !pictureFormatOf(wanted.out))
        throw UseProblem("--out ends in .png, .jpg, .svg or .pdf for the picture, in .csv, .xls or .xlsx for "
                         "the table, not as " +
                         inQuotes(wanted.out) + " does.");
    Session& session = line.session;
    line.store.open(session, wanted.study);
    applySettings(wanted.settings, session);
    const Study& study = session.study();
    if (!study.result.xValid || (!study.isTested() && !wanted.cost)) {
        line.errors << onOneLine(whyNoPower(session)) << '\n';
        return ExitCodes::noAnswer;
    }
    DrawnGraph graph{requestOf(wanted, study), {}};
    NoProgress unwatched;
    graph.table = GraphCompute(session.trial(), graph.request, unwatched);
    graph.table.cells.rows[0][0] = graphHeader(study, graph.subject());
    const std::string why = whyEmpty(graph, study);
    if (!why.empty()) {
        line.errors << why << '\n';
        return ExitCodes::noAnswer;
    }
    writers.files.replace(wanted.out, fileOf(graph, wanted, writers, session.state()));
    line.out << "The file " << printable(wanted.out) << " has been saved.\n";
    printNote(line.out, noteOf(graph, study));
    return ExitCodes::done;
}

}  // namespace lorvane
