// The sizes and weights of text by what the text is. Knows the interface font, no widget and no colour.
#pragma once

#include <QFont>
#include <QString>

namespace lorvane::desktop {

/// What a text is; the number is its size in pixels at 100 %.
enum class TextStyle {
    Mark,           ///< 11, marks on axes and bars
    Caption,        ///< 12
    CaptionStrong,  ///< 12, medium: column heads, the role of the randomized level, values in a plot
    Body,           ///< 13
    BodyMedium,     ///< 13, medium: row names of a plot, sentences that carry a panel
    BodyStrong,     ///< 13, semibold
    Value,          ///< 13.5
    PanelHeading,   ///< 14, semibold
    LevelName,      ///< 15, semibold
    Effect,         ///< 17, semibold: the effect size
    Entry,          ///< 17, medium: the one field of a small dialog
    CompactTitle,   ///< 17, semibold
    Heading,        ///< 18, semibold
    Title,          ///< 20, semibold
    ResultWords,    ///< 24, light where the family has a light cut
    Result,         ///< 24, semibold
    Message,        ///< 26, medium
    FigureWords,    ///< 40, light where the family has a light cut
    Figure,         ///< 40, semibold
};

/// The font of a text style in the interface family. It has no hinting, so that widths are not rounded to
/// whole pixels.
QFont textFont(TextStyle style);

/// Puts the system's interface family before the program's own list of families. A name of no installed
/// family leaves the list alone. Fonts made before stay as they are.
void setInterfaceFamily(const QString& family);

}  // namespace lorvane::desktop
