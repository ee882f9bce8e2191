// Which field every pair of arrows moves.
#include "screen/spin_table.h"

#include <algorithm>
#include <iterator>

#include "base/names.h"
#include "engine/per_level.h"

namespace lorvane {

namespace {

using enum SpinStep;

constexpr SpinRow rows[] = {
    {"spnNT", "txtNT", true, sizeOfLevel, true, "txtNC"},
    {"spnNC", "txtNC", true, sizeOfLevel, true, "txtNT"},
    {"spnNB", "txtNB", true, sizeOfLevel, true},
    {"spnCostT", "txtCostT", true, costOfLevel, true, "txtCostC"},
    {"spnCostC", "txtCostC", true, costOfLevel, true, "txtCostT"},
    {"spnCostB", "txtCostB", true, costOfLevel, true},
    {"spnIcc", "txtICC", true, one, false, {}, SpinPicture::icc, true},
    {"spnMRange", "txtMRange", true, span, true, {}, SpinPicture::icc, true},
    {"spnDRange", "txtDRange", true, one, false, {}, SpinPicture::tauSq, false, true},
    {"spnTauSq", "txtTauSq", true, one, false, {}, SpinPicture::tauSq, false, true},
    {"spnOmega", "txtOmega", true, one, false, {}, SpinPicture::tauSq, false, true},
    {"spnQ", "txtQ", true},
    {"spnRsq", "txtRsq", true},
    {"spnD", "txtd", false},
    {"spnOR", "txtOR", false},
    {"spnRR", "txtRR", false},
    {"spnRD", "txtRD", false},
    {"spnPrev", "txtPrev", false},
    {"spnP2", "txtP2", false},
    {"spnMean", "txtMean", false, mean, true},
    {"spnSD", "txtSD", false, sd, true},
};

bool standsOn(const SpinRow& row, std::string_view window) {
    return window.empty() || (window == "frmDisplayICC" && row.onIccPanel) ||
           (window == "frmDisplayTauSq" && row.onTauSqPanel);
}

}  // namespace

SpinRows spinRows() { return {std::begin(rows), std::end(rows)}; }

std::optional<SpinControl> findSpin(std::string_view control) {
    const std::size_t point = control.find('.');
    const bool onWindow = point != std::string_view::npos;
    const std::string_view window = onWindow ? control.substr(0, point) : std::string_view();
    const IndexedName name = splitName(onWindow ? control.substr(point + 1) : control);
    const auto row = std::find_if(std::begin(rows), std::end(rows), [&](const SpinRow& candidate) {
        return candidate.control == name.stem && candidate.perLevel == name.index.has_value();
    });
    const int level = name.index.value_or(0);
    if (row == std::end(rows) || !standsOn(*row, window))
        return std::nullopt;
    if (row->perLevel && (level < lowestLevel || level > highestLevel))
        return std::nullopt;
    return SpinControl{row, level};
}

int stepOf(const SpinRow& row, int level, const SessionSettings& settings) {
    switch (row.step) {
    case one:
        return 1;
    case sizeOfLevel:
        return settings.IncN(level);
    case costOfLevel:
        return settings.IncCost(level);
    case span:
        return settings.IncMRange;
    case mean:
        return settings.IncMean;
    case sd:
        return settings.IncSD;
    }
    return 1;
}

}  // namespace lorvane
