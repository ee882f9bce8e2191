// Which floating windows are open, and how they are called.
#include "screen/window_registry.h"

#include <algorithm>
#include <cassert>

namespace lorvane {

namespace {

using enum WindowId;

constexpr WindowTitle titles[] = {{frmAlpha, "frmAlpha", ""},
                                  {frmDetails, "frmDetails", "Details"},
                                  {frmDisplayICC, "frmDisplayICC", ""},
                                  {frmDisplayTauSq, "frmDisplayTauSq", ""},
                                  {frmGroupNames, "frmGroupNames", ""},
                                  {frmLevelNames, "frmLevelNames", ""},
                                  {frmLVar, "frmLVar", ""},
                                  {frmScenarios, "frmScenarios", "Scenarios"},
                                  {frmScenariosName, "frmScenariosName", ""},
                                  {frmTable, "frmTable", ""},
                                  {frmTips, "frmTips", "Interactive guide"},
                                  {frmXVar, "frmXVar", ""},
                                  {xPlot, "xPlot", "Sensitivity graph"},
                                  {frmProblems, "frmProblems", "Problem"},
                                  {frmProblemES, "frmProblemES", "Problem"},
                                  {frmOptimal, "frmOptimal", "Optimal design wizard"},
                                  {frmMDES, "frmMDES", "Minimum detectable effect size"},
                                  {frmTipsGraph, "frmTipsGraph", "Guide of the graph"},
                                  {frmStart, "frmStart", "Lorvane"},
                                  {frmPrint, "frmPrint", ""},
                                  {frmDelta, "frmDelta", ""},
                                  {frmSetMean, "frmSetMean", ""},
                                  {frmCounts, "frmCounts", "Cell counts"}};

WindowStates stateAfter(WindowStates state, WindowAction action) {
    switch (action) {
    case WindowAction::open:
        return WindowStates::open;
    case WindowAction::bringBack:
        return state == WindowStates::withdrawn ? WindowStates::open : state;
    case WindowAction::unload:
        return state == WindowStates::open ? WindowStates::notLoaded : state;
    case WindowAction::withdraw:
        return state == WindowStates::open ? WindowStates::withdrawn : state;
    case WindowAction::withdrawForGood:
        return state == WindowStates::open ? WindowStates::withdrawnForGood : state;
    }
    return state;
}

}  // namespace

std::span<const WindowTitle> windowTitles() { return titles; }

const char* windowTitle(WindowId window) {
    const auto found = std::find_if(std::begin(titles), std::end(titles),
                                    [&](const WindowTitle& row) { return row.window == window; });
    assert(found != std::end(titles));
    return found->title;
}

std::optional<WindowId> windowNamed(std::string_view name) {
    const auto found = std::find_if(std::begin(titles), std::end(titles),
                                    [&](const WindowTitle& row) { return row.name == name; });
    return found == std::end(titles) ? std::nullopt : std::optional(found->window);
}

WindowRegistry::WindowRegistry() { states_(static_cast<int>(WindowId::Design)) = WindowStates::open; }

void WindowRegistry::SynchForms(WindowId window, WindowAction action) {
    WindowStates& state = states_(static_cast<int>(window));
    state = stateAfter(state, action);
    if (state == WindowStates::notLoaded || state == WindowStates::withdrawnForGood)
        isAskedFor_(static_cast<int>(window)) = false;
}

void WindowRegistry::ask(WindowId window) {
    SynchForms(window, WindowAction::open);
    ++asked_(static_cast<int>(window));
    isAskedFor_(static_cast<int>(window)) = true;
}

}  // namespace lorvane
