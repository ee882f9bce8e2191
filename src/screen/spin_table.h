// Which field every pair of arrows moves, by what step, and what follows.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "screen/session_settings.h"

namespace lorvane {

/// Where the step of a field comes from, in units of the last decimal.
enum class SpinStep { one, sizeOfLevel, costOfLevel, span, mean, sd };

/// The picture that a change of the field may open.
enum class SpinPicture { none, icc, tauSq };

struct SpinRow {
    std::string_view control;  ///< stem of the arrows' name, "spnNT"
    std::string_view field;    ///< stem of the field's name, "txtNT"
    bool perLevel;
    SpinStep step = SpinStep::one;
    bool snap = false;               ///< the value goes on to a multiple of the step
    std::string_view linkedTo = {};  ///< stem of the other arm's field
    SpinPicture picture = SpinPicture::none;
    bool onIccPanel = false;    ///< the arrows also stand on frmDisplayICC
    bool onTauSqPanel = false;  ///< and on frmDisplayTauSq
};

/// A pair of arrows by its name, taken apart.
struct SpinControl {
    const SpinRow* row;
    int level;  ///< 0 where the field belongs to no level
};

/// The arrows of a name such as "spnNT(2)" or "frmDisplayICC.spnIcc(3)"; nothing when there are none.
std::optional<SpinControl> findSpin(std::string_view control);

/// All rows of the table.
struct SpinRows {
    const SpinRow* first;
    const SpinRow* last;
    const SpinRow* begin() const { return first; }
    const SpinRow* end() const { return last; }
};
SpinRows spinRows();

/// The step of a row for a level, in units of the last decimal.
int stepOf(const SpinRow& row, int level, const SessionSettings& settings);

}  // namespace lorvane
