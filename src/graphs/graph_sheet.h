// The table of a graph as it is read: which rows are shown, and the same for a spreadsheet and for texts.
#pragma once

#include <string>

#include "graphs/graph_compute.h"
#include "platform/clipboard.h"
#include "platform/sheet.h"

namespace lorvane {

/// Whether a row of the table is shown, with the block of the costs or without.
bool isShownRow(const GraphTable& table, int row, bool withCost);

/// What a row of the table is, for its head: its series, its value, or power and cost where there is one
/// line.
std::string rowHead(const Grid& table, int row);

/// The rows that are shown, numbers as numbers.
Sheet graphSheet(const GraphTable& table, bool withCost);

/// The same as text for other programs.
ClipboardContent graphTableText(const GraphTable& table, bool withCost);

}  // namespace lorvane
