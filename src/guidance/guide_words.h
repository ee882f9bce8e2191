// What the texts of the guide say of a study: the conditions under which a piece is told, the levels that it
// is told for, and what stands in its places.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/marked_text.h"
#include "guidance/guide_reader.h"
#include "screen/main_screen.h"
#include "session/session_state.h"

namespace lorvane {

/// The study as it is told: its values, and how the screen shows them.
struct GuideFacts {
    const SessionState& state;
    const MainScreen& screen;

    const Study& study() const { return state.study; }
};

/// The title of an entry with its places filled. Throws std::logic_error for a place that no one knows.
std::string titleOf(const GuideEntry& entry, const GuideFacts& facts);

/// What the entry tells, a paragraph with nothing to tell left out. Throws std::logic_error for a condition,
/// a kind of level or a place that no one knows.
std::vector<Paragraph> textOf(const GuideEntry& entry, const GuideFacts& facts);

}  // namespace lorvane
