// The two sets of widths, and how spare width is shared.
#include "desktop/table_columns.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace lorvane::desktop {

namespace {

constexpr int nameLeft = 62;   // behind the rail
constexpr int nameMargin = 8;  // at least between a name and the column behind it
constexpr int armGap = 9;
constexpr int lineWidth = 1;
constexpr int inset = 8;  // of the first column in the part that scrolls
constexpr int dot = 8;    // beside a field whose arm has no word

// Widths of the fields, of the column of names and of the gaps; what stands beside units and costs.
struct Widths {
    int name, units, icc, span, effect, model, covariates, rsq, costs;
    int gap, pairGap;
    int beforeCosts;  // more than a gap
    int unitArm, costArm, rightMargin;
};

constexpr Widths wide{115, 94, 82, 98, 98, 98, 78, 82, 110, 18, 14, 4, 68, 62, 15};
constexpr Widths narrow{92, 82, 82, 86, 86, 88, 78, 82, 98, 12, 10, -2, 65, dot, 15};
constexpr int sidewaysMargin = 11;

int dispersionWidth(const Widths& w, const TableShape& shape) { return shape.span ? w.span : w.icc; }

// The columns behind the names, with all that belongs to them.
int behindNames(const Widths& w, const TableShape& shape) {
    const int effect = shape.effect ? w.effect + w.gap : 0;
    return w.units + armGap + w.unitArm + w.gap + dispersionWidth(w, shape) + w.gap + effect + w.model +
           w.gap + w.covariates + w.pairGap + w.rsq + w.gap + w.beforeCosts + w.costs + armGap + w.costArm +
           w.rightMargin;
}

int leastWidth(const Widths& w, const TableShape& shape) { return nameLeft + w.name + behindNames(w, shape); }

// Spare width first lengthens the words that would be cut: names, then groups at the units and at the costs.
void lengthenWords(Widths& w, const TableShape& shape, bool costWords, int& spare) {
    const auto lengthen = [&spare](int& width, int wanted) {
        const int more = std::clamp(wanted - width, 0, spare);
        width += more;
        spare -= more;
    };
    lengthen(w.name, shape.name + nameMargin);
    lengthen(w.unitArm, shape.arm);
    if (costWords)
        lengthen(w.costArm, shape.arm);
}

// The columns from the units on, one behind the other. A part is what each gap gets of the spare width.
void place(TableColumns& t, const Widths& w, const TableShape& shape, double left, double part) {
    const auto next = [&left](ColumnPlace& column, int width, double behind) {
        column.left = static_cast<int>(std::lround(left));
        column.width = width;
        left += width + behind;
    };
    const double gap = w.gap + part;
    next(t.units, w.units, armGap + w.unitArm + gap);
    next(t.dispersion, dispersionWidth(w, shape), gap);
    t.effect.shown = shape.effect;
    if (shape.effect)
        next(t.effect, w.effect, gap);
    next(t.model, w.model, gap);
    next(t.covariates, w.covariates, w.pairGap);
    next(t.rsq, w.rsq, gap + w.beforeCosts);
    next(t.costs, w.costs, 0);
}

TableColumns described(const Widths& w, bool isNarrow) {
    TableColumns t;
    t.narrow = isNarrow;
    t.name = nameLeft;
    t.armGap = armGap;
    t.unitArm = w.unitArm;
    t.costArm = w.costArm;
    t.rightMargin = w.rightMargin;
    return t;
}

constexpr std::array<ColumnOf, 7> allColumns = {
    &TableColumns::units,      &TableColumns::dispersion, &TableColumns::effect, &TableColumns::model,
    &TableColumns::covariates, &TableColumns::rsq,        &TableColumns::costs};

int shiftTo(const TableColumns& t, ColumnOf column) { return (t.*column).left - t.units.left; }

// Where a column ends with the words that belong to it, while nothing is scrolled.
int endOf(const TableColumns& t, ColumnOf column) {
    const int end = (t.*column).left + (t.*column).width - t.fields;
    if (column == &TableColumns::units)
        return end + t.armGap + t.unitArm;
    return column == &TableColumns::costs ? end + t.armGap + t.costArm : end;
}

bool isWhole(const TableColumns& t, ColumnOf column, int shift, int room) {
    return shiftTo(t, column) >= shift && endOf(t, column) - shift <= room;
}

// The best of all shifts that bring a column to the begin.
template <typename Cost>
int bestShift(const TableColumns& t, int room, Cost cost) {
    const int last = lastShift(t, room);
    int best = 0;
    for (const ColumnOf column : allColumns) {
        const int shift = shiftTo(t, column);
        if ((t.*column).shown && shift <= last && cost(shift) < cost(best))
            best = shift;
    }
    return best;
}

}  // namespace

// Spare width is shared 5 to 2 by the name and each of the columns between it and the costs.
TableColumns tableColumns(const TableShape& shape, int width) {
    const bool isNarrow = width < wideTable(shape);
    Widths w = isNarrow ? narrow : wide;
    int spare = width - leastWidth(w, shape);
    if (spare < 0) {
        w.rightMargin = sidewaysMargin;
        TableColumns t = described(w, isNarrow);
        t.sideways = true;
        t.nameWidth = w.name - nameMargin;
        t.fields = nameLeft + w.name + lineWidth;
        place(t, w, shape, t.fields + inset, 0);
        return t;
    }
    lengthenWords(w, shape, !isNarrow, spare);
    const int columns = shape.effect ? 5 : 4;
    const double part = static_cast<double>(spare) / (5 + 2 * columns);
    TableColumns t = described(w, isNarrow);
    const double left = nameLeft + w.name + 5 * part;
    t.nameWidth = static_cast<int>(left) - nameLeft - nameMargin;
    place(t, w, shape, left, 2 * part);
    t.fields = t.units.left - inset;
    return t;
}

TableColumns scrolledColumns(const TableColumns& table, int shift, int room) {
    TableColumns t = table;
    for (const ColumnOf column : allColumns) {
        const bool isBehind = shiftTo(table, column) > shift && !isWhole(table, column, shift, room);
        (t.*column).left += (isBehind ? room : 0) - table.fields - shift;
    }
    return t;
}

int nearestShift(const TableColumns& table, int position, int room) {
    return bestShift(table, room, [&](int shift) { return std::abs(shift - position); });
}

int shiftToShow(const TableColumns& table, ColumnOf column, int shift, int room) {
    constexpr int never = 100000;
    return bestShift(table, room, [&](int other) {
        return isWhole(table, column, other, room) ? std::abs(other - shift) : never;
    });
}

int lastShift(const TableColumns& table, int room) {
    for (const ColumnOf column : allColumns) {
        if ((table.*column).shown && isWhole(table, &TableColumns::costs, shiftTo(table, column), room))
            return shiftTo(table, column);
    }
    return shiftTo(table, &TableColumns::costs);
}

int wideTable(const TableShape& shape) { return leastWidth(wide, shape); }

int narrowTable(const TableShape& shape) { return leastWidth(narrow, shape); }

}  // namespace lorvane::desktop
