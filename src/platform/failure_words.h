// What is told of a failure, foreseen or not.
#pragma once

#include <string>

namespace lorvane {

/// One sentence on the exception in flight, with what to do next. For the handlers of all exceptions. The
/// program's own problems have their sentences already, and keep them.
std::string failureWords();

/// The title of a message with such a sentence.
inline constexpr const char* failureTitle = "Something went wrong";

}  // namespace lorvane
