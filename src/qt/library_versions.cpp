// The versions of the libraries behind this folder.
#include "qt/library_versions.h"

#include <qcustomplot.h>
#include <qpdf/qpdf-c.h>

namespace lorvane {

std::vector<LibraryVersion> libraryVersionsOfQt() {
    return {{"Qt", qVersion()}, {"QCustomPlot", QCUSTOMPLOT_VERSION_STR}, {"qpdf", qpdf_get_qpdf_version()}};
}

}  // namespace lorvane
