// The sections of the report. Each is a table of sentences; to change what the report says, change the text
// there.
#pragma once

#include <vector>

#include "reporting/report_sentences.h"

namespace lorvane {

const ReportSection& nullSection();
const ReportSection& analysisSection();
const ReportSection& effectSection();
const ReportSection& alphaSection();
const ReportSection& designSection();
const ReportSection& sampleSizeSection();
const ReportSection& modelSection();
const ReportSection& iccSection();
const ReportSection& tauSqSection();
const ReportSection& covariateSection();
const ReportSection& powerSection();
const ReportSection& costSection();
const ReportSection& countsSection();
const ReportSection& disclaimerSection();
const ReportSection& checklistSection();

/// The sentence below the table of ICCs.
const ReportSection& iccTableNote();

/// All of them.
std::vector<const ReportSection*> reportSections();

}  // namespace lorvane
