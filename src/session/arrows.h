// The arrows of the fields, and the decimals that they step by.
#pragma once

#include "session/field_book.h"
#include "session/session.h"

namespace lorvane {

enum class ArrowHold {
    click,  ///< a single push
    tick    ///< one of many while the arrow is held
};

/// Steps of a field by its arrows, up (1) or down (-1), computed and told at their end. Clicks on one pair of
/// arrows within a second of each other are one step of undo. Throws ArithmeticFault; the change stays then.
void stepField(Session& session, FieldRef field, int direction, ArrowHold hold = ArrowHold::click,
               int times = 1);

/// Changes the decimals of a field at all levels: the stored values are rounded to what is shown, but never
/// to one that the field does not take, or that would stop a computation that went on. Throws
/// ArithmeticFault.
void SETDECS(Session& session, const Field& field, int decimals);

/// The same together with the step of the field's arrows, a setting of its own.
void setStep(Session& session, const Field& field, int StudySettings::*step, int units, int decimals);

}  // namespace lorvane
