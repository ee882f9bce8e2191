// What many tests need: the real distribution functions, a fixed locale, and a study of a design.
#pragma once

#include <string>

#include "engine/docompute.h"
#include "engine/study.h"
#include "numerics/numeric_distribution_library.h"
#include "platform/scripted_dialogs.h"
#include "platform/system_locale.h"

namespace lorvane {

/// The regional settings of a test, whatever machine it runs on.
class FixedLocale final : public SystemLocale {
public:
    explicit FixedLocale(std::string zero = "$0.00") : zero_(std::move(zero)) {}
    std::string currencyOfZero() const override { return zero_; }

private:
    std::string zero_;
};

/// A study with a design, randomized at a level.
inline Study studyOf(int NumLevels, int RandomizedLevel) {
    Study study;
    study.NumLevels = NumLevels;
    study.RandomizedLevel = RandomizedLevel;
    return study;
}

}  // namespace lorvane
