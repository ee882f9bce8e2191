// How the width of the table of levels is shared by its columns. Knows numbers only, all at 100 %.
#pragma once

namespace lorvane::desktop {

/// The columns that a study shows, and how wide its words are.
struct TableShape {
    bool span = false;    ///< a span in the place of the ICC, which takes more digits
    bool effect = false;  ///< the column of the dispersion of the effect
    int name = 0;         ///< the longest name of a level
    int arm = 0;          ///< the longest name of a group, with its dot
};

/// Where a column begins and how wide its fields are.
struct ColumnPlace {
    int left = 0;
    int width = 0;
    bool shown = true;
    bool operator==(const ColumnPlace&) const = default;
};

/// The places in a table of a width. Where the columns do not all fit, those behind the names scroll, and
/// what is told of them is their place while nothing is scrolled.
struct TableColumns {
    bool narrow = false;    ///< narrow fields, and only dots beside the costs
    bool sideways = false;  ///< more columns than fit
    int name = 0;           ///< where names begin
    int nameWidth = 0;
    int fields = 0;                ///< where the part begins that scrolls; a line stands before it
    int armGap = 0;                ///< between a field and the name of its group
    int unitArm = 0, costArm = 0;  ///< width for the name of a group
    int rightMargin = 0;           ///< between the lines of the rows and the edge
    ColumnPlace units, dispersion, effect, model, covariates, rsq, costs;
    bool operator==(const TableColumns&) const = default;
};

/// One of the columns.
using ColumnOf = ColumnPlace TableColumns::*;

/// The places in a table that is so wide.
TableColumns tableColumns(const TableShape& shape, int width);

/// The columns as they stand within the part that scrolls, which is so wide. Those that are not whole in
/// sight stand beyond one of its edges.
TableColumns scrolledColumns(const TableColumns& table, int shift, int room);

/// A column is scrolled to the begin of the room by a shift. The one nearest to a position, and the one that
/// brings a column in sight and moves the others least.
int nearestShift(const TableColumns& table, int position, int room);
int shiftToShow(const TableColumns& table, ColumnOf column, int shift, int room);

/// The shift that shows the last column; 0 where all fit.
int lastShift(const TableColumns& table, int room);

/// The least width of a table with its wide and with its narrow columns.
int wideTable(const TableShape& shape);
int narrowTable(const TableShape& shape);

}  // namespace lorvane::desktop
