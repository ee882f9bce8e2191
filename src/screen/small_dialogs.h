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
#include "screen/dialog_window.h"
#include "screen/limits_dialog.h"
#include "screen/part.h"
#include "screen/value_dialog.h"

namespace lorvane {

class SmallDialogs final : public Part {
public:
    explicit SmallDialogs(Design& design);

    /// Enters texts, captions and events of all dialogs.
    void registerNames(ControlRegistry& registry) const override;
    void registerEvents(EventRegistry& events) override;
    void follow(const Changed&) override { limits_.follow(); }

    /// All dialogs of fields and buttons, for views, and the one that is a table.
    std::vector<const Dialog*> all() const;
    const LimitsDialog& limits() const noexcept { return limits_; }
    bool isOpen(const Dialog& dialog) const { return lorvane::isOpen(design_, dialog); }

    void openAlpha();
    void openDelta();
    void openMean();
    void openGroupNames();
    void openLevelNames();
    void openLimits() { limits_.open(); }
    void openMaxCost();
    void openExample();

    /// What a double click on a field's cell does: a choice of two goes over to the other one, and a number
    /// opens for typing. With a first text, typed on the cell, only a number opens, with that text. A value
    /// that follows from the limits of the risks opens these.
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
    Dialog makeMaxCost();
    Dialog makeExample();
    Dialog makeHelp();
    Dialog makeError();

    void applyAlpha();
    void applyDelta();
    void applyMean();
    void applyGroupNames();
    void applyLevelNames();
    void applyMaxCost();
    void applyExample();
    void closeAsking(Dialog& dialog, bool changed, const std::string& question,
                     void (SmallDialogs::*apply)());

    template <typename Self>
    static auto listOf(Self& self);
    std::vector<Dialog*> dialogs();
    void show(Dialog& dialog) { open(design_, dialog); }
    void close(Dialog& dialog) { lorvane::close(design_, dialog); }
    void refuse(Dialog& dialog, const std::string& text, const std::vector<std::string>& controls);
    bool holds(std::string_view field, double value) const;

    Design& design_;
    Session& session_;
    Dialog alpha_, delta_, deltaHelp_, mean_, groupNames_, levelNames_, maxCost_, example_;
    Dialog error_;  ///< a plain panel; no computation writes to it
    ValueDialog value_;
    LimitsDialog limits_;
    RawTable spreadICC_{"frmSpreadICC", "Table of the ICC"};
    RawTable spreadTauSq_{"frmSpreadTauSq", "Table of the effects"};
};

}  // namespace lorvane
