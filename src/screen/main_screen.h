// Display model of the study screen: the table of levels, the effect strip, power and cost, headings, and the
// outlines around cells at fault; and the two problem windows.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "engine/per_level.h"
#include "platform/control_registry.h"
#include "platform/controls.h"
#include "session/field_book.h"

namespace lorvane {

/// What a cell of a value is at the moment.
enum class CellState {
    changeable,
    linked,  ///< the other arm's value stands for it
    fixed
};

/// A cell of the table or of the effect strip. The caption is the whole text; number and arm are its parts,
/// for views that set them apart.
struct Cell : Panel {
    std::string number;
    std::string arm;
    std::string heading;      ///< over a cell of the strip
    std::string brief;        ///< the same in few words
    std::string words;        ///< what the value is, for people who hear the screen
    std::string rest;         ///< why its arrows rest; empty where they do not
    bool spinVisible = true;  ///< the cell has arrows
    CellState state = CellState::changeable;
};

/// The cells of one field of the book: one, or one a level.
struct FieldCells {
    const Field* field;
    std::array<Cell, highestLevel + 1> cells;  ///< by the index of the field, 0 for one that stands alone

    Cell& operator()(int index) { return cells[static_cast<std::size_t>(index)]; }
    const Cell& operator()(int index) const { return cells[static_cast<std::size_t>(index)]; }
};

/// How power or cost are shown at the moment.
enum class FigureState {
    digits,
    bar,
    request  ///< other data are asked for
};

/// Power or cost in large figures: the caption is "Power = 0.7726" or a request.
struct Figure : Panel {
    std::string name;             ///< "Power"
    std::string number;           ///< "0.7726"
    std::string low = "0", high;  ///< the ends of its bar
    std::string barNumber;        ///< "77.3%", above the bar
    FigureState state = FigureState::digits;

    /// What stands before the number: "Power = ".
    std::string words() const { return name + " = "; }
};

/// A coloured outline around the rectangle between two controls, and all panels that it goes around.
struct Outline {
    bool Visible = false;
    Colour colour;
    std::string from;
    std::string to;
    std::vector<std::string> around;  ///< those that were shown when it was drawn
};

/// A column of the table: its key for help and menus, its heading, and whether it is shown.
struct Column {
    std::string key;
    Panel heading;
};

/// The columns from left to right.
enum class ColumnId {
    blocked,
    levels,
    units,
    replicates,
    icc,
    mSpan,
    tauSq,
    dSpan,
    omega,
    model,
    rsq,
    cost,
    es
};
inline constexpr std::size_t columnCount = 13;

/// A head over the table of levels. It stands for the column that the study shows in its place.
struct Head : Panel {
    std::string column;  ///< key of the column, "colICC"
    std::string menu;    ///< band of its right click; empty without one
};

/// The heads from left to right. Covariates and R-sq share a column.
enum class HeadId { level, units, dispersion, effect, model, covariates, rsq, cost };
inline constexpr std::size_t headCount = 8;

/// What a level is to the randomization.
enum class LevelRole { nested, randomized, blocked };

struct MainScreen {
    Panel pnlTitle;       ///< the design in words
    Panel pnlSense;       ///< levels and randomization in one sentence
    Figure pnlPower;      ///< power as digits, or a request for other data
    Panel pnlPowerOuter;  ///< frame of the power bar
    Panel pnlPowerBar;
    Panel pnlPowerReason;  ///< why there is no power, in one sentence
    Panel pnlPowerTip;     ///< the same in full
    Panel pnlPowerNote;    ///< whether the required power is reached, or when there will be one again
    bool powerIsReached = false;
    Panel pnlPowerTick;  ///< the required power on the bar: its text, and its place as the flood
    Figure pnlCost;
    Panel pnlCostOuter;
    Panel pnlCostBar;
    Panel pnlCostNote;  ///< units in the whole study
    Panel pnlMaxCost;   ///< the top of the cost bar as it was set
    Panel pnlCostTop;   ///< how far the cost fills the bar up to the top that is shown

    Panel pnldW, pnldT;          ///< the other form of d
    Panel lblOther, pnlOther;    ///< the one of the two that is shown: its heading, "d (total)", and its text
    Panel lblD, lblPrev, lblP2;  ///< headings of the strip that follow the study
    Panel lblAlpha{"Alpha and tails"};
    Panel pnlAlphaTails;
    std::string alphaBrief;        ///< the same in few words
    Panel pnlAI;                   ///< diagnostic: the tau-squared values of a blocked study of means
    Panel SSPanel10;               ///< metric that a binary effect implies
    Panel lblDerived, pnlDerived;  ///< its two parts: what it is, and the number
    Panel pnlStatus;               ///< what was done or failed last; empty otherwise

    Panel pnlNoticeTitle{"", false};  ///< the card that tells why a file could not be opened
    Panel pnlNotice{"", false};
    Button cmdNotice{"Close"};

    PerLevel<Panel> BpnlLevel;  ///< the row as a whole
    PerLevel<Panel> pnlName;
    PerLevel<Panel> pnlLevel;  ///< role of the level in brackets, "(Nested)"
    PerLevel<LevelRole> roles;

    std::vector<FieldCells> fields;  ///< the cells of all fields that have one, in the order of the book
    std::array<Column, columnCount> columns;
    std::array<Head, headCount> heads;
    IndexedArray<Outline, 1, 7> outlines;

    MainScreen();

    /// Back to a screen that has shown no study yet. The cells stay where their names point to.
    void reset();

    Column& column(ColumnId id) { return columns[static_cast<std::size_t>(id)]; }
    const Column& column(ColumnId id) const { return columns[static_cast<std::size_t>(id)]; }

    Head& head(HeadId id) { return heads[static_cast<std::size_t>(id)]; }
    const Head& head(HeadId id) const { return heads[static_cast<std::size_t>(id)]; }

    /// Makes a head stand for a column, with its heading on one line.
    void standFor(HeadId head, ColumnId column);

    /// A cell by the stem of its panel, "pnlNT", and the level; 0 for a cell of the strip. It must exist.
    const Cell& cell(std::string_view stem, int level = 0) const;

    /// Draws outline number around what is shown of the rectangle between two controls; where nothing is,
    /// the outline goes.
    void OutlineProblem(int number, const Colour& colour, std::string from, std::string to);

    /// Enters every display model under its name.
    void registerNames(ControlRegistry& registry) const;
};

/// "Randomized", "Nested", "Blocked".
const char* roleWord(LevelRole role);

/// The window that tells why a study gives no power.
struct ProblemWindow {
    Panel pnlErrTitle;
    Panel pnlErr;
};

/// The window that tells why an effect is not admissible.
struct EffectProblemWindow {
    Panel pnlErrESTitle;
    Panel pnlErrES;
};

}  // namespace lorvane
