// The small dialogs of the study screen: their words, what they refuse and what they write. A refused value
// never changes a field, and the dialog stays.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/control_registry.h"
#include "platform/controls.h"
#include "platform/event_registry.h"
#include "screen/design.h"
#include "screen/dialog.h"
#include "screen/part.h"

namespace lorvane {

class SmallDialogs final : public Part {
public:
    explicit SmallDialogs(Design& design);

    /// Enters texts, captions and events of all dialogs.
    void registerNames(ControlRegistry& registry) const override;
    void registerEvents(EventRegistry& events) override;

    /// All dialogs, for views.
    std::vector<const Dialog*> all() const;
    bool isOpen(const Dialog& dialog) const;

    void openAlpha();
    void openDelta();
    void openMean();
    void openGroupNames();
    void openLevelNames();
    void openLimits();
    void openMaxCost();
    void openExample();

    /// What a double click on a field's cell does: a choice of two goes over to the other one, and a number
    /// opens for typing. With a first text, typed on the cell, only a number opens, with that text.
    void activate(FieldRef field, const std::string& firstText = {});

    /// The dispersion of the outcome entered as ICC, or as limits of the risks.
    void enterIcc();
    void enterLimits();

    /// The raw tables of the dispersion, as the report reads them.
    struct RawTable {
        const char* name;  ///< "frmSpreadICC"
        const char* title;
        bool open = false;
    };
    const RawTable& spreadICC() const { return spreadICC_; }
    const RawTable& spreadTauSq() const { return spreadTauSq_; }
    void openSpreadICC() { spreadICC_.open = true; }
    void openSpreadTauSq() { spreadTauSq_.open = true; }

private:
    Dialog makeAlpha();
    Dialog makeDelta();
    Dialog makeMean();
    Dialog makeGroupNames();
    Dialog makeLevelNames();
    Dialog makeLimits();
    Dialog makeMaxCost();
    Dialog makeExample();
    Dialog makeValue();
    Dialog makeError();

    void applyAlpha();
    void applyDelta();
    void applyMean();
    void applyGroupNames();
    void applyLevelNames();
    void applyLimits();
    void enterRisksAs(RangeModes mode);
    void applyMaxCost();
    void applyExample();
    void openValue(FieldRef field, const std::string& firstText);
    void applyValue();
    bool groupNamesChanged() const;
    bool levelNamesChanged() const;
    void closeAsking(Dialog& dialog, bool changed, const std::string& question,
                     void (SmallDialogs::*apply)());

    template <typename Self>
    static auto listOf(Self& self);
    std::vector<Dialog*> dialogs();
    void show(Dialog& dialog);
    void close(Dialog& dialog);
    void refuse(const Dialog& dialog, const std::string& text);
    bool holds(std::string_view field, double value) const;

    Design& design_;
    Session& session_;
    Dialog alpha_, delta_, mean_, groupNames_, levelNames_, limits_, maxCost_, example_, value_;
    Dialog error_;  ///< a plain panel; no computation writes to it
    FieldRef valueField_;
    RawTable spreadICC_{"frmSpreadICC", "Table of the ICC"};
    RawTable spreadTauSq_{"frmSpreadTauSq", "Table of the effects"};
};

}  // namespace lorvane
