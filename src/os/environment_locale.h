// The regional settings of the environment that the program was started in.
#pragma once

#include "platform/system_locale.h"

namespace lorvane {

class EnvironmentLocale final : public SystemLocale {
public:
    /// Without regional settings the answer has no currency symbol.
    std::string currencyOfZero() const override;
};

}  // namespace lorvane
