// Every value of a study that a person or a script may write, by name, with the limits that a dialog holds.
#pragma once

#include <limits>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "engine/study.h"
#include "screen/session_settings.h"

namespace lorvane {

/// A range of numbers; the default is all numbers.
struct FieldLimits {
    double low = -std::numeric_limits<double>::infinity();
    bool lowInclusive = true;
    double high = std::numeric_limits<double>::infinity();
    bool highInclusive = true;

    bool holds(double value) const;
    /// "from 0 to below 1", for messages.
    std::string words() const;
};

/// Where a field's value lives.
using FieldTarget = std::variant<double*, int*, bool*, std::string*>;
/// A value on its way into a field.
using FieldValue = std::variant<double, bool, std::string>;

struct StudyField {
    std::string name;
    FieldTarget target;
    FieldLimits limits;           ///< what a dialog accepts
    std::vector<double> choices;  ///< the only values that the field takes; empty: any number
    int* FmtDecDigits = nullptr;  ///< decimals shown, where the user can choose them
    bool isDesignChoice = false;  ///< applied before other fields, by an operation of its own
    bool isStrict = false;        ///< its limits bind values from outside the dialogs too
};

/// All fields of one study and its settings. The study must outlive it.
class StudyFields {
public:
    StudyFields(Study& study, SessionSettings& settings);

    /// The field of a name ("txtNT(2)", "ICC Metric"); null when there is none.
    const StudyField* find(std::string_view name) const;

    const std::vector<StudyField>& all() const noexcept { return fields_; }

    /// The known name nearest to a wrong one.
    std::string nearest(std::string_view name) const;

    /// The limits of a field as the study stands: a span of risks ends at 1, a span of means at 1000000.
    FieldLimits limitsOf(const StudyField& field) const;

private:
    void addChoices(Study& study);
    void addEffect(Study& study);
    void addLevels(Study& study);
    void addSettings(Study& study, SessionSettings& settings);
    StudyField& add(std::string name, FieldTarget target, FieldLimits limits = {});
    StudyField& addChoice(std::string name, int& target, std::vector<double> choices);
    void addPerLevel(const char* stem, PerLevel<double>& values, FieldLimits limits,
                     int* FmtDecDigits = nullptr);

    const Study& study_;
    std::vector<StudyField> fields_;
    std::unordered_map<std::string_view, std::size_t> byName_;
};

/// Where a new value comes from: a dialog holds its limits, a file may hold what no dialog offers.
enum class ValueSource { dialog, file };

/// Why a value cannot stand in a field, as a sentence that names the field; empty when it can.
std::string refusal(const StudyFields& fields, const StudyField& field, const FieldValue& value,
                    ValueSource source);

/// Writes a value that refusal() has let pass.
void writeField(const StudyField& field, const FieldValue& value);

/// The present value of a field.
FieldValue readField(const StudyField& field);

}  // namespace lorvane
