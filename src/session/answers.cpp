// What a session answers.
#include "session/answers.h"

#include "engine/effect_check.h"
#include "engine/effect_metrics.h"
#include "validation/icc_messages.h"

namespace lorvane {

namespace {

// The words of the window that tells what stands in the way.
std::string wordsOf(const Session& session) {
    const Computation& computation = session.computation();
    switch (computation.outcome.obstacle) {
    case Obstacle::effect:
        return effectProblemText(session.study());
    case Obstacle::icc:
        return iccMessageText(session.study(), computation.icc);
    case Obstacle::tauSq:
        return tauSqMessageText(computation.tauSq);
    case Obstacle::data:
    case Obstacle::none:
        break;
    }
    return std::string(computation.outcome.problem.message);
}

}  // namespace

bool hasPower(const Session& session) { return session.study().result.xValid && session.study().isTested(); }

std::string whyNoPower(const Session& session) {
    if (!session.faultWords().empty())
        return session.faultWords();
    if (session.study().result.xValid)
        return "The effect metric \"" + std::string(GetESName(session.study())) +
               "\" has no test; state the effect as an odds ratio or a risk difference.";
    const std::string words = wordsOf(session);
    return words.empty() ? std::string(session.computation().outcome.request) : words;
}

EffectAnswer effectOf(const Study& s) {
    const std::string name(GetESName(s));
    if (s.isMeans())
        return {name + (s.DType == DTypes::within ? ", d (within)" : ", d (total)"), s.txtd};
    switch (s.BinaryType) {
    case BinaryTypes::oddsRatio:
        return {name, s.txtOR};
    case BinaryTypes::riskRatio:
        return {name, s.txtRR};
    case BinaryTypes::riskDifference:
        return {name, s.txtRD};
    case BinaryTypes::twoRisks:
        break;
    }
    return {name, s.txtP2};
}

std::string costText(std::int32_t cost, const Currency& currency) {
    return cost < 1 ? "n/a" : ReFormatCurrency(cost, currency);
}

}  // namespace lorvane
