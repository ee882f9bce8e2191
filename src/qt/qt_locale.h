// The regional settings of the desktop.
#pragma once

#include "platform/system_locale.h"

namespace lorvane {

class QtLocale final : public SystemLocale {
public:
    std::string currencyOfZero() const override;
};

}  // namespace lorvane
