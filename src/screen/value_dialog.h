// The dialog that asks for one value: what it is, what it means, its unit, its limits.
#pragma once

#include <string>

#include "screen/dialog_window.h"

namespace lorvane {

class ValueDialog {
public:
    explicit ValueDialog(Design& design);

    const Dialog& dialog() const noexcept { return dialog_; }
    Dialog& dialog() noexcept { return dialog_; }

    /// Asks for the value of a field. With a first text that stands in place of the value, and typing goes on
    /// behind it. What was typed for another field, and not applied, is dropped.
    void open(FieldRef field, const std::string& firstText);

private:
    void apply();
    void refuse(const std::string& text);

    Design& design_;
    Session& session_;
    Dialog dialog_;
    FieldRef field_;
};

}  // namespace lorvane
