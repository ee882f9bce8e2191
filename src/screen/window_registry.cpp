// Which floating windows are open, and how they are called.
#include "screen/window_registry.h"

#include <algorithm>
#include <cassert>

namespace lorvane {

namespace {

constexpr WindowTitle titles[] = {{WindowId::frmProblems, "frmProblems", "Problem"},
                                  {WindowId::frmProblemES, "frmProblemES", "Problem"},
                                  {WindowId::frmCounts, "frmCounts", "Cell counts"},
                                  {WindowId::frmDetails, "frmDetails", "Details"},
                                  {WindowId::frmScenarios, "frmScenarios", "Scenarios"},
                                  {WindowId::frmStart, "frmStart", "Lorvane"},
                                  {WindowId::xPlot, "xPlot", "Sensitivity graph"},
                                  {WindowId::frmMDES, "frmMDES", "Minimum detectable effect size"},
                                  {WindowId::frmOptimal, "frmOptimal", "Optimal design wizard"}};

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

WindowRegistry::WindowRegistry() { states_(static_cast<int>(WindowId::Design)) = WindowStates::open; }

void WindowRegistry::SynchForms(WindowId window, WindowAction action) {
    WindowStates& state = states_(static_cast<int>(window));
    state = stateAfter(state, action);
}

}  // namespace lorvane
