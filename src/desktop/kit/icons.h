// The program's line drawings. Knows their names and colours, not where they are used.
#pragma once

class QColor;
class QIcon;
class QPainter;
class QRectF;

namespace lorvane::desktop {

/// The drawings, one file each.
enum class Icon {
    AddScenario,
    ArrowDown,
    ArrowUp,
    Block,
    Book,
    Check,
    ChevronDown,
    ChevronLeft,
    ChevronRight,
    ChevronUp,
    Close,
    Coin,
    Copy,
    Corner,
    CostBar,
    CostDigits,
    Details,
    Edit,
    Export,
    Film,
    First,
    Fit,
    Float,
    Font,
    Gear,
    Graph,
    Guide,
    Last,
    Legend,
    Link,
    MaxCost,
    Mdes,
    More,
    MoreMenus,
    Nest,
    New,
    Note,
    Open,
    Optimal,
    Plus,
    PowerBar,
    PowerDigits,
    Print,
    Redo,
    Report,
    Restore,
    Save,
    Scenarios,
    Sections,
    Series,
    Shuffle,
    Table,
    Target,
    Trash,
    Undo,
    Warning,
    Width,
    XAxis,
};

/// Number of drawings; Icon values run from 0.
inline constexpr int IconCount = static_cast<int>(Icon::XAxis) + 1;

/// A drawing as an icon that takes the colours of the theme in use each time it is drawn: second text at
/// rest, accent when checked, quiet when disabled. In a size that is wider than high, such as 26 x 20 beside
/// a word, the drawing stands at the left.
QIcon icon(Icon name);

/// Paints a drawing in one colour into the largest square at the left of an area.
void drawIcon(QPainter& painter, Icon name, const QRectF& area, const QColor& colour);

}  // namespace lorvane::desktop
