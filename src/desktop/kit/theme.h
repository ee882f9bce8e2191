// The colours of the program by what they mean, in a light, a dark and a high-contrast set, and how they
// reach the application. Knows nothing of single widgets.
#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include <QColor>

class QApplication;
class QPalette;

namespace lorvane::desktop {

/// What a colour means. Widgets ask for the meaning, never for a value.
enum class Role {
    Page,
    Bar,
    Card,
    Field,
    FieldHover,
    Line,
    StrongLine,
    Text,
    SecondText,
    Quiet,
    Accent,
    AccentFill,
    AccentFillHover,
    OnAccent,
    BarFill,
    AccentTint,
    TextSelection,
    Treated,
    Control,
    SelectedRow,
    SelectedRowEdge,
    ProblemOutline,
    ProblemOutlineEdge,
    ProblemTint,
    ProblemText,
    ProblemCard,
    ProblemCardLine,
    GuidePaper,
    GuideText,
    GuideLine,
    DetailsRest,
    DetailsRestText,
    GraphLine1,
    GraphLine2,
    GraphLine3,
    ReportSurround,
    Paper,
};

inline constexpr std::size_t RoleCount = static_cast<std::size_t>(Role::Paper) + 1;

/// One complete set of colours.
class Theme {
public:
    /// The set in use. Valid from the start; changed by applyTheme and setDark.
    static const Theme& current();

    /// Puts another set in use. Widgets see it at their next painting.
    static void use(const Theme& theme);

    /// The set for a system palette: light or dark by the lightness of its window, or, when the palette is
    /// one of high contrast, the system's own colours.
    static Theme forSystem(const QPalette& system);

    /// The light or the dark set whatever the system says.
    static Theme fixed(bool dark);

    QColor colour(Role role) const { return colours_[static_cast<std::size_t>(role)]; }
    bool isDark() const { return dark_; }
    bool isHighContrast() const { return highContrast_; }

    /// The application palette of this set. Not for high contrast, where the system's palette stays.
    QPalette palette() const;

private:
    Theme() = default;

    std::array<QColor, RoleCount> colours_;
    bool dark_ = false;
    bool highContrast_ = false;
};

/// The colour of a role in the set in use.
QColor colour(Role role);

/// Gives the application its style, palette, font and style sheet, and again whenever the system's palette
/// changes. Call once, before the first window.
void applyTheme(QApplication& application);

/// Overrides the system's choice of light or dark; nothing goes back to the system. After applyTheme only.
void setDark(std::optional<bool> dark);

}  // namespace lorvane::desktop
