// The curve of power against the number of units of the top level. It is computed in slices, on a copy of the
// study, so nobody waits for it and nothing of the session changes.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "session/field_book.h"
#include "session/session.h"

namespace lorvane {

/// A number of units with its power, 0 to 1.
struct PowerPoint {
    double units;
    double power;
};

/// The ends of the axis.
struct UnitRange {
    double first = 0;
    double last = 0;
};

/// A whole curve.
struct PowerCurve {
    FieldRef field;                  ///< what varies: the number of units of the top level
    UnitRange range;                 ///< from the smallest number with a power
    std::vector<PowerPoint> points;  ///< rising; numbers without a power are left out
    std::size_t present = 0;         ///< the point of the study itself
};

/// The number that a curve varies: that of the blocks, or of the treated arm, which takes a linked control
/// arm with it.
FieldRef topUnits(const Study& study);

/// "Number of schools per group", "Number of schools".
std::string powerCurveTitle(const Study& study);

/// What the curve is, and which keys it knows.
std::string powerCurveName(const Study& study);
std::string powerCurveHint(const Study& study);

/// "15 schools: power 0.82".
std::string powerPointWords(const Study& study, const PowerPoint& point);

/// Keeps a curve for a session, bit by bit.
class PowerCurveRun {
public:
    /// Begins with the study as it stands. What was begun before is dropped; the last whole curve stays until
    /// the new one is, or goes where the study has no power.
    void begin(const Session& session);

    /// Computes at most so many powers. False when nothing is left to do.
    bool goOn(int trials);

    /// The last whole curve; null without one.
    const PowerCurve* curve() const { return whole_ ? &*whole_ : nullptr; }

private:
    bool hasPower(double units);
    void search();
    void chooseRange();
    void addPoint();
    void finish();

    std::optional<StudyTrial> trial_;  ///< while something is left to do
    PowerCurve begun_;
    std::optional<PowerCurve> whole_;
    double present_ = 0;
    double without_ = 0;  ///< the largest number known to give no power
    double with_ = 0;     ///< the smallest one known to give a power
    double next_ = 0;     ///< the next number of the curve; 0 before the range is chosen
    double step_ = 1;
};

}  // namespace lorvane
