// The two tables of dispersion that the report inserts: of the outcome by level, of the effect by blocked
// level.
#pragma once

#include "engine/study.h"
#include "platform/controls.h"
#include "validation/icc_span.h"

namespace lorvane {

/// Columns of the ICC table, as the report addresses them.
enum class IccColumn : int {
    Level = 1,
    ICCW,
    PctW,
    SDW,
    VarW,
    SpanW,
    LLW,
    ULW,
    ExampleW,
    ICCC,
    PctC,
    SDC,
    VarC,
    SpanC,
    LLC,
    ULC,
    ExampleC
};

/// Columns of the effect table: the level's own dispersion, then the one that adds all levels above it.
enum class TauSqColumn : int {
    Level = 1,
    TauSqW,
    SpanW,
    LLW,
    ULW,
    ExampleW,
    OmegaW,
    LevelC,
    TauSqC,
    SpanC,
    LLC,
    ULC,
    ExampleC,
    OmegaC
};

/// Span of a level as the table tells it: the entered one, or the width of the limits where risks are entered
/// as limits.
double spanOfLevel(const Study& study, int level);

/// One level of the ICC table. Shares are proportions, spans and limits are in the unit of the outcome
/// (raw score or risk); the cumulative values add the variances from the top level down.
struct IccRow {
    int level = 0;
    bool told = false;  ///< level 1 of a binary study has a name and no numbers
    double share = 0, SD = 0, lower = 0, upper = 0;
    double cumulativeShare = 0, cumulativeSD = 0, cumulativeLower = 0, cumulativeUpper = 0;
};

/// The row of a level; needs a study whose ICCs are in step with its spans.
IccRow iccRow(const Study& study, int level);

/// One blocked level of the effect table. The limits are those of the effect in the study's own metric, for
/// an odds ratio on the raw scale; a risk ratio and two risks have none.
struct TauSqRow {
    int level = 0;
    bool hasLimits = false;
    double tauSquared = 0, span = 0, lower = 0, upper = 0;
    double omega = 0;
    double cumulativeTauSquared = 0, cumulativeSpan = 0, cumulativeLower = 0, cumulativeUpper = 0;
};

TauSqRow tauSqRow(const Study& study, int level);

/// The headings alone: a line with the bands and a line with the names of the columns.
Grid LoadSpreadICC();
Grid LoadSpreadTauSq();

/// The tables with one row a level, the top level first. Numbers stand in their shortest text. ICCs whose sum
/// is out of range leave the names of the levels and, where the spans led to them, their shares; an effect
/// dispersion that is not valid leaves the names alone. The effect table of a hierarchical design has its
/// headings alone.
Grid iccTable(const Study& study, const IccVerdict& verdict);
Grid tauSqTable(const Study& study);

}  // namespace lorvane
