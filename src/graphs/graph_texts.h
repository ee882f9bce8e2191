// What a graph tells in words: its header, and the study in four short lines below it.
#pragma once

#include <array>
#include <string>

#include "graphs/graph_variables.h"
#include "session/session_state.h"

namespace lorvane {

/// The variables of a graph; no series where there is one line.
struct GraphSubject {
    GraphVariable x;
    GraphVariable series;

    bool varies(GraphFields field, int level = 0) const {
        const GraphVariable variable = graphVariable(field, level);
        return x == variable || series == variable;
    }
};

inline constexpr int footerLines = 4;

/// "Power as a function of Number of schools and ICC for Classes".
std::string graphHeader(const Study& study, const GraphSubject& subject);

/// The design, the statistical model, the levels from the top, the effect. What the graph varies has no
/// value.
std::array<std::string, footerLines> graphFooter(const SessionState& state, const GraphSubject& subject);

}  // namespace lorvane
