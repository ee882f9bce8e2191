// The role of a level as a word of its own.
#pragma once

#include <string>

#include <QString>

namespace lorvane::desktop {

/// "(Blocked)" without its brackets.
inline QString roleWord(const std::string& role) {
    return role.size() > 2 ? QString::fromStdString(role.substr(1, role.size() - 2)) : QString();
}

}  // namespace lorvane::desktop
