// What a small dialog does with the screen that it belongs to: it opens, closes and refuses.
#pragma once

#include <string>
#include <vector>

#include "screen/design.h"
#include "screen/dialog.h"

namespace lorvane {

bool isOpen(const Design& design, const Dialog& dialog);

/// Opens a dialog with the texts that it holds. One that is open already begins anew.
void open(Design& design, Dialog& dialog);

void close(Design& design, Dialog& dialog);

/// Keeps a dialog open with the reason why it takes no values, and marks the fields at fault.
void refuse(Design& design, Dialog& dialog, const std::string& title, const std::string& reason,
            const std::vector<std::string>& controls);

/// A label or a text of a dialog.
Panel panelOf(std::string caption);

/// A field with the label before it.
DialogField dialogField(std::string control, Panel label = {}, std::string labelName = {});

/// What is told of a text that is no number.
inline constexpr const char* notANumber = "Please enter a number              ";

}  // namespace lorvane
