// Why a study gives no power.
#include "screen/trouble_words.h"

#include "base/number_text.h"
#include "engine/effect_check.h"
#include "validation/icc_messages.h"

namespace lorvane {

namespace {

// A value that no dialog offers, as a file can hold, may stop the computation without words of its own.
constexpr std::string_view iccWithoutWords = "The values of a level are not possible";
constexpr std::string_view tauSqWithoutWords = "The values of a blocked level are not possible";

std::string asSentence(std::string_view text, std::string_view otherwise = {}) {
    const std::string sentence(trimmed(text.empty() ? otherwise : text));
    return sentence.empty() || sentence.ends_with('.') ? sentence : sentence + '.';
}

bool isStoppedBy(const Session& session, Obstacle obstacle) {
    return session.faultWords().empty() && session.computation().outcome.obstacle == obstacle;
}

template <typename IsAtFault>
std::optional<LevelsAtFault> levelsFrom(const Study& s, int lowest, IsAtFault isAtFault) {
    std::optional<LevelsAtFault> found;
    for (int level = lowest; level <= s.NumLevels; ++level) {
        if (isAtFault(level))
            found = {level, found ? found->low : level};
    }
    return found;
}

}  // namespace

std::string troubleText(const Session& session) {
    if (!session.faultWords().empty())
        return session.faultWords();
    const Computation& told = session.computation();
    switch (told.outcome.obstacle) {
    case Obstacle::none:
        return "";
    case Obstacle::effect:
        return effectProblemText(session.study());
    case Obstacle::icc:
        return asSentence(iccMessageText(session.study(), told.icc), iccWithoutWords);
    case Obstacle::tauSq:
        return asSentence(tauSqMessageText(told.tauSq), tauSqWithoutWords);
    case Obstacle::data:
        return asSentence(told.outcome.problem.message);
    }
    return "";
}

// Sentences are told apart by their lines: a name that a user gave may hold a full stop, but no line break.
std::string troubleSentence(const Session& session) {
    const std::string text = troubleText(session);
    return text.substr(0, text.find('\n'));
}

std::optional<LevelsAtFault> iccAtFault(const Session& session) {
    if (!isStoppedBy(session, Obstacle::icc))
        return std::nullopt;
    const Study& s = session.study();
    return levelsFrom(s, lowestLevel, [&](int level) { return !s.outcome.ValidICC(level); });
}

std::optional<LevelsAtFault> tauSqAtFault(const Session& session) {
    if (!isStoppedBy(session, Obstacle::tauSq))
        return std::nullopt;
    const Study& s = session.study();
    const bool entersOmega = s.TauSqMetric == TauSqMetrics::omega;
    return levelsFrom(s, s.RandomizedLevel + 1, [&](int level) {
        return !s.effect.ValidTauSq(level) || !s.effect.ValidSpan(level) ||
               (entersOmega && !s.effect.ValidOmega(level));
    });
}

}  // namespace lorvane
