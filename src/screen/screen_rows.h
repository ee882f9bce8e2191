// Writes the study onto the table of levels and the effect strip: captions at every refresh, visibility when
// the shape or a mode of the study changes.
#pragma once

#include "engine/study.h"
#include "screen/main_screen.h"
#include "screen/session_settings.h"

namespace lorvane {

/// Decimals of all panels of the effect strip: 3, or 4 when one of the rates and ratios shows 4.
int GetCurrFmt(const Study& study);

/// The captions of the effect strip and its headings.
void writeStrip(const Study& study, MainScreen& screen);

/// "Alpha = 0.050, two-tailed"; empty for other tails.
std::string alphaTailsText(const Study& study);

/// The captions of the rows of the levels in use.
void writeRows(const Study& study, const SessionSettings& settings, MainScreen& screen);

/// The tau-squared values that the last computation took, the lowest blocked level first.
void writeDiagnostics(const Study& study, MainScreen& screen);

/// The other form of d. It keeps its text while the ICCs leave no variance within.
void writeOtherForm(const Study& study, MainScreen& screen);

/// Title, sentence and the quiet lines under power and cost.
void writeWords(const Study& study, const SessionSettings& settings, MainScreen& screen);

/// Which rows, cells, arrows and columns are shown, and the headings that follow the modes.
void writeVisibility(const Study& study, MainScreen& screen);

}  // namespace lorvane
