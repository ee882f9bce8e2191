// Plain display models of the controls on the screen: what a control shows, and nothing of how it is drawn.
// A model does not know who looks at it; views copy from it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace lorvane {

/// A colour by its red, green and blue parts, 0 to 255.
struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    bool operator==(const Colour&) const = default;
};

inline constexpr Colour black{0, 0, 0};
inline constexpr Colour normalBackground{255, 255, 255};
/// Marks fields at fault and cells with a problem.
inline constexpr Colour problemColour{200, 0, 0};

/// How a panel sets its caption.
enum class Alignment : int { left = 1, centred = 7 };

/// A cell or a line of text; a bar when its flood is used. Scripts read alignment and colours; a view looks
/// at trouble, and has looks of its own for it.
struct Panel {
    std::string Caption;
    bool Visible = true;
    bool trouble = false;  ///< it tells of a problem
    Alignment Align = Alignment::left;
    Colour ForeColor = black;
    Colour BackColor = normalBackground;
    /// Share of the panel that is filled, in percent, 0 to 100.
    double Flood = 0;
};

/// A button to press.
struct Button {
    std::string Caption;
    bool Visible = true;
    bool Enabled = true;
};

/// One of several choices.
struct Option {
    std::string Caption;
    bool Value = false;  ///< it is the one chosen
    bool Visible = true;
    bool Enabled = true;
};

/// A box to type a text into.
struct TextBox {
    std::string Text;
    bool Visible = true;
    bool Enabled = true;
};

/// A table of text cells; the first row holds the heads.
struct Grid {
    using Row = std::vector<std::string>;
    std::vector<Row> rows;
    std::vector<std::size_t> selected = {};  ///< rows that the user has chosen, in rising order
};

}  // namespace lorvane
