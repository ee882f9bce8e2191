// A compound file: a small file system in one file, version 3, with sectors of 512 bytes. Knows nothing of
// what its stream means.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lorvane {

/// The longest stream that one file takes here: as much as the header alone can point to.
extern const std::size_t largestCompoundStream;

/// A compound file with one stream in its root, which is filled up with zeros to the size from which a
/// stream has sectors of its own. Name: at most 31 letters. Throws std::length_error for a longer stream.
std::string compoundFile(std::u16string_view name, std::string_view stream);

}  // namespace lorvane
