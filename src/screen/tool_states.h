// What the tools show of the study: captions with the names of levels and groups, checks, what is on offer.
#pragma once

#include "engine/study.h"
#include "screen/session_settings.h"
#include "screen/tool_book.h"
#include "screen/window_registry.h"

namespace lorvane {

/// Brings every tool into step with study, settings and windows.
void writeToolStates(const Study& study, const SessionSettings& settings, const WindowRegistry& windows,
                     ToolBook& tools);

/// The text of the tool that opens the limits of the risks.
std::string deltaToolCaption(double delta);

}  // namespace lorvane
