// What a session answers: whether there is a power, and why there is none.
#pragma once

#include <string>

#include "session/session.h"

namespace lorvane {

/// Whether the last computation gave a power. A risk ratio and two risks have no test of their own.
bool hasPower(const Session& session);

/// Why the study gives no power, in the words of the window that tells it; needs a study without power.
std::string whyNoPower(const Session& session);

/// The effect in the study's metric: its name in running text, and its value.
struct EffectAnswer {
    std::string name;
    double value;
};
EffectAnswer effectOf(const Study& study);

/// The cost of the study with its currency, "$106,560"; "n/a" where none can be told.
std::string costText(std::int32_t cost, const Currency& currency);

}  // namespace lorvane
