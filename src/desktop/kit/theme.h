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
    Page,        ///< ground of windows
    Bar,         ///< ground of menu bar and tool bar
    Card,        ///< ground of cards, menus, buttons and text fields
    Field,       ///< ground of cells at rest and of empty bars; elsewhere of what the pointer is over
    FieldHover,  ///< ground of a cell that the pointer is over
    Line,        ///< edges of cards and lines between rows
    StrongLine,  ///< edges of buttons and fields, and scroll bars
    Text,
    SecondText,          ///< text and drawings that stand back
    Quiet,               ///< text and drawings of what is disabled
    Accent,              ///< text, lines and drawings of what is checked or has the focus
    AccentFill,          ///< ground of primary buttons and checked signs
    AccentFillHover,     ///< the same with the pointer over it
    OnAccent,            ///< text on AccentFill and SelectedRow
    BarFill,             ///< the filled part of a bar in a card
    AccentTint,          ///< pale ground of what is chosen, marked or a result
    TextSelection,       ///< ground of selected text in a field
    Treated,             ///< the treated arm, and the only series of a drawing
    Control,             ///< the control arm
    SelectedRow,         ///< ground of a selected row
    SelectedRowEdge,     ///< its edge; clear in the light set
    ProblemOutline,      ///< line around what needs attention
    ProblemOutlineEdge,  ///< outer edge of that line; clear in the light set
    ProblemTint,         ///< ground of a cell or field with a problem
    ProblemText,         ///< text and sign of a problem
    ProblemCard,         ///< ground and edge of a card that tells of a problem
    ProblemCardLine,
    GuidePaper,
    GuideText,
    GuideLine,
    GuideQuiet,
    DetailsRest,  ///< ground and text of the details while they are at rest
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
    /// The set in use: the light one at the start, then what applyTheme and setDark have chosen.
    static const Theme& current();

    /// Puts another set in use. Nothing is repainted by this; widgets take the new colours when they next
    /// paint.
    static void use(const Theme& theme);

    /// The set for a system palette: dark when its windows are darker than the text on them, else light. When
    /// the palette is one of high contrast, nearly all colours are the system's own.
    static Theme forSystem(const QPalette& system);

    /// The light or the dark set whatever the system says.
    static Theme fixed(bool dark);

    /// The colour of a role in this set, and which set it is.
    QColor colour(Role role) const { return colours_[static_cast<std::size_t>(role)]; }
    bool isDark() const { return dark_; }
    bool isHighContrast() const { return highContrast_; }

    /// The palette for the application in the colours of this set. In high contrast it is not used: the
    /// system's palette stays.
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

/// Sets light or dark whatever the system says; std::nullopt follows the system again. Does nothing before
/// applyTheme.
void setDark(std::optional<bool> dark);

}  // namespace lorvane::desktop
