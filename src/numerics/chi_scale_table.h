// The scale S = chi / sqrt(df) by table in the near-normal variable of chi_scale.h, for the quadrature
// rules. Knows nothing of df, of the rules and of what they average.
#pragma once

#include <array>

namespace lorvane::numerics {

/// S and the slope d(ln S) / dw, both as functions of w = z / sqrt(df).
struct ChiScale {
    double value;
    double slope;
};

inline ChiScale operator+(ChiScale a, ChiScale b) { return {a.value + b.value, a.slope + b.slope}; }
inline ChiScale operator*(ChiScale a, double factor) { return {a.value * factor, a.slope * factor}; }

/// Taylor polynomials of S and of its slope about the multiples of 1/16 from kLowest to kHighest.
struct ChiScaleTable {
    static constexpr int kHighest = 9;
    static constexpr int kLowest = -kHighest;
    static constexpr int kPerUnit = 16;
    static constexpr int kTerms = 8;
    static constexpr int kRows = (kHighest - kLowest) * kPerUnit + 1;

    alignas(64) std::array<std::array<ChiScale, kTerms>, kRows> rows;
};

/// Made by the compiler, see chi_scale_table.cpp.
extern const ChiScaleTable chiScaleTable;

/// S and its slope at w, |w| <= 9. Error of S below 1e-15, absolute for S < 1 and relative above; relative
/// error of the slope below 2e-15. Method: degree 7 Taylor polynomials about the nearest tabled point.
inline ChiScale tabledChiScale(double w) {
    const int nearest = static_cast<int>((w - ChiScaleTable::kLowest) * ChiScaleTable::kPerUnit + 0.5);
    const auto& c = chiScaleTable.rows[static_cast<unsigned>(nearest)];
    const double h = w - (ChiScaleTable::kLowest + nearest * (1.0 / ChiScaleTable::kPerUnit));
    const double h2 = h * h;
    const ChiScale low = (c[0] + c[1] * h) + (c[2] + c[3] * h) * h2;
    const ChiScale high = (c[4] + c[5] * h) + (c[6] + c[7] * h) * h2;
    return low + high * (h2 * h2);
}

}  // namespace lorvane::numerics
