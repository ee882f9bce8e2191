// What the core asks of the system's regional settings.
#pragma once

#include <string>

namespace lorvane {

class SystemLocale {
public:
    virtual ~SystemLocale() = default;

    /// The value 0 in the system's own currency format, such as "$0.00" or "0,00 €".
    virtual std::string currencyOfZero() const = 0;
};

}  // namespace lorvane
