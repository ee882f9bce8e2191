// Display model of the study screen: the table of levels, the effect strip, power and cost, headings, and the
// outlines around cells at fault; and the two problem windows.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "engine/per_level.h"
#include "platform/control_registry.h"
#include "platform/controls.h"

namespace lorvane {

/// A cell of the table or of the effect strip. The caption is the whole text; number and arm are its parts,
/// for views that set them apart.
struct Cell : Panel {
    std::string number;
    std::string arm;
    bool spinVisible = true;  ///< the cell has arrows
};

/// A coloured outline around the rectangle between two controls.
struct Outline {
    bool Visible = false;
    Colour colour;
    std::string from;
    std::string to;
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

struct MainScreen {
    Panel pnlTitle;       ///< the design in words
    Panel pnlSense;       ///< levels and randomization in one sentence
    Cell pnlPower;        ///< power as digits, or a request for other data
    Panel pnlPowerOuter;  ///< frame of the power bar
    Panel pnlPowerBar;
    Panel pnlPowerNote;  ///< whether the required power is reached
    bool powerIsReached = false;
    Panel pnlPowerTick;  ///< the required power on the bar: its text, and its place as the flood
    Cell pnlCost;
    Panel pnlCostOuter;
    Panel pnlCostBar;
    Panel pnlCostNote;  ///< units in the whole study
    Panel pnlMaxCost;   ///< the top of the cost bar

    Cell pnlD, pnlMean, pnlSD, pnlPrev, pnlP2, pnlOR, pnlRR, pnlRD;
    Panel pnldW, pnldT;          ///< the other form of d
    Panel lblD, lblPrev, lblP2;  ///< headings of the strip that follow the study
    Panel pnlAlphaTails;
    Panel pnlAI;      ///< diagnostic: the tau-squared values of a blocked study of means
    Panel SSPanel10;  ///< metric that a binary effect implies
    Panel pnlStatus;  ///< why the last file could not be opened or saved; empty otherwise

    PerLevel<Panel> BpnlLevel;  ///< the row as a whole
    PerLevel<Panel> pnlName;
    PerLevel<Panel> pnlLevel;  ///< role of the level
    PerLevel<Cell> pnlNT, pnlNC, pnlNB;
    PerLevel<Cell> pnlPop;
    PerLevel<Cell> pnlICC, pnlMRange;
    PerLevel<Cell> pnlTauSq, pnlDRange, pnlOmega;
    PerLevel<Cell> pnlModel;
    PerLevel<Cell> pnlQ, pnlRsq;
    PerLevel<Cell> pnlCostT, pnlCostC, pnlCostB;

    std::array<Column, columnCount> columns;
    IndexedArray<Outline, 1, 7> outlines;

    MainScreen();

    Column& column(ColumnId id) { return columns[static_cast<std::size_t>(id)]; }
    const Column& column(ColumnId id) const { return columns[static_cast<std::size_t>(id)]; }

    /// Draws outline number around the rectangle between two controls.
    void OutlineProblem(int number, const Colour& colour, std::string from, std::string to);

    /// Enters every display model under its name.
    void registerNames(ControlRegistry& registry) const;
};

/// Cells of the effect strip and of a level by the names of their panel, their arrows and their field.
struct StripCellName {
    std::string_view panel;
    std::string_view spin;
    std::string_view field;
    std::string_view popup;  ///< band that a right click opens
    Cell MainScreen::*cell;
};
struct LevelCellName {
    std::string_view panel;
    std::string_view spin;
    std::string_view field;
    std::string_view popup;  ///< band that a right click opens; "{}" stands for the level
    PerLevel<Cell> MainScreen::*cells;
};
extern const std::array<StripCellName, 8> stripCells;
extern const std::array<LevelCellName, 15> levelCells;

/// Sets digits or graph for the power and for the cost (values of DisplayModes).
void DisplayPowerMode(MainScreen& screen, int Powermode);
void DisplayCostMode(MainScreen& screen, int Costmode);

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
