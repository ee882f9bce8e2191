// The parameters that a graph can vary: which fields they are, what they are called, and how far they go.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/study.h"
#include "session/field_limits.h"

namespace lorvane {

/// Rows of the tables of ranges and of series values; row 0 is not used.
inline constexpr int graphRows = 40;

/// The most lines of a series.
inline constexpr int mostLines = 5;

enum class GraphFields { NT, NB, ICC, MRange, TauSq, DRange, Omega, Rsq, d, Prev, OR, RR, RD, P2, Alpha };

enum class SeriesOrder { ascending, descending };

/// One row of the table of variables: a field, or a field of every level.
struct GraphVariableRow {
    GraphFields field;
    std::string_view stem;            ///< "txtICC"
    std::string_view key;             ///< of its commands after "X " or "L ", without the number of the level
    int row;                          ///< its own in the tables, or that of level 1
    double Study::*value;             ///< null for a field of every level
    PerLevel<double> Study::*values;  ///< null for a field that stands alone
    int lowestLevel;                  ///< that has a command
    int decimals;                     ///< of the numbers in the dialogs
    FieldLimits axisLimits;           ///< of a range by hand; not read where the study sets it
    bool rangeIsOfStudy;              ///< the valid range of the study limits a range by hand
    FieldLimits lineLimits;           ///< of the values of a series
    SeriesOrder order;
    std::string_view titleX;  ///< with words in braces, see GetTitleX
    std::string_view titleL;

    bool isCount() const { return field == GraphFields::NT || field == GraphFields::NB; }
};

/// All rows, 39 variables together.
std::span<const GraphVariableRow> graphVariables();

/// A variable of a graph: a row at a level, or none.
struct GraphVariable {
    const GraphVariableRow* row = nullptr;
    int level = 0;  ///< 0 for a field that stands alone

    bool operator==(const GraphVariable&) const = default;

    explicit operator bool() const { return row != nullptr; }
    const GraphVariableRow* operator->() const { return row; }
    bool is(GraphFields field) const { return row != nullptr && row->field == field; }

    /// "txtICC(2)"; "txtNone" for none.
    std::string name() const;

    /// Its row in the tables of ranges and series; 0 for none.
    int number() const { return row == nullptr ? 0 : row->row + (level == 0 ? 0 : level - 1); }

    /// Its value in a study. Needs a variable.
    double& in(Study& study) const {
        return level == 0 ? study.*(row->value) : (study.*(row->values))(level);
    }
    double in(const Study& study) const {
        return level == 0 ? study.*(row->value) : (study.*(row->values))(level);
    }

    /// Whether a study has it and is entered in it: the number of a level in blocks or in arms, ICC or span,
    /// one form of the dispersion of the effect, one of the effect itself.
    bool isOnOffer(const Study& study) const;
};

/// The variable of a field at a level.
GraphVariable graphVariable(GraphFields field, int level = 0);

/// The number of units of a level, as the design counts them: in blocks or in an arm.
GraphVariable numberOfUnits(const Study& study, int level);

/// The number of units at the top, which is varied until another variable is chosen.
GraphVariable numberAtTop(const Study& study);

/// A command of the menus of variables and what it binds: the number of a level is one command.
struct GraphKey {
    std::string key;  ///< "Number of Level 2"
    GraphVariable variable;

    /// The variable as the design counts it.
    GraphVariable bound(const Study& study) const;

    /// Whether the variable is this one, counted either way.
    bool holds(const GraphVariable& other) const;
};

/// All commands, in the order of the menus.
const std::vector<GraphKey>& graphKeys();

/// Names a variable on the axis and in the table, and in the legend. Empty where the study has no words for
/// it.
std::string GetTitleX(const Study& study, const GraphVariable& variable);
std::string GetTitleL(const Study& study, const GraphVariable& variable);

/// What stands behind the title of a number: " per condition", " (blocked)"; empty for the others.
std::string_view countSuffix(const GraphVariable& variable);

}  // namespace lorvane
