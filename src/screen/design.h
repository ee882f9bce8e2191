// The study screen: owns the one study, the settings of the session and the display models of its windows,
// and runs the refresh that makes all of it right after an edit.
#pragma once

#include "engine/compute_display.h"
#include "engine/study.h"
#include "platform/control_registry.h"
#include "platform/controls.h"
#include "platform/distribution_library.h"
#include "platform/system_locale.h"
#include "screen/compute_screen.h"
#include "screen/dispersion_panels.h"
#include "screen/main_screen.h"
#include "screen/session_settings.h"
#include "screen/window_registry.h"
#include "validation/cell_counts.h"

namespace lorvane {

class Design {
public:
    Design(DistributionLibrary& library, const SystemLocale& locale);
    Design(const Design&) = delete;
    Design& operator=(const Design&) = delete;

    /// The whole cycle after an edit, in its one order: ICC and span, dispersion of the effect, the effect
    /// itself, power and cost; with Show also everything on display. Without Show nothing is drawn, no window
    /// moves and nothing is allocated: searches and graphs run that way.
    /// Throws ArithmeticFault when a formula cannot go on; the entered values stay.
    void DoRefresh(bool Show);

    /// The study, settings and display models of a new study, two levels with means. The open file, the
    /// currency and the windows stay, and so do the settings that no study file holds. Needs a refresh to
    /// follow.
    void startAnew();

    /// A new study, refreshed.
    void ResetToStart();

    /// Applies what hangs on the design choices as they stand in the study: roles of the levels and the modes
    /// of power and cost.
    void applyChoices();

    void setNumLevels(int levels);
    void randomize(int level);

    Study& study() noexcept { return study_; }
    const Study& study() const noexcept { return study_; }
    SessionSettings& settings() noexcept { return settings_; }
    const SessionSettings& settings() const noexcept { return settings_; }
    const MainScreen& screen() const noexcept { return screen_; }
    const ProblemWindow& problems() const noexcept { return problems_; }
    const EffectProblemWindow& effectProblems() const noexcept { return effectProblems_; }
    const IccPanel& iccPanel() const noexcept { return iccPanel_; }
    const TauSqPanel& tauSqPanel() const noexcept { return tauSqPanel_; }
    WindowRegistry& windows() noexcept { return windows_; }

    /// Enters every value and display model of the screen under its name.
    void registerNames(ControlRegistry& registry) const;

private:
    void synchronise(bool Show, ComputeDisplay& display);
    void SynchCellCounts();
    void ShowCounts(bool show);

    DistributionLibrary& library_;
    Study study_;
    SessionSettings settings_;
    WindowRegistry windows_;
    MainScreen screen_;
    ProblemWindow problems_;
    EffectProblemWindow effectProblems_;
    IccPanel iccPanel_;
    TauSqPanel tauSqPanel_;
    CellCountsPanel countsPanel_;
    Grid spreadICC_;
    Grid spreadTauSq_;
    ComputeScreen computeScreen_;
    SilentDisplay silent_;
};

}  // namespace lorvane
