// The table of colours and the palettes made from it. Sets nothing on the application.
#include "desktop/kit/theme.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QPalette>

namespace lorvane::desktop {

namespace {

/// A role in the light and the dark set, and the system's role for it in high contrast. NoRole keeps the
/// value of the light or dark set even then.
struct Values {
    QRgb light;
    QRgb dark;
    QPalette::ColorRole system;
};

constexpr QRgb Clear = 0x00000000;

constexpr std::array<Values, RoleCount> Table = {{
    {0xFFF4F5F7, 0xFF16181C, QPalette::Window},           // Page
    {0xFFFFFFFF, 0xFF1C1F24, QPalette::Window},           // Bar
    {0xFFFFFFFF, 0xFF1F2228, QPalette::Base},             // Card
    {0xFFF1F3F7, 0xFF2A2E36, QPalette::Base},             // Field
    {0xFFE9ECF3, 0xFF333842, QPalette::Base},             // FieldHover
    {0xFFE0E3E9, 0xFF30343C, QPalette::WindowText},       // Line
    {0xFFC2C8D2, 0xFF4B515D, QPalette::WindowText},       // StrongLine
    {0xFF181B22, 0xFFE9EBEF, QPalette::WindowText},       // Text
    {0xFF565E6C, 0xFFA8AFBB, QPalette::WindowText},       // SecondText
    {0xFF808896, 0xFF757D8A, QPalette::WindowText},       // Quiet
    {0xFF2F3FA6, 0xFFA5B4FF, QPalette::WindowText},       // Accent
    {0xFF2F3FA6, 0xFF4A5CCB, QPalette::Highlight},        // AccentFill
    {0xFF26348B, 0xFF5A6CDD, QPalette::Highlight},        // AccentFillHover
    {0xFFFFFFFF, 0xFFFFFFFF, QPalette::HighlightedText},  // OnAccent
    {0xFF2F3FA6, 0xFF6F80E6, QPalette::Highlight},        // BarFill
    {0xFFEDEFFA, 0xFF2A3050, QPalette::Base},             // AccentTint
    {0xFFCDD3F5, 0xFF4A5CCB, QPalette::Highlight},        // TextSelection
    {0xFF4254C5, 0xFF8EA0FF, QPalette::Highlight},        // Treated
    {0xFFB47B2B, 0xFFDDA65A, QPalette::WindowText},       // Control
    {0xFF00007D, 0xFF00007D, QPalette::Highlight},        // SelectedRow
    {Clear, 0xFF5B6BE0, QPalette::NoRole},                // SelectedRowEdge
    {0xFFC80000, 0xFFC80000, QPalette::NoRole},           // ProblemOutline
    {Clear, 0x8CFF938A, QPalette::NoRole},                // ProblemOutlineEdge
    {0xFFFDF0EF, 0xFF3A2020, QPalette::Base},             // ProblemTint
    {0xFFA80000, 0xFFFF938A, QPalette::WindowText},       // ProblemText
    {0xFFFEF8F7, 0xFF281E20, QPalette::Base},             // ProblemCard
    {0xFFEFD3D0, 0xFF5B2A2A, QPalette::WindowText},       // ProblemCardLine
    {0xFFFAFABE, 0xFFFAFABE, QPalette::Base},             // GuidePaper
    {0xFF000064, 0xFF000064, QPalette::Text},             // GuideText
    {0xFFDADA96, 0xFFDADA96, QPalette::WindowText},       // GuideLine
    {0xFF6E6E50, 0xFF6E6E50, QPalette::Text},             // GuideQuiet
    {0xFFFFFFD2, 0xFFFFFFD2, QPalette::Base},             // DetailsRest
    {0xFF2A2A22, 0xFF2A2A22, QPalette::Text},             // DetailsRestText
    {0xFF2F3FA6, 0xFF9AA9FF, QPalette::WindowText},       // GraphLine1
    {0xFF12817F, 0xFF4FC3BE, QPalette::WindowText},       // GraphLine2
    {0xFFB26F14, 0xFFE2AC5F, QPalette::WindowText},       // GraphLine3
    {0xFFE4E7EC, 0xFF121317, QPalette::Window},           // ReportSurround
    {0xFFFFFFFF, 0xFFFFFFFF, QPalette::NoRole},           // Paper
}};

/// Which palette roles take which colours, in every state but the disabled one.
struct PaletteEntry {
    QPalette::ColorRole target;
    Role source;
};

constexpr PaletteEntry PaletteTable[] = {
    {QPalette::Window, Role::Page},
    {QPalette::WindowText, Role::Text},
    {QPalette::Base, Role::Card},
    {QPalette::AlternateBase, Role::Field},
    {QPalette::Text, Role::Text},
    {QPalette::Button, Role::Card},
    {QPalette::ButtonText, Role::Text},
    {QPalette::BrightText, Role::ProblemText},
    {QPalette::PlaceholderText, Role::Quiet},
    {QPalette::Light, Role::Card},
    {QPalette::Midlight, Role::FieldHover},
    {QPalette::Mid, Role::Line},
    {QPalette::Dark, Role::StrongLine},
    {QPalette::Shadow, Role::StrongLine},
    {QPalette::Highlight, Role::AccentFill},
    {QPalette::HighlightedText, Role::OnAccent},
    {QPalette::Link, Role::Accent},
    {QPalette::LinkVisited, Role::Accent},
    {QPalette::ToolTipBase, Role::Card},
    {QPalette::ToolTipText, Role::Text},
};

constexpr PaletteEntry DisabledTable[] = {
    {QPalette::WindowText, Role::Quiet},      {QPalette::Text, Role::Quiet},
    {QPalette::ButtonText, Role::Quiet},      {QPalette::Highlight, Role::FieldHover},
    {QPalette::HighlightedText, Role::Quiet},
};

double linearChannel(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

/// Relative luminance of a colour, 0 for black to 1 for white.
double luminance(const QColor& colour) {
    return 0.2126 * linearChannel(colour.redF()) + 0.7152 * linearChannel(colour.greenF()) +
           0.0722 * linearChannel(colour.blueF());
}

/// Contrast ratio of two colours, 1 to 21.
double contrast(const QColor& one, const QColor& other) {
    const auto [low, high] = std::minmax({luminance(one), luminance(other)});
    return (high + 0.05) / (low + 0.05);
}

/// Palettes made for contrast have nearly black beside nearly white in windows, fields and buttons alike.
/// Ordinary ones keep some grey in at least one of these.
bool isOfHighContrast(const QPalette& palette) {
    constexpr double Threshold = 20.0;
    constexpr std::array<std::pair<QPalette::ColorRole, QPalette::ColorRole>, 3> Pairs = {{
        {QPalette::Window, QPalette::WindowText},
        {QPalette::Base, QPalette::Text},
        {QPalette::Button, QPalette::ButtonText},
    }};
    return std::all_of(Pairs.begin(), Pairs.end(), [&](const auto& pair) {
        return contrast(palette.color(pair.first), palette.color(pair.second)) >= Threshold;
    });
}

bool isDarkPalette(const QPalette& palette) {
    return luminance(palette.color(QPalette::Window)) < luminance(palette.color(QPalette::WindowText));
}

Theme& themeInUse() {
    static Theme theme = Theme::fixed(false);
    return theme;
}

}  // namespace

const Theme& Theme::current() { return themeInUse(); }

void Theme::use(const Theme& theme) { themeInUse() = theme; }

QColor colour(Role role) { return Theme::current().colour(role); }

Theme Theme::fixed(bool dark) {
    Theme theme;
    theme.dark_ = dark;
    std::transform(Table.begin(), Table.end(), theme.colours_.begin(), [dark](const Values& values) {
        return QColor::fromRgba(dark ? values.dark : values.light);
    });
    return theme;
}

Theme Theme::forSystem(const QPalette& system) {
    Theme theme = fixed(isDarkPalette(system));
    theme.highContrast_ = isOfHighContrast(system);
    for (std::size_t i = 0; theme.highContrast_ && i < RoleCount; ++i) {
        const bool quiet = i == static_cast<std::size_t>(Role::Quiet);
        if (Table[i].system != QPalette::NoRole)
            theme.colours_[i] = system.color(quiet ? QPalette::Disabled : QPalette::Active, Table[i].system);
    }
    return theme;
}

QPalette Theme::palette() const {
    QPalette result;
    for (const PaletteEntry& entry : PaletteTable)
        result.setColor(entry.target, colour(entry.source));
    for (const PaletteEntry& entry : DisabledTable)
        result.setColor(QPalette::Disabled, entry.target, colour(entry.source));
    return result;
}

}  // namespace lorvane::desktop
