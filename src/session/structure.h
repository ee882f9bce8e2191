// The operations that change the shape of a study: levels, randomization, kind of outcome, entry of the
// dispersion, links. On the record alone, and as steps of the session.
#pragma once

#include "session/field_book.h"
#include "session/session.h"

namespace lorvane {

/// Randomizes a level, 1 to NumLevels: levels above it are blocked, levels below it nested.
void DoRandomize(Study& study, int level);

/// Sets the number of levels, held to 2 to 4. The randomization moves to the new top level; the values of
/// levels that fall away stay in the record.
void ApplyNumLevels(Study& study, int levels);

/// Clears effect, dispersion, covariates and R-squared; sizes, costs and links stay.
void ClearVals(Study& study);

/// A kind of outcome with the metric of its effect.
struct EffectMetric {
    DataTypes data;
    DTypes d;            ///< for means
    BinaryTypes binary;  ///< for a binary outcome

    bool operator==(const EffectMetric&) const = default;
};

/// Sets kind of outcome and metric; what belongs to the other kind stays.
void SetDataType(Study& study, const EffectMetric& metric);

// Each of the following is one step. Throws ArithmeticFault; the change stays then.

/// Adds or removes a level at the top; at four and at two levels nothing happens.
void addLevel(Session& session);
void removeLevel(Session& session);

/// Assigns treatment at a level; nothing for a level that the study does not have.
void randomizeLevel(Session& session, int level);

/// The mark that a level is blocked: setting it blocks all levels above too, clearing it clears all below.
/// The lowest level cannot be blocked.
void toggleBlocked(Session& session, int level);

/// Sets kind of outcome and metric, and clears the values that belong to the former one.
void changeDataType(Session& session, const EffectMetric& metric);

/// Two levels, randomized at the top, for the example of the optimal design; the kind of outcome stays.
void ResetForOD(Session& session);

/// How the dispersion of the outcome is entered; the mode counts for risks that are entered as spans.
void enterIcc(Session& session);
void enterSpan(Session& session, RangeModes mode);

/// How the dispersion of the effect is entered.
void enterEffectAs(Session& session, TauSqMetrics metric);

/// Keeps both arms of a level at the same number or cost, that of the treated arm, or lets them part.
void linkSizes(Session& session, int level, bool linked);
void linkCosts(Session& session, int level, bool linked);

/// Links the two arms of a field, or lets them part; nothing for a field without a twin.
void toggleLink(Session& session, FieldRef field);

/// Writes sizes that a search found into all levels of the study, the same in both arms.
void pasteSizes(Session& session, const PerLevel<double>& sizes);

/// Sets what one step of the arrows of a level's sizes or costs is: 1, 10 or 100.
void setStepOfSizes(Session& session, int level, int step);
void setStepOfCosts(Session& session, int level, int step);

}  // namespace lorvane
