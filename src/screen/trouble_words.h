// Why a study gives no power, and which cells that is about.
#pragma once

#include <optional>
#include <string>

#include "session/session.h"

namespace lorvane {

/// All that the program has to say of the reason; paragraphs stand on lines of their own. Empty with a power.
std::string troubleText(const Session& session);

/// Its first sentence.
std::string troubleSentence(const Session& session);

/// The highest and the lowest level whose dispersion makes a power impossible.
struct LevelsAtFault {
    int high;
    int low;
};

/// The levels with an ICC or a span, or with a dispersion of the effect, that stops the computation; nothing
/// when it is stopped by something else or by nothing.
std::optional<LevelsAtFault> iccAtFault(const Session& session);
std::optional<LevelsAtFault> tauSqAtFault(const Session& session);

}  // namespace lorvane
