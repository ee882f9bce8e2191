// A surface that keeps what is sent to it.
#include "reporting/recording_surface.h"

namespace lorvane {

void RecordingSurface::send(const DocumentStep& step) {
    document_.steps.push_back(step);
    if (pages_)
        pages_->send(step);
    else if (std::holds_alternative<step::NewPage>(step))
        ++unmeasured_;
}

double RecordingSurface::Y1() { return pages_ ? pages_->Y1() : 0; }

double RecordingSurface::heightOf(const DocumentTable& table) { return pages_ ? pages_->heightOf(table) : 0; }

int RecordingSurface::pages() { return pages_ ? pages_->pages() : unmeasured_; }

}  // namespace lorvane
