// The two tables of dispersion that the report inserts.
#include "validation/dispersion_tables.h"

#include <cmath>
#include <utility>

#include "base/number_text.h"
#include "validation/effect_dispersion.h"

namespace lorvane {

namespace {

constexpr std::size_t iccColumns = 17;
constexpr std::size_t tauSqColumns = 14;

template <typename Column>
std::string& cell(Grid::Row& row, Column column) {
    return row[static_cast<std::size_t>(column) - 1];
}

std::string example(double lower, double upper, int decimals) {
    return fixedText(lower, decimals) + " to " + fixedText(upper, decimals);
}

struct Limits {
    double lower;
    double upper;
};

Limits limitsOfOutcome(const Study& s, double span) {
    if (s.isMeans())
        return {s.txtMean - span / 2, s.txtMean + span / 2};
    const ShiftedRange range = GetRange(s.txtPrev, span);
    return {range.lower, range.upper};
}

double sdOfLevel(const Study& s, int level) { return spanOfLevel(s, level) / spanOfOneSd; }

double shareOfLevel(const Study& s, int level) {
    if (level > 1)
        return s.txtICC(level);
    double share = 1;
    for (int k = 2; k <= s.NumLevels; ++k)
        share -= s.txtICC(k);
    return share;
}

Limits limitsOfEffect(const Study& s, double span) {
    const bool oddsRatio = s.isBinary() && s.BinaryType == BinaryTypes::oddsRatio;
    const double centre = s.isMeans() ? s.txtd : oddsRatio ? std::log(s.txtOR) : s.txtRD;
    const Limits limits{centre - span / 2, centre + span / 2};
    return oddsRatio ? Limits{std::exp(limits.lower), std::exp(limits.upper)} : limits;
}

Grid::Row iccCells(const Study& s, int level, const IccVerdict& verdict) {
    using enum IccColumn;
    Grid::Row cells(iccColumns);
    const IccRow row = iccRow(s, level);
    cell(cells, Level) = s.txtName(level);
    if (!row.told || !(verdict.areInStep || verdict.sumIsGood))
        return cells;
    cell(cells, ICCW) = shortestText(row.share);
    cell(cells, PctW) = shortestText(100 * row.share);
    if (!verdict.sumIsGood)
        return cells;
    const int decimals = s.isMeans() ? 2 : 3;
    cell(cells, SDW) = shortestText(row.SD);
    cell(cells, VarW) = shortestText(row.SD * row.SD);
    cell(cells, SpanW) = shortestText(spanOfOneSd * row.SD);
    cell(cells, LLW) = shortestText(row.lower);
    cell(cells, ULW) = shortestText(row.upper);
    cell(cells, ExampleW) = example(row.lower, row.upper, decimals);
    cell(cells, ICCC) = shortestText(row.cumulativeShare);
    cell(cells, PctC) = shortestText(100 * row.cumulativeShare);
    cell(cells, SDC) = shortestText(row.cumulativeSD);
    cell(cells, VarC) = shortestText(row.cumulativeSD * row.cumulativeSD);
    cell(cells, SpanC) = shortestText(spanOfOneSd * row.cumulativeSD);
    cell(cells, LLC) = shortestText(row.cumulativeLower);
    cell(cells, ULC) = shortestText(row.cumulativeUpper);
    cell(cells, ExampleC) = example(row.cumulativeLower, row.cumulativeUpper, decimals);
    return cells;
}

Grid::Row tauSqCells(const Study& s, int level) {
    using enum TauSqColumn;
    Grid::Row cells(tauSqColumns);
    const TauSqRow row = tauSqRow(s, level);
    const int decimals = s.isMeans() ? 2 : 3;
    cell(cells, Level) = cell(cells, LevelC) = s.txtName(level);
    if (!s.effect.ValidTauSq(0))
        return cells;
    cell(cells, TauSqW) = shortestText(row.tauSquared);
    cell(cells, SpanW) = shortestText(row.span);
    if (s.effect.ValidOmega(level))
        cell(cells, OmegaW) = shortestText(row.omega);
    cell(cells, TauSqC) = shortestText(row.cumulativeTauSquared);
    cell(cells, SpanC) = shortestText(row.cumulativeSpan);
    if (!row.hasLimits)
        return cells;
    cell(cells, LLW) = shortestText(row.lower);
    cell(cells, ULW) = shortestText(row.upper);
    cell(cells, ExampleW) = example(row.lower, row.upper, decimals);
    cell(cells, LLC) = shortestText(row.cumulativeLower);
    cell(cells, ULC) = shortestText(row.cumulativeUpper);
    cell(cells, ExampleC) = example(row.cumulativeLower, row.cumulativeUpper, decimals);
    return cells;
}

}  // namespace

// Risks that are entered as limits have the width of the limits, whatever span was entered before.
double spanOfLevel(const Study& s, int level) {
    const bool asLimits =
        s.isBinary() && s.IccMetric == IccMetrics::span && s.limits.RangeMode == RangeModes::limits;
    return asLimits ? s.limits.txtUL(level) - s.limits.txtLL(level) : s.txtMRange(level);
}

IccRow iccRow(const Study& s, int level) {
    IccRow row;
    row.level = level;
    row.told = level > 1 || s.isMeans();
    if (!row.told)
        return row;
    row.share = shareOfLevel(s, level);
    row.SD = sdOfLevel(s, level);
    double variance = 0;
    for (int k = s.NumLevels; k >= level; --k) {
        row.cumulativeShare += shareOfLevel(s, k);
        variance += sdOfLevel(s, k) * sdOfLevel(s, k);
    }
    row.cumulativeSD = std::sqrt(variance);
    const Limits own = limitsOfOutcome(s, spanOfOneSd * row.SD);
    row.lower = own.lower;
    row.upper = own.upper;
    const Limits cumulative = limitsOfOutcome(s, spanOfOneSd * row.cumulativeSD);
    row.cumulativeLower = cumulative.lower;
    row.cumulativeUpper = cumulative.upper;
    return row;
}

TauSqRow tauSqRow(const Study& s, int level) {
    TauSqRow row;
    row.level = level;
    row.hasLimits = s.isTested();
    row.tauSquared = s.effect.txtTauSq(level);
    row.span = s.effect.txtSpan(level);
    row.omega = s.effect.txtOmega(level);
    for (int k = s.NumLevels; k >= level; --k)
        row.cumulativeTauSquared += s.effect.txtTauSq(k);
    row.cumulativeSpan = spanOfOneSd * std::sqrt(row.cumulativeTauSquared);
    if (!row.hasLimits)
        return row;
    const Limits own = limitsOfEffect(s, row.span);
    row.lower = own.lower;
    row.upper = own.upper;
    const Limits cumulative = limitsOfEffect(s, row.cumulativeSpan);
    row.cumulativeLower = cumulative.lower;
    row.cumulativeUpper = cumulative.upper;
    return row;
}

Grid LoadSpreadICC() {
    Grid::Row bands(iccColumns);
    cell(bands, IccColumn::ICCW) = "Within levels";
    cell(bands, IccColumn::ICCC) = "Cumulative";
    return {{std::move(bands),
             {"Level", "ICCW", "Pct", "SDW", "VarW", "SpanW", "LLW", "ULW", "Example", "ICCC", "Pct", "SDC",
              "VarC", "SpanC", "LLC", "ULC", "Example"}}};
}

Grid LoadSpreadTauSq() {
    Grid::Row bands(tauSqColumns);
    cell(bands, TauSqColumn::TauSqW) = "Within levels";
    cell(bands, TauSqColumn::TauSqC) = "Across levels";
    return {{std::move(bands),
             {"Level", "Tau Sq", "Span", "LL", "UL", "Example", "Omega", "Level", "Tau Sq", "Span", "LL",
              "UL", "Example", "Omega"}}};
}

Grid iccTable(const Study& study, const IccVerdict& verdict) {
    Grid table = LoadSpreadICC();
    for (int level = study.NumLevels; level >= 1; --level)
        table.rows.push_back(iccCells(study, level, verdict));
    return table;
}

Grid tauSqTable(const Study& study) {
    Grid table = LoadSpreadTauSq();
    for (int level = study.NumLevels; level > study.RandomizedLevel; --level)
        table.rows.push_back(tauSqCells(study, level));
    return table;
}

}  // namespace lorvane
