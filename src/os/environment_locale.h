// The regional settings of the environment that the program was started in.
#pragma once

#include "platform/system_locale.h"

namespace lorvane {

/// Asks the environment at every call, so a change in between is seen.
class EnvironmentLocale final : public SystemLocale {
public:
    /// The symbol of the environment, before or behind "0.00" as the environment has it. Without regional
    /// settings there is no symbol.
    std::string currencyOfZero() const override;
};

}  // namespace lorvane
