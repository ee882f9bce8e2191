// The upper tail of the normal distribution by table, for the inner loops of the quadratures.
// Knows nothing of the t distributions; who needs every last bit calls normal_distribution.h.
#pragma once

#include <array>

namespace lorvane::numerics {

/// Taylor polynomials of the upper normal tail about the multiples of 1/16 from kLowest to kHighest.
struct NormalTailTable {
    static constexpr double kLowest = -8.5;
    static constexpr double kHighest = 13.0;
    static constexpr int kPerUnit = 16;
    static constexpr int kTerms = 8;
    static constexpr int kRows = static_cast<int>((kHighest - kLowest) * kPerUnit) + 1;

    alignas(64) std::array<std::array<double, kTerms>, kRows> rows;
};

/// Made by the compiler, see normal_tail_table.cpp.
extern const NormalTailTable normalTailTable;

/// 1 - Phi(x) for any x. Absolute error below 2e-16; relative error below 4e-11 up to x = 6 and below
/// 3e-8 up to x = 13, beyond which the tail, less than 1e-38, counts as 0. Method: degree 7 Taylor
/// polynomial about the nearest tabled point.
inline double tabledUpperTail(double x) {
    if (!(x > NormalTailTable::kLowest && x < NormalTailTable::kHighest)) {
        return x <= NormalTailTable::kLowest ? 1.0 : 0.0;
    }
    const int nearest = static_cast<int>((x - NormalTailTable::kLowest) * NormalTailTable::kPerUnit + 0.5);
    const auto& c = normalTailTable.rows[static_cast<unsigned>(nearest)];
    const double h = x - (NormalTailTable::kLowest + nearest * (1.0 / NormalTailTable::kPerUnit));
    const double h2 = h * h;
    const double low = (c[0] + c[1] * h) + (c[2] + c[3] * h) * h2;
    const double high = (c[4] + c[5] * h) + (c[6] + c[7] * h) * h2;
    return low + high * (h2 * h2);
}

}  // namespace lorvane::numerics
