// The four tables of the report. Rows run from the top level down.
#pragma once

#include "reporting/table_draft.h"
#include "screen/study_facts.h"

namespace lorvane {

/// Each is made for the text of a page, as wide as it is and in its font.
using TableRoutine = ReportTable (*)(const StudyFacts&, const PageSetup& page);

/// Levels with role, units, dispersion, covariates, model, costs. Columns without a use are hidden.
ReportTable ReportMainTable(const StudyFacts& facts, const PageSetup& page);

/// ICCs with variances, spans and ranges within and across levels.
ReportTable ReportICCTable(const StudyFacts& facts, const PageSetup& page);

/// The variance of the effect in the same way, for blocked levels.
ReportTable ReportTauSqTable(const StudyFacts& facts, const PageSetup& page);

/// Expected counts of a binary study. Shares from 0.1 on are red.
ReportTable ReportCountsTable(const StudyFacts& facts, const PageSetup& page);

}  // namespace lorvane
