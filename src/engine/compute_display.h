// What the computation asks of a screen. The screen implements it on its display models; a search passes
// the silent one.
#pragma once

#include <string_view>

#include "platform/window_id.h"

namespace lorvane {

class ComputeDisplay {
public:
    virtual ~ComputeDisplay() = default;

    virtual void openWindow(WindowId window) = 0;
    virtual void withdrawWindow(WindowId window) = 0;

    /// The implied event rates lie within the limits: shows the derived metric.
    virtual void showEffect() = 0;
    /// They do not: marks the effect and words the problem.
    virtual void showEffectProblem() = 0;

    /// Replaces the power by a request for other data.
    virtual void askForData(std::string_view request) = 0;
    /// Shows the power in the mode that is set.
    virtual void showPower() = 0;
    /// Shows the cost and its bar.
    virtual void showCost() = 0;

    virtual void restoreCovariateColours() = 0;
    virtual void clearOutlines() = 0;
    /// Outlines the covariates and the R-squared of a level.
    virtual void outlineCovariates(int level) = 0;
    /// Outlines the cells of a level whose degrees of freedom do not suffice.
    virtual void outlineLevel(int level) = 0;

    /// The message that the problem window holds, and its title.
    virtual void tellProblem(std::string_view message, std::string_view title) = 0;
    /// Opens the problem window, unless a search, a graph or a held arrow is at work.
    virtual void openProblemWindow() = 0;
};

/// Shows nothing and moves no window.
class SilentDisplay final : public ComputeDisplay {
public:
    void openWindow(WindowId) override {}
    void withdrawWindow(WindowId) override {}
    void showEffect() override {}
    void showEffectProblem() override {}
    void askForData(std::string_view) override {}
    void showPower() override {}
    void showCost() override {}
    void restoreCovariateColours() override {}
    void clearOutlines() override {}
    void outlineCovariates(int) override {}
    void outlineLevel(int) override {}
    void tellProblem(std::string_view, std::string_view) override {}
    void openProblemWindow() override {}
};

}  // namespace lorvane
