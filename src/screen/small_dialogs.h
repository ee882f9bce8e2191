// The small dialogs of the study screen: what is typed into them, what they refuse and what they write.
// A refused value never changes a field, and the dialog stays.
#pragma once

#include <functional>
#include <string>

#include "platform/control_registry.h"
#include "platform/controls.h"
#include "platform/event_registry.h"
#include "screen/design.h"

namespace lorvane {

class SmallDialogs {
public:
    explicit SmallDialogs(Design& design) : design_(design) {}
    SmallDialogs(const SmallDialogs&) = delete;
    SmallDialogs& operator=(const SmallDialogs&) = delete;

    /// Enters texts, captions and events of all dialogs.
    void registerNames(ControlRegistry& registry) const;
    void registerEvents(EventRegistry& events);

    /// The texts of the dialog of the mean and span.
    struct MeanAndSpan {
        Panel title, prompt, heading, explanation;
        TextBox txtMean, txtSpan;
    };
    /// A dialog for one field, opened from its cell.
    struct Value {
        Panel title, sense, limits;
        TextBox txtValue;
        std::string field;
    };
    /// A dialog without a number in the registry of windows.
    struct Limits {
        PerLevel<TextBox> txtLL, txtUL;
    };

    const TextBox& alpha() const { return alpha_; }
    const TextBox& delta() const { return delta_; }
    const MeanAndSpan& meanAndSpan() const { return mean_; }
    const Value& value() const { return value_; }
    const Limits& limits() const { return limits_; }
    const TextBox& groupName(int group) const { return groupNames_(group); }
    const TextBox& levelName(int level) const { return levelNames_(level); }
    const Panel& levelLabel(int level) const { return levelLabels_(level); }
    const TextBox& maxCost() const { return maxCost_; }

    bool valueIsOpen() const { return valueOpen_; }
    bool limitsAreOpen() const { return limitsOpen_; }
    bool maxCostIsOpen() const { return maxCostOpen_; }
    bool exampleIsOpen() const { return exampleOpen_; }
    /// The raw tables of the dispersion, as the report reads them.
    bool spreadICCIsOpen() const { return spreadICCOpen_; }
    bool spreadTauSqIsOpen() const { return spreadTauSqOpen_; }

    /// Opens the value dialog for a field by name, such as "txtNT(2)"; nothing for a field that has none.
    void openValue(const std::string& field);

private:
    void openAlpha();
    bool applyAlpha();
    void openDelta();
    void applyDelta();
    void openMean();
    void applyMean();
    void openGroupNames();
    bool applyGroupNames();
    void openLevelNames();
    bool applyLevelNames();
    void openLimits();
    void applyLimits();
    void enterRisksAs(int rangeMode);
    void openMaxCost();
    void applyMaxCost();
    void applyValue();
    bool groupNamesChanged() const;
    bool levelNamesChanged() const;
    void closeNames(WindowId window, bool changed, bool (SmallDialogs::*apply)());

    void whileOpen(EventRegistry& events, const char* button, WindowId window, std::function<void()> press);
    void registerNumbers(EventRegistry& events);
    void registerMean(EventRegistry& events);
    void registerNameDialogs(EventRegistry& events);
    void registerLimits(EventRegistry& events);
    void registerMaxCost(EventRegistry& events);
    void registerValue(EventRegistry& events);
    void registerExample(EventRegistry& events);
    void registerRawTables(EventRegistry& events);

    void open(WindowId window) { design_.SynchForms(window, WindowAction::open); }
    void close(WindowId window) { design_.SynchForms(window, WindowAction::unload); }
    bool refuse(const std::string& title, const std::string& text);
    bool holds(const char* field, double value) const;
    bool isOpen(WindowId window) const { return design_.windows().state(window) == WindowStates::open; }

    Design& design_;
    TextBox alpha_;
    TextBox delta_;
    MeanAndSpan mean_;
    IndexedArray<TextBox, 1, 2> groupNames_;
    PerLevel<TextBox> levelNames_;
    PerLevel<Panel> levelLabels_;
    Limits limits_;
    TextBox maxCost_;
    Value value_;
    bool valueOpen_ = false;
    bool limitsOpen_ = false;
    bool maxCostOpen_ = false;
    bool exampleOpen_ = false;
    bool spreadICCOpen_ = false;
    bool spreadTauSqOpen_ = false;
};

}  // namespace lorvane
