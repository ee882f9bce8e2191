// Writes the session onto the table of levels and the effect strip: captions, visibility, roles, words.
#pragma once

#include "screen/main_screen.h"
#include "session/session_state.h"

namespace lorvane {

/// Decimals of all panels of the effect strip: 3, or 4 when one of the rates and ratios shows 4.
int GetCurrFmt(const Study& study);

/// The cells of all fields: what they show, which of them show, and which have arrows. The models are those
/// that the computation read, which a file may have set where they are always random.
void writeCells(const SessionState& state, const PerLevel<double>& models, MainScreen& screen);

/// Headings and derived texts of the effect strip, after its cells.
void writeStrip(const Study& study, MainScreen& screen);

/// "Alpha = 0.050, two-tailed".
std::string alphaTailsText(const Study& study);

/// Rows, roles and headings of the table of levels.
void writeTable(const Study& study, MainScreen& screen);

/// The tau-squared values that the last computation took, the lowest blocked level first.
void writeDiagnostics(const Study& study, MainScreen& screen);

/// The other form of d. It keeps its text while the ICCs leave no variance within.
void writeOtherForm(const Study& study, MainScreen& screen);

/// Title, sentence and the quiet lines under power and cost.
void writeWords(const SessionState& state, MainScreen& screen);

}  // namespace lorvane
