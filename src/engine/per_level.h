// Arrays that are indexed as the levels of a study are counted: 1 is the individuals, 4 the top of four.
#pragma once

#include <array>
#include <cassert>
#include <cstddef>

namespace lorvane {

/// Values at the indices First to Last, read and written as values(index). They start as 0, false or empty.
/// The caller sees to it that an index lies within them; only a debug build checks.
template <typename T, int First, int Last>
class IndexedArray {
public:
    /// The ends, for loops over all values.
    static constexpr int first = First;
    static constexpr int last = Last;

    /// The value at an index, to read or to write.
    T& operator()(int index) { return values_[position(index)]; }
    const T& operator()(int index) const { return values_[position(index)]; }

    /// Gives every index the same value, the summary at index 0 of a LevelFlags too.
    void fill(const T& value) { values_.fill(value); }

private:
    static std::size_t position(int index) {
        assert(index >= First && index <= Last);
        return static_cast<std::size_t>(index - First);
    }

    std::array<T, Last - First + 1> values_{};
};

inline constexpr int lowestLevel = 1;
inline constexpr int highestLevel = 4;

/// One value for each level: txtNT(2) is that of level 2.
template <typename T>
using PerLevel = IndexedArray<T, lowestLevel, highestLevel>;

/// One flag for each level, and the summary of all levels at index 0. False tells of a problem.
using LevelFlags = IndexedArray<bool, 0, highestLevel>;

}  // namespace lorvane
