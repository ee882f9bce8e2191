// A number by which the content of a file is known again.
#pragma once

#include <cstdint>
#include <string_view>

namespace lorvane {

/// The 64-bit FNV-1a hash of a text. Two versions of a file differ in it but for one chance in 2 to the 64th;
/// it is no guard against someone who means to deceive. Never 0, which stands for a content not known.
constexpr std::uint64_t contentHash(std::string_view text) {
    std::uint64_t hash = 14695981039346656037u;
    for (const char c : text) {
        hash ^= static_cast<unsigned char>(c);
        hash *= 1099511628211u;
    }
    return hash == 0 ? 1 : hash;
}

}  // namespace lorvane
