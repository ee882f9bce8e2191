// The book of fields: one row for every value that a study file keeps or that a person or a script may write.
// Names for scripts, arrows, dialogs, cells of the screen, decimals and places in the file are read from it,
// and here alone the numbers of files and scripts become the program's own types.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "session/field_limits.h"
#include "session/session_state.h"

namespace lorvane {

/// A value on its way into a field or out of it. A choice travels as its number.
using FieldValue = std::variant<double, bool, std::string>;

enum class FieldKind { number, whole, choice, flag, text };

/// The way to the member that holds the value; index is 0 for a field that stands alone.
struct FieldMember {
    FieldKind kind;
    FieldValue (*read)(const SessionState&, int index);
    void (*write)(SessionState&, int index, const FieldValue&);
};

/// How often a field is there, and how its name tells one from another.
enum class FieldIndex {
    none,        ///< "txtd"
    level,       ///< "txtNT(2)"
    levelDigit,  ///< "Link N2"
    group        ///< "txtGroupName(1)"
};

/// What its arrows do.
enum class ArrowRule {
    none,
    byStep,     ///< one step of its last decimal, within its limits
    twoStates,  ///< up is 1, down is 0
    byOne       ///< 1 up or down, without limits
};

/// Where the step of the arrows comes from, in units of the last decimal.
enum class StepSource { one, sizeOfLevel, costOfLevel, span, mean, sd };

/// The panel that a change by arrows may open, on which the arrows stand too.
enum class FieldPanel { none, icc, tauSq };

/// What stands beside the number of a cell, or in its place.
enum class CellForm { plain, treatedArm, controlArm, blocks, model };

/// How a cell of the screen shows the value.
struct FieldCell {
    std::string_view stem = {};     ///< "pnlNT"; empty: the field has no cell
    std::string_view column = {};   ///< key of the column that it stands in
    std::string_view heading = {};  ///< where neither the column's heading nor the field's words fit
    std::string_view brief = {};    ///< the heading in few words, with places as in the field's words
    CellForm form = CellForm::plain;
    bool isMoney = false;
    int decimals = -1;  ///< -1: those of the field; -2: those of the whole effect strip
    int blanksBefore = 0;
    int blanksBehind = 0;
    std::string_view menu = {};                        ///< band of its right click; "{}" stands for the level
    bool (*shown)(const Study&, int level) = nullptr;  ///< null: always
    bool (*hasArrows)(const Study&, int level) = nullptr;  ///< null: always
};
inline constexpr int ownDecimals = -1;
inline constexpr int stripDecimals = -2;

/// A place in a scenario's block, row and column both counting from 1: for the index i it is row + i *
/// perIndex and column + i * columnsPerIndex.
struct FilePlace {
    int row = 0;
    int column = 0;             ///< 0: the file does not keep it
    std::string_view key = {};  ///< label of the row, for the reader of the raw table
    int rowsPerIndex = 0;
    int columnsPerIndex = 0;
    int firstIndex = 0;                             ///< the file keeps none below it
    bool (*isKept)(const SessionState&) = nullptr;  ///< null: always; otherwise an empty cell is the default
};

/// One row of the book.
struct Field {
    std::string_view stem;  ///< its name, or what its names begin with
    FieldMember member;
    FieldIndex index = FieldIndex::none;
    FieldLimits limits = {};                 ///< what a dialog accepts
    std::span<const double> choices = {};    ///< the only values that it takes; empty: any
    bool bindsFiles = false;                 ///< a file's number must be above 0, like a person's
    bool isPercent = false;                  ///< the file keeps a proportion as a whole percentage
    bool isDesignChoice = false;             ///< applied before other fields, by an operation of its own
    bool isDisplay = false;                  ///< it changes what is displayed alone: no step of undo
    bool isWritable = true;                  ///< by a person or a script
    int FieldDecimals::*decimals = nullptr;  ///< decimals shown, where the user can choose them
    FilePlace decimalsPlace = {};
    std::string_view decimalsWord = {};  ///< the field in the commands that choose its decimals
    ArrowRule arrows = ArrowRule::none;
    std::string_view spin = {};  ///< stem of its arrows, "spnNT"
    StepSource step = StepSource::one;
    bool snaps = false;          ///< the arrows go on to a multiple of the step
    std::string_view twin = {};  ///< the other arm's field, which a linked change is copied to
    bool (*isLinked)(const Study&, int level) = nullptr;
    FieldPanel panel = FieldPanel::none;
    std::string_view words = {};  ///< what it is, see fieldWords
    std::string_view sense = {};  ///< what it means, for the dialog that asks for it
    std::string_view unit = {};   ///< behind the number there
    FieldCell cell = {};
    FilePlace place = {};
};

/// All rows.
std::span<const Field> fieldBook();

/// One value: a row at an index.
struct FieldRef {
    const Field* field = nullptr;
    int index = 0;

    const Field* operator->() const { return field; }
    std::string name() const;
};

/// First and last index of a row; both 0 for a field that stands alone.
struct IndexRange {
    int first;
    int last;
};
IndexRange indicesOf(const Field& field);

/// Calls action(FieldRef) for every value of the book.
template <typename Action>
void forEachField(Action action) {
    for (const Field& field : fieldBook()) {
        for (int i = indicesOf(field).first; i <= indicesOf(field).last; ++i)
            action(FieldRef{&field, i});
    }
}

/// The field of a name ("txtNT(2)", "ICC Metric"); nothing when there is none.
std::optional<FieldRef> findField(std::string_view name);

/// The row of a stem ("txtNT"); it must be in the book.
const Field& fieldOf(std::string_view stem);

/// The known name of a writable field nearest to a wrong one.
std::string nearestField(std::string_view name);

/// The arrows of a name such as "spnNT(2)" or "frmDisplayICC.spnIcc(3)"; nothing when there are none.
std::optional<FieldRef> findArrows(std::string_view control);

FieldValue readField(const SessionState& state, FieldRef field);
double readNumberField(const SessionState& state, FieldRef field);
void writeField(SessionState& state, FieldRef field, const FieldValue& value);

/// Writes a number as a dialog or an arrow does: with the other arm, where the two are linked.
void enterField(SessionState& state, FieldRef field, double value);

/// Decimals shown; 0 where the user cannot choose them.
int decimalsOf(const Study& study, const Field& field);

/// The step of its arrows in units of the last decimal.
int stepOf(const StudySettings& settings, FieldRef field);

/// The limits of a field as the study stands: a span of risks ends at 1, a span of means at 1000000.
FieldLimits limitsOf(const Study& study, const Field& field);

/// Where a new value comes from: a dialog holds its limits, a file may hold what no dialog offers.
enum class ValueSource { dialog, file };

/// Why a value cannot stand in a field, as a sentence that names the field; empty when it can.
std::string refusal(const Study& study, FieldRef field, const FieldValue& value, ValueSource source);

/// Whether two states hold the same values, scenarios included; what is only displayed does not count.
bool sameValues(const SessionState& a, const SessionState& b);

}  // namespace lorvane
