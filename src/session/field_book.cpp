// What can be done with any field, read from its row.
#include "session/field_book.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <unordered_map>

#include "base/names.h"
#include "base/number_text.h"
#include "base/utf8.h"

namespace lorvane {

namespace {

constexpr double largestSpanOfRisks = 1;
constexpr std::size_t longestName = 255;

std::string nameAt(std::string_view stem, FieldIndex kind, int index) {
    if (kind == FieldIndex::none)
        return std::string(stem);
    return kind == FieldIndex::levelDigit ? std::string(stem) + std::to_string(index)
                                          : indexedName(stem, index);
}

using ByName = std::unordered_map<std::string, FieldRef>;

const ByName& fieldsByName() {
    static const ByName names = [] {
        ByName all;
        forEachField([&](FieldRef ref) { all.emplace(ref.name(), ref); });
        return all;
    }();
    return names;
}

const ByName& fieldsByArrows() {
    static const ByName names = [] {
        ByName all;
        forEachField([&](FieldRef ref) {
            if (ref->arrows == ArrowRule::none)
                return;
            const std::string arrows = nameAt(ref->spin, ref->index, ref.index);
            all.emplace(arrows, ref);
            if (ref->panel != FieldPanel::none)
                all.emplace((ref->panel == FieldPanel::icc ? "frmDisplayICC." : "frmDisplayTauSq.") + arrows,
                            ref);
        });
        return all;
    }();
    return names;
}

std::optional<FieldRef> findIn(const ByName& names, std::string_view name) {
    const auto found = names.find(std::string(name));
    return found == names.end() ? std::nullopt : std::optional(found->second);
}

bool isNumeric(FieldKind kind) {
    return kind == FieldKind::number || kind == FieldKind::whole || kind == FieldKind::choice;
}

std::string listWords(std::span<const double> values) {
    std::string words;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i > 0)
            words += i + 1 == values.size() ? " or " : ", ";
        words += shortestText(values[i]);
    }
    return words;
}

std::string numberRefusal(const Study& study, FieldRef ref, double value, ValueSource source) {
    const std::span<const double> choices = ref->choices;
    if (!std::isfinite(value))
        return ref.name() + " must be a finite number.";
    if (!choices.empty() && std::find(choices.begin(), choices.end(), value) == choices.end())
        return ref.name() + " must be " + listWords(choices) + ", not " + sentenceText(value) + ".";
    const FieldLimits limits = limitsOf(study, *ref.field);
    const bool binds = source == ValueSource::dialog || ref->bindsFiles;
    if (binds && !limits.holds(value))
        return ref.name() + " must lie " + limits.words() + ", not at " + sentenceText(value) + ".";
    return "";
}

std::string textRefusal(FieldRef ref, const std::string& text) {
    if (text.size() > longestName)
        return ref.name() + " must be no longer than " + std::to_string(longestName) + " bytes.";
    if (!isCleanText(text))
        return ref.name() + " must be UTF-8 text without NUL.";
    return "";
}

const char* kindWords(FieldKind kind) {
    if (kind == FieldKind::text)
        return " takes a text.";
    return kind == FieldKind::flag ? " takes true or false." : " takes a number.";
}

}  // namespace

std::string FieldRef::name() const { return nameAt(field->stem, field->index, index); }

IndexRange indicesOf(const Field& field) {
    switch (field.index) {
    case FieldIndex::level:
    case FieldIndex::levelDigit:
        return {lowestLevel, highestLevel};
    case FieldIndex::group:
        return {1, 2};
    case FieldIndex::none:
        break;
    }
    return {0, 0};
}

std::optional<FieldRef> findField(std::string_view name) { return findIn(fieldsByName(), name); }

const Field& fieldOf(std::string_view stem) {
    const std::span<const Field> book = fieldBook();
    const auto found =
        std::find_if(book.begin(), book.end(), [&](const Field& field) { return field.stem == stem; });
    assert(found != book.end());
    return *found;
}

std::string nearestField(std::string_view name) {
    std::vector<std::string> names;
    forEachField([&](FieldRef ref) {
        if (ref->isWritable)
            names.push_back(ref.name());
    });
    return nearestName(name, names);
}

std::optional<FieldRef> findArrows(std::string_view control) { return findIn(fieldsByArrows(), control); }

FieldValue readField(const SessionState& state, FieldRef field) {
    return field->member.read(state, field.index);
}

double readNumberField(const SessionState& state, FieldRef field) {
    return std::get<double>(readField(state, field));
}

void writeField(SessionState& state, FieldRef field, const FieldValue& value) {
    field->member.write(state, field.index, value);
}

void enterField(SessionState& state, FieldRef field, double value) {
    writeField(state, field, value);
    if (!field->twin.empty() && field->isLinked(state.study, field.index))
        writeField(state, {&fieldOf(field->twin), field.index}, value);
}

int decimalsOf(const Study& study, const Field& field) {
    return field.decimals == nullptr ? 0 : study.decimals.*field.decimals;
}

int stepOf(const StudySettings& settings, FieldRef field) {
    switch (field->step) {
    case StepSource::one:
        return 1;
    case StepSource::sizeOfLevel:
        return settings.IncN(field.index);
    case StepSource::costOfLevel:
        return settings.IncCost(field.index);
    case StepSource::span:
        return settings.IncMRange;
    case StepSource::mean:
        return settings.IncMean;
    case StepSource::sd:
        return settings.IncSD;
    }
    return 1;
}

FieldLimits limitsOf(const Study& study, const Field& field) {
    FieldLimits limits = field.limits;
    if (study.isBinary() && field.stem == "txtMRange")
        limits.high = largestSpanOfRisks;
    return limits;
}

std::string refusal(const Study& study, FieldRef field, const FieldValue& value, ValueSource source) {
    const FieldKind kind = field->member.kind;
    if (std::holds_alternative<double>(value) && isNumeric(kind))
        return numberRefusal(study, field, std::get<double>(value), source);
    if (std::holds_alternative<std::string>(value) && kind == FieldKind::text)
        return textRefusal(field, std::get<std::string>(value));
    if (std::holds_alternative<bool>(value) && kind == FieldKind::flag)
        return "";
    return field.name() + kindWords(kind);
}

bool sameValues(const SessionState& a, const SessionState& b) {
    if (!a.scenarios.isSame(b.scenarios))
        return false;
    bool same = true;
    forEachField([&](FieldRef ref) {
        if (ref->isDisplay || !same)
            return;
        same = readField(a, ref) == readField(b, ref);
        if (same && ref->decimals != nullptr)
            same = decimalsOf(a.study, *ref.field) == decimalsOf(b.study, *ref.field);
    });
    return same;
}

}  // namespace lorvane
