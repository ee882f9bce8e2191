// Power and cost over the values of one variable or two.
#include "graphs/graph_compute.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "base/number_text.h"

namespace lorvane {

namespace {

constexpr int powerDecimals = 4;
constexpr int axisDecimals = 3;
constexpr int seriesDecimals = 4;

// Both arms of a level have the same number of units.
void put(Study& study, const GraphVariable& variable, double value) {
    variable.in(study) = value;
    if (variable.is(GraphFields::NT))
        study.txtNC(variable.level) = value;
}

// What follows from the series has to follow from its mean, too, before a range looks at the power.
void putSeriesAtItsMean(StudyTrial& trial, const GraphRequest& request) {
    if (!request.hasSeries())
        return;
    const auto first = request.lines.begin() + 1;
    const double sum = std::accumulate(first, first + request.NumLines(), 0.0);
    put(trial.study, request.LVar, sum / request.NumLines());
    trial.refresh();
}

Intervals axisWithSeries(StudyTrial& trial, const GraphRequest& request) {
    putSeriesAtItsMean(trial, request);
    return intervalsOf(trial, request.XVar, request.range);
}

std::string valueText(const GraphVariable& variable, double value, int decimals) {
    return fixedText(value, variable->isCount() ? 0 : decimals);
}

/// The computation of one table.
class Filling {
public:
    Filling(StudyTrial& trial, const GraphRequest& request, GraphTable& table)
        : trial_(trial), request_(request), table_(table) {}

    void prepare();
    void fillPoint(int point);

private:
    std::string& cell(int row, int column) {
        return table_.cells.rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
    }
    void writeHeads();
    void writeLines();
    void write(int line, int point);

    StudyTrial& trial_;
    const GraphRequest& request_;
    GraphTable& table_;
};

void Filling::prepare() {
    const auto columns = static_cast<std::size_t>(std::max(table_.axis.Points, 0)) + 1;
    table_.cells.rows.assign(GraphRows::count, Grid::Row(columns));
    writeHeads();
    if (request_.hasSeries())
        writeLines();
}

void Filling::writeHeads() {
    const std::string title = GetTitleX(trial_.study, request_.XVar);
    cell(GraphRows::powerX, 0) = cell(GraphRows::costX, 0) = title;
    for (int point = 1; point <= table_.axis.Points; ++point) {
        cell(GraphRows::powerHead, point) = "Table of Power";
        cell(GraphRows::costHead, point) = "Table of Cost";
    }
}

void Filling::writeLines() {
    std::string title = GetTitleL(trial_.study, request_.LVar) + "\n";
    title += countSuffix(request_.LVar);
    cell(GraphRows::powerHead, 0) = cell(GraphRows::costHead, 0) = title;
    for (int line = 1; line <= table_.NumLines; ++line) {
        const double value = request_.lines[static_cast<std::size_t>(line)];
        cell(GraphRows::power + line, 0) = cell(GraphRows::cost + line, 0) =
            valueText(request_.LVar, value, seriesDecimals);
    }
}

// A cost beyond 32 bits leaves its cell empty. A study without a test of its own has cost alone.
void Filling::write(int line, int point) {
    Study& s = trial_.study;
    s.result.txtCostProblem = false;
    trial_.refresh();
    const PowerResult& result = s.result;
    if (result.xValid && s.isTested())
        cell(GraphRows::power + line, point) = fixedText(result.txtPower, powerDecimals);
    if (result.xValid)
        table_.GraphMaxCost = std::max(table_.GraphMaxCost, result.txtCost);
    if (!result.txtCostProblem)
        cell(GraphRows::cost + line, point) = groupedText(result.txtCost);
}

void Filling::fillPoint(int point) {
    const Intervals& axis = table_.axis;
    const double x = point * axis.Step + axis.Start - axis.Step;
    put(trial_.study, request_.XVar, x);
    cell(GraphRows::powerX, point) = cell(GraphRows::costX, point) =
        valueText(request_.XVar, x, axisDecimals);
    for (int line = 1; line <= table_.NumLines; ++line) {
        if (request_.hasSeries())
            put(trial_.study, request_.LVar, request_.lines[static_cast<std::size_t>(line)]);
        write(line, point);
    }
}

}  // namespace

std::optional<double> GraphTable::number(int row, int column) const {
    std::string text = cells.rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
    std::erase(text, ',');
    return readNumber(text);
}

Intervals axisOf(StudyTrial trial, const GraphRequest& request) { return axisWithSeries(trial, request); }

GraphTable GraphCompute(StudyTrial trial, const GraphRequest& request, Progress& progress) {
    GraphTable table;
    table.NumLines = request.NumLines();
    table.axis = axisWithSeries(trial, request);
    if (table.axis.isCutToNothing) {
        GraphRequest automatic = request;
        automatic.range.Mode = 0;
        table.axis = axisWithSeries(trial, automatic);
        table.drawnByItself = true;
    }
    Filling filling(trial, request, table);
    filling.prepare();
    for (int point = 1; point <= table.axis.Points && !table.stopped; ++point) {
        filling.fillPoint(point);
        table.stopped = !progress.goOn();
    }
    return table;
}

}  // namespace lorvane
