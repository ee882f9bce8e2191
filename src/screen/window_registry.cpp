// Which floating windows are open.
#include "screen/window_registry.h"

namespace lorvane {

namespace {

int stateAfter(int state, WindowAction action) {
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

WindowRegistry::WindowRegistry() { states_(static_cast<int>(WindowId::Design)) = WindowStates::open; }

void WindowRegistry::SynchForms(WindowId window, WindowAction action) {
    int& state = states_(static_cast<int>(window));
    state = stateAfter(state, action);
}

}  // namespace lorvane
