// What is told of a failure that nobody foresaw.
#pragma once

#include <string>

namespace lorvane {

/// One sentence on the exception in flight, with what to do next. For the handlers of all exceptions; the
/// program's own problems have their sentences already.
std::string failureWords();

}  // namespace lorvane
