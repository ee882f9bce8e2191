// From the table of a graph to its chart.
#include "graphs/graph_chart.h"

#include <algorithm>
#include <cmath>

#include "base/money.h"
#include "base/number_text.h"

namespace lorvane {

namespace {

constexpr double hairBeyondEnd = 0.0001;  // so that the last point is not cut
constexpr int stepsOfAxis = 5;

constexpr int usualAnnotation = 2;
constexpr int annotationOfReversed = 3;

double largestCost(const GraphTable& table) {
    double largest = 0;
    for (int line = 1; line <= table.NumLines; ++line) {
        for (int point = 1; point <= table.axis.Points; ++point)
            largest = std::max(largest, table.number(GraphRows::cost + line, point).value_or(0));
    }
    return largest;
}

// Values of a variable in a legend and in the details.
std::string legendValue(const GraphVariable& variable, double value) {
    if (variable->isCount())
        return fixedText(value, 0).append(countSuffix(variable));
    return fixedText(value, variable.is(GraphFields::Rsq) ? 2 : 4);
}

std::string detailsValue(const GraphVariable& variable, double value) {
    if (variable.is(GraphFields::NT))
        return fixedText(value, 0) + " x 2";
    return fixedText(value, variable.is(GraphFields::NB) ? 0 : 4);
}

// Titles
// -------------------------------------------------------------------------------------------------

const char* powerTitle(const GraphState& state) {
    if (!state.showCost)
        return "Power";
    return state.ColorSet == 3 ? "Power (heavy line)" : "Power (solid line)";
}

std::string costTitle(const GraphState& state) {
    const char* line = state.ColorSet == 3 ? "light" : "dotted";
    if (state.CostScale == 1)
        return std::string("Cost (") + line + " line)";
    return std::string("Cost x ") + (state.CostScale == 1000 ? "thousand (" : "million (") + line + ")";
}

// Lines
// --------------------------------------------------------------------------------------------------

std::string labelOf(const DrawnGraph& graph, int line) {
    const GraphRequest& request = graph.request;
    return request.hasSeries() ? legendValue(request.LVar, request.lines[static_cast<std::size_t>(line)])
                               : "";
}

ChartGroup groupOf(const DrawnGraph& graph, int firstRow, double scale) {
    const GraphTable& table = graph.table;
    ChartGroup group;
    for (int point = 1; point <= table.axis.Points; ++point)
        group.x.push_back(table.number(GraphRows::powerX, point).value_or(0));
    for (int line = 1; line <= table.NumLines; ++line) {
        ChartLine drawn{labelOf(graph, line), {}};
        for (int point = 1; point <= table.axis.Points; ++point) {
            const auto value = table.number(firstRow + line, point);
            drawn.y.push_back(value ? std::optional(*value / scale) : std::nullopt);
        }
        group.lines.push_back(std::move(drawn));
    }
    return group;
}

// What a reader looks for first: the required power, and where the study itself stands.
void addSigns(const GraphVariable& XVar, const Intervals& axis, const Study& study, ChartContent& chart) {
    chart.required = {study.ReqPower, shortestText(roundHalfToEven(study.ReqPower * 100)) + "%"};
    const double own = XVar.in(study);
    if (own >= axis.Start && own <= axis.End)
        chart.own = {own, fixedText(own, XVar->decimals)};
}

ChartAxis xAxis(const GraphVariable& XVar, const Intervals& axis, const Study& study) {
    return {GetTitleX(study, XVar).append(countSuffix(XVar)),
            true,
            axis.Start,
            axis.End + hairBeyondEnd,
            axis.Reversed,
            axis.Reversed ? annotationOfReversed : usualAnnotation};
}

void addCost(const DrawnGraph& graph, const GraphState& state, ChartContent& chart) {
    chart.y2.visible = state.showCost;
    if (!state.showCost)
        return;
    const double largest = std::max(largestCost(graph.table), double(graph.table.GraphMaxCost));
    chart.y2.title = costTitle(state);
    chart.y2.high = roundAbove(largest / state.CostScale);
    chart.groups.push_back(groupOf(graph, GraphRows::cost, state.CostScale));
}

void addTexts(const GraphSubject& subject, const GraphState& state, const SessionState& session,
              const std::string& secondHeader, ChartContent& chart) {
    if (state.showHeader)
        chart.header = {graphHeader(session.study, subject), secondHeader};
    if (state.showFooter) {
        const auto footer = graphFooter(session, subject);
        chart.footer.assign(footer.begin(), footer.end());
    }
    chart.footerSize = state.footerSize;
    chart.footerBold = state.footerBold;
}

}  // namespace

bool DrawnGraph::hasPower(int series, int point) const {
    return series >= 1 && series <= table.NumLines && point >= 1 && point <= table.axis.Points &&
           table.number(GraphRows::power + series, point).has_value();
}

int costScaleOf(const GraphTable& table) {
    const double largest = largestCost(table);
    if (largest > 1000000)
        return 1000000;
    return largest > 1000 ? 1000 : 1;
}

double roundAbove(double value) {
    if (value <= 0)
        return stepsOfAxis;
    double decade = std::pow(10, std::floor(std::log10(value / stepsOfAxis)));
    for (;; decade *= 10) {
        for (const double step : {1.0, 2.0, 5.0}) {
            if (step * decade * stepsOfAxis > value)
                return step * decade * stepsOfAxis;
        }
    }
}

ChartContent chartOf(const DrawnGraph& graph, const GraphState& state, const SessionState& session,
                     const std::string& secondHeader) {
    const GraphRequest& request = graph.request;
    ChartContent chart;
    chart.x = xAxis(request.XVar, graph.table.axis, session.study);
    chart.y.title = powerTitle(state);
    chart.groups.push_back(groupOf(graph, GraphRows::power, 1));
    addCost(graph, state, chart);
    if (request.hasSeries())
        chart.legend = {GetTitleL(session.study, request.LVar), state.legend,
                        state.legend != LegendPlaces::hidden};
    else
        chart.legend.place = state.legend;
    addSigns(request.XVar, graph.table.axis, session.study, chart);
    addTexts(graph.subject(), state, session, secondHeader, chart);
    chart.colours = static_cast<ColourSets>(std::max(state.ColorSet, 1));
    return chart;
}

std::string pointDetails(const DrawnGraph& graph, const GraphState& state, const Study& study) {
    constexpr const char* blanks = "      ";
    const GraphTable& table = graph.table;
    const GraphRequest& request = graph.request;
    const auto [series, point] = state.CurrentPoint;
    const double power = table.number(GraphRows::power + series, point).value_or(0);
    const double x = table.number(GraphRows::powerX, point).value_or(0);
    std::string details = "Power = " + fixedText(100 * power, 1) + "%\n" + blanks +
                          GetTitleX(study, request.XVar) + " = " + detailsValue(request.XVar, x);
    if (request.hasSeries())
        details += std::string("\n") + blanks + GetTitleL(study, request.LVar) + " = " +
                   detailsValue(request.LVar, request.lines[static_cast<std::size_t>(series)]);
    const auto cost = table.number(GraphRows::cost + series, point);
    if (state.showCostInDetails && cost)
        details += "\nCost = " + groupedText(static_cast<std::int64_t>(*cost));
    return details;
}

}  // namespace lorvane
