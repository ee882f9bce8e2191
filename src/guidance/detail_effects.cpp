// Details of the dispersion of the effect across blocked levels: tau-squared, span of effects, omega.
#include "guidance/detail_subjects.h"

namespace lorvane {

using namespace cases;

namespace {

constexpr Sentence withoutBlocks[] = {
    {hierarchical, "This study has no blocked level: each cluster belongs to one group, so no cluster shows "
                   "an effect of its own."}};

constexpr Sentence ofOneGroup[] = {
    {notBlocked, "Each of the {level} belongs to one group, so it shows no effect of its own. This value is "
                 "of blocked levels alone."}};

constexpr Sentence notTold[] = {{blocked | effectsInvalid,
                                 "What follows from it can be told again as soon as the values of the study "
                                 "fit together."}};

constexpr Sentence rangeOfEffects[] = {{rangeToTell | blocked, "The effects lie"},
                                       {rangeToTell | blocked | belowTop, ", for example,"},
                                       {rangeToTell | blocked, " from {effect range}"},
                                       {rangeToTell | blocked | oddsRatio, ", told as odds ratios"},
                                       {rangeToTell | blocked, "."}};

constexpr Sentence onFixedBlocks[] = {
    {blocked | fixedModel, "The model for {level} is fixed, so an effect that varies across {level} does not "
                           "change power."}};

constexpr Sentence tauSqOfLevel[] = {
    {always, "Tau-squared for {Level} is the variance of the treatment effect ({effect}) across {level}"},
    {belowTop | blocked, " within {above}"},
    {always, ". "},
    {tauSqEntered | blocked, "It is assumed to be **{tau-squared shown}**."},
    {effectSpanEntered | blocked | effectsValid,
     "It follows from the span of effects and comes to **{tau-squared shown}**."},
    {effectSpanEntered | blocked | effectsInvalid, "It follows from the span of effects."},
    {omegaEntered | blocked | effectsValid, "It follows from omega and comes to **{tau-squared shown}**."},
    {omegaEntered | blocked | effectsInvalid, "It follows from omega."}};

constexpr Sentence spanOfTauSq[] = {
    {blocked | effectsValid, "This tau-squared implies that the effects span {effect span shown}. "}};

constexpr Sentence powerByTauSq[] = {
    {blocked | randomModel, "Power falls as tau-squared rises, since the study is to speak of more {level} "
                            "than those that it includes."}};

constexpr Sentence effectSpanOfLevel[] = {
    {always, "The span of effects is the width that holds nearly all effects of the treatment on {values} of "
             "{level}"},
    {belowTop | blocked, " within one of the {above}"},
    {always, ": four standard deviations of {effect}. "},
    {effectSpanEntered | blocked, "It is assumed to be **{effect span shown}**."},
    {tauSqEntered | blocked | effectsValid,
     "It follows from tau-squared and comes to **{effect span shown}**."},
    {tauSqEntered | blocked | effectsInvalid, "It follows from tau-squared."},
    {omegaEntered | blocked | effectsValid, "It follows from omega and comes to **{effect span shown}**."},
    {omegaEntered | blocked | effectsInvalid, "It follows from omega."}};

constexpr Sentence omegaOfLevel[] = {
    {blocked, "Omega is tau-squared as a multiple of the variance of the outcome over {level}. "},
    {omegaEntered | blocked, "It is assumed to be **{omega shown}**."},
    {tauSqEntered | blocked | omegaValid, "It comes to {omega shown}."},
    {effectSpanEntered | blocked | omegaValid, "It comes to {omega shown}."}};

constexpr Sentence powerByEffects[] = {
    {blocked | randomModel, "Power falls as effects differ more across {level}, since the study is to speak "
                            "of more {level} than those that it includes."}};

}  // namespace

const DetailSubject& tauSqDetails() {
    static const DetailSubject subject{
        DetailTabs::blockedOnes,
        {{always, "Tau-squared"}},
        {{Levels::none,
          {{always, "Tau-squared is the variance of the treatment effect ({effect}) across the units of a "
                    "blocked level. A tau-squared of 0 means that the effect is the same in all of them."}}},
         {Levels::none, together({withoutBlocks})},
         {Levels::blockedOnes, {{effectsValid, "Tau-squared for {level} is **{tau-squared shown}**."}}},
         {Levels::none,
          {{blocking, "Power falls as tau-squared rises, unless the model of the level is fixed."}}}},
        {{always, "Tau-squared for {Level}"}},
        {together({tauSqOfLevel}), together({ofOneGroup}), together({spanOfTauSq, rangeOfEffects, notTold}),
         together({powerByTauSq, onFixedBlocks})}};
    return subject;
}

const DetailSubject& effectSpanDetails() {
    static const DetailSubject subject{
        DetailTabs::blockedOnes,
        {{tauSqEntered, "Span of effects and omega"},
         {effectSpanEntered, "Span of effects ({effect sign})"},
         {omegaEntered, "Omega"}},
        {{Levels::none,
          {{always, "The span of effects is the width that holds nearly all effects of the treatment on "
                    "{values} across the units of a blocked level: four standard deviations of {effect}."}}},
         {Levels::none,
          {{always, "Omega is tau-squared, the variance of the effects, as a multiple of the variance of the "
                    "outcome over the units of the level."}}},
         {Levels::none, together({withoutBlocks})},
         {Levels::blockedOnes,
          {{effectSpanEntered, "The effects across {level} span **{effect span shown}**."},
           {tauSqEntered | effectsValid, "The effects across {level} span **{effect span shown}**."},
           {omegaEntered, "Omega for {level} is **{omega shown}**."}}},
         {Levels::none,
          {{blocking, "Power falls as effects differ more across the units of a level, unless its model is "
                      "fixed."}}}},
        {{tauSqEntered, "Span of effects and omega for {Level}"},
         {effectSpanEntered, "Span of effects ({effect sign}) for {Level}"},
         {omegaEntered, "Omega for {Level}"}},
        {together({omegaOfLevel}), together({effectSpanOfLevel}), together({ofOneGroup}),
         together({rangeOfEffects, notTold}), together({powerByEffects, onFixedBlocks})}};
    return subject;
}

}  // namespace lorvane
