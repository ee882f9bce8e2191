// What the computation shows, written on the display models of the screen.
#pragma once

#include "engine/compute_display.h"
#include "engine/study.h"
#include "screen/main_screen.h"
#include "screen/session_settings.h"
#include "screen/window_registry.h"

namespace lorvane {

class ComputeScreen final : public ComputeDisplay {
public:
    ComputeScreen(const Study& study, const SessionSettings& settings, MainScreen& screen,
                  ProblemWindow& problems, EffectProblemWindow& effectProblems, WindowRegistry& windows,
                  const bool& silentTick)
        : study_(study), settings_(settings), screen_(screen), problems_(problems),
          effectProblems_(effectProblems), windows_(windows), silentTick_(silentTick) {}

    void openWindow(WindowId window) override;
    void withdrawWindow(WindowId window) override;
    void showEffect() override;
    void showEffectProblem() override;
    void askForData(std::string_view request) override;
    void showPower() override;
    void showCost() override;
    void restoreCovariateColours() override;
    void clearOutlines() override;
    void outlineCovariates(int level) override;
    void outlineLevel(int level) override;
    void tellProblem(std::string_view message, std::string_view title) override;
    void openProblemWindow() override;

private:
    const Study& study_;
    const SessionSettings& settings_;
    MainScreen& screen_;
    ProblemWindow& problems_;
    EffectProblemWindow& effectProblems_;
    WindowRegistry& windows_;
    const bool& silentTick_;
};

}  // namespace lorvane
