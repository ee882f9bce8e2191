// The list of the sections.
#include "reporting/report_sections.h"

namespace lorvane {

std::vector<const ReportSection*> reportSections() {
    return {&nullSection(),   &analysisSection(),   &effectSection(),     &alphaSection(),
            &designSection(), &sampleSizeSection(), &modelSection(),      &iccSection(),
            &iccTableNote(),  &tauSqSection(),      &covariateSection(),  &powerSection(),
            &costSection(),   &countsSection(),     &disclaimerSection(), &checklistSection()};
}

}  // namespace lorvane
