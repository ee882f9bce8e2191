// Tables of manuals: their columns, and where long ones are parted.
#pragma once

#include <QTextTable>

#include "platform/document.h"

namespace lorvane {

/// The first row is its head. The columns take the width that their words need, all of them at most so much,
/// in inches.
DocumentTable manualTable(const QTextTable& table, double width);

/// Inches that a table takes with letters of the size that holds; a surface makes them smaller in a long one.
double fullHeight(const DocumentTable& table, DocumentSurface& surface);

/// Takes rows off a table, as many as fill a height in inches, but at least one; the head stands in both
/// parts. What is left has no rows but its head when all fit.
DocumentTable takeRows(DocumentTable& table, double height, DocumentSurface& surface);

}  // namespace lorvane
