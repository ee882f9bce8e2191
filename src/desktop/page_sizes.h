// How the height of the main window is shared. Knows numbers only, all at 100 %; no widget and no study.
#pragma once

namespace lorvane::desktop {

/// The height of the bar below the rows of the table where its columns scroll.
inline constexpr int tableBarHeight = 14;

/// What there is to share.
struct PageRoom {
    int height = 0;       ///< of the middle, between tool bar and status line
    int levels = 3;       ///< of the study, 2 to 4
    bool narrow = false;  ///< the columns are narrow, so that the rest is small too
    int scrollBar = 0;    ///< height of a bar below the rows; 0 without one
};

/// Who gets how much. All but strip and table is always in sight.
struct PageSizes {
    bool compact = false;  ///< smaller title and fields
    bool sense = true;     ///< the line below the title is shown
    int top = 0, bottom = 0, gap = 0;
    int title = 0;               ///< title and the line below it
    int strip = 0;               ///< the card of the effect
    int field = 0, pairGap = 0;  ///< a field, and the space between the two of a pair
    int head = 0, row = 0;       ///< of the table
    int table = 0;               ///< head, rows and scroll bar
    int upper = 0;               ///< for strip, gap and table; they scroll where it is less than they take
    int cards = 0;               ///< power and cost
    bool operator==(const PageSizes&) const = default;
};

/// The sizes for a room. What is free above the smallest sizes goes to the cards, then to the rows, then to
/// both.
PageSizes pageSizes(const PageRoom& room);

/// The least height of the middle in which strip and table are still of use.
int smallestPage();

}  // namespace lorvane::desktop
