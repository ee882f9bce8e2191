// The regional settings of the environment.
#include "os/environment_locale.h"

#include <locale>
#include <stdexcept>

namespace lorvane {

namespace {

std::locale environmentLocale() {
    try {
        return std::locale("");
    } catch (const std::runtime_error&) {
        return std::locale::classic();
    }
}

bool valueStandsFirst(const std::money_base::pattern& pattern) {
    for (const char field : pattern.field) {
        if (field == std::money_base::value)
            return true;
        if (field == std::money_base::symbol)
            return false;
    }
    return false;
}

}  // namespace

std::string EnvironmentLocale::currencyOfZero() const {
    const std::locale locale = environmentLocale();
    const auto& money = std::use_facet<std::moneypunct<char>>(locale);
    const std::string symbol = money.curr_symbol();
    return valueStandsFirst(money.pos_format()) ? "0.00 " + symbol : symbol + "0.00";
}

}  // namespace lorvane
