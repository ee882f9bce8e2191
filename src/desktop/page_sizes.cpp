// The stages in which the page gives way, and what becomes of free height.
#include "desktop/page_sizes.h"

#include <algorithm>
#include <array>

namespace lorvane::desktop {

namespace {

// From this height of the middle on, a study of 2, 3 or 4 levels has the usual sizes.
constexpr std::array<int, 3> usualFrom = {511, 597, 653};
constexpr std::array<int, 3> usualRow = {86, 86, 78};

constexpr int fewestLevels = 2;
constexpr int smallestUpper = 120;  // for strip and table where both scroll

// How far rows and cards grow, in turn: the cards, the rows, the cards, and both.
constexpr int plainCards = 200;
constexpr int roomyRow = 92;
constexpr int tallCards = 282;
constexpr int highestRow = 122;
constexpr int highestCards = 480;

// What is not told here is the same in every stage but the usual one.
struct Stage {
    bool sense;
    int cards, row, field;
};

// In the order in which the page gives way: the second line, the third line of a problem, the rows.
constexpr Stage stages[] = {
    {true, 88, 66, 26}, {false, 88, 66, 26}, {false, 80, 66, 26}, {false, 80, 58, 24}};

constexpr int titleAlone = 21;
constexpr int titleAndSense = 37;

int othersThanRows(const PageSizes& s) {
    return s.top + s.title + s.gap + s.strip + s.gap + s.head + s.gap + s.cards + s.bottom;
}

PageSizes usualSizes(const PageRoom& room) {
    PageSizes s;
    s.top = s.bottom = 18;
    s.gap = 14;
    s.title = 44;
    s.strip = 78;
    s.field = 28;
    s.pairGap = 4;
    s.head = 38;
    s.row = usualRow[static_cast<std::size_t>(room.levels - fewestLevels)];
    s.cards = 96;
    return s;
}

PageSizes compactSizes(const PageRoom& room, const Stage& stage) {
    PageSizes s;
    s.compact = true;
    s.sense = stage.sense;
    s.top = s.gap = room.narrow ? 8 : 10;
    s.bottom = room.narrow ? 9 : 13;
    s.title = stage.sense ? titleAndSense : titleAlone;
    s.strip = 69;
    s.field = stage.field;
    s.pairGap = 2;
    s.head = 34;
    s.row = stage.row;
    s.cards = stage.cards;
    return s;
}

int heightOf(const PageSizes& s, const PageRoom& room) {
    return othersThanRows(s) + room.levels * s.row + room.scrollBar;
}

PageSizes smallestSizes(const PageRoom& room) {
    if (!room.narrow && room.height >= usualFrom[static_cast<std::size_t>(room.levels - fewestLevels)])
        return usualSizes(room);
    PageSizes sizes;
    for (const Stage& stage : stages) {
        sizes = compactSizes(room, stage);
        if (heightOf(sizes, room) <= room.height)
            break;
    }
    return sizes;
}

// Gives a share of what is free, in whole pixels for each of several parts.
void grow(int& size, int largest, int parts, int share, int& free) {
    const int more = std::clamp(largest - size, 0, std::max(share, 0) / parts);
    size += more;
    free -= more * parts;
}

void shareFree(PageSizes& s, int levels, int free) {
    grow(s.cards, plainCards, 1, free, free);
    grow(s.row, roomyRow, levels, free, free);
    grow(s.cards, tallCards, 1, free, free);
    grow(s.row, highestRow, levels, free / 2, free);
    grow(s.cards, highestCards, 1, free, free);
    grow(s.row, highestRow, levels, free, free);
}

}  // namespace

PageSizes pageSizes(const PageRoom& room) {
    PageSizes s = smallestSizes(room);
    shareFree(s, room.levels, room.height - heightOf(s, room));
    s.table = s.head + room.levels * s.row + room.scrollBar;
    const int wanted = s.strip + s.gap + s.table;
    const int left = room.height - (s.top + s.title + 2 * s.gap + s.cards + s.bottom);
    s.upper = std::clamp(left, std::min(smallestUpper, wanted), wanted);
    return s;
}

int smallestPage() {
    const PageSizes s = compactSizes({}, stages[std::size(stages) - 1]);
    return s.top + s.title + 2 * s.gap + smallestUpper + s.cards + s.bottom;
}

}  // namespace lorvane::desktop
