// How the viewer shows a report.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "platform/document.h"

namespace lorvane {

enum class Zooms { percent, pageWidth, fitPage };

struct ReportView {
    Zooms zoom = Zooms::percent;
    int percent = 100;  ///< of the true size
    int CurrentPage = 1;
    int pages = 0;   ///< of the report; 0 before the first one
    int jump = 0;    ///< counts what makes the viewer go to the top of the current page
    int search = 0;  ///< counts what makes it go to the current match
    bool isFinding = false;
    std::vector<TextPlace> matches;
    std::optional<std::size_t> match;  ///< the current one
};

}  // namespace lorvane
