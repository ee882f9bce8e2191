// Arrays that are indexed as the levels of a study are counted: 1 is the individuals, 4 the top of four.
#pragma once

#include <array>
#include <cassert>
#include <cstddef>

namespace lorvane {

/// Values at the indices First to Last, read and written as values(index).
template <typename T, int First, int Last>
class IndexedArray {
public:
    static constexpr int first = First;
    static constexpr int last = Last;

    T& operator()(int index) { return values_[position(index)]; }
    const T& operator()(int index) const { return values_[position(index)]; }

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

/// One value a level: txtNT(2) is that of level 2.
template <typename T>
using PerLevel = IndexedArray<T, lowestLevel, highestLevel>;

/// One flag a level, 1 good and 0 a problem, with the summary of all levels at index 0.
using LevelFlags = IndexedArray<int, 0, highestLevel>;

}  // namespace lorvane
