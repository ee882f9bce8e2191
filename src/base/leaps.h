// A walk over whole steps that need not take each of them.
#pragma once

namespace lorvane {

/// The number of steps, at most most, for which a condition holds one after the other. The condition must not
/// hold again once it has failed: the walk leaps ahead by doubled steps and then by halved ones.
template <typename Holds>
long long stepsWhile(long long most, Holds holds) {
    const auto goesOn = [&](long long step) { return step <= most && holds(step); };
    long long walked = 0;
    long long leap = 1;
    for (; goesOn(walked + leap); leap *= 2)
        walked += leap;
    for (leap /= 2; leap >= 1; leap /= 2) {
        if (goesOn(walked + leap))
            walked += leap;
    }
    return walked;
}

}  // namespace lorvane
