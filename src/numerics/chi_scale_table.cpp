// Makes the table of the chi scale at compile time, in extended precision.
//
// With x = 2 ln S and D = e^x - 1 the equation of chi_scale.h reads D = x + w^2, and its derivative in w
// is x' D = 2 w. Both are linear in the next coefficient of a power series of x.
#include "numerics/chi_scale_table.h"

#include <cstddef>
#include <numbers>

namespace lorvane::numerics {
namespace {

/// The nearest singularities of x, w = sqrt(2 pi) exp(+-i pi / 4) and their mirror images, are 28 spacings
/// away from the real axis, so what these terms leave out is below 28^-12.
constexpr std::size_t kSeriesTerms = 12;
using Series = std::array<long double, kSeriesTerms>;

/// The power series of x about w = 0, where D vanishes.
constexpr Series logSeriesAtZero() {
    Series x{};
    x[1] = std::numbers::sqrt2_v<long double>;
    for (std::size_t n = 2; n < x.size(); ++n) {
        long double sum = static_cast<long double>(n - 1) * x[n - 1];
        for (std::size_t i = 2; i < n; ++i) {
            sum += static_cast<long double>(i) * x[i] * x[n + 1 - i];
        }
        x[n] = -sum / (x[1] * static_cast<long double>(n + 1));
    }
    return x;
}

/// The power series of x about another w, from its value there.
constexpr Series logSeriesAt(long double w, long double value) {
    Series x{value};
    Series d{value + w * w};
    for (std::size_t n = 0; n + 1 < x.size(); ++n) {
        long double sum = n == 0 ? 2 * w : (n == 1 ? 2.0L : 0.0L);
        for (std::size_t k = 0; k < n; ++k) {
            sum -= static_cast<long double>(k + 1) * x[k + 1] * d[n - k];
        }
        x[n + 1] = sum / (static_cast<long double>(n + 1) * d[0]);
        d[n + 1] = x[n + 1] + (n == 0 ? 2 * w : (n == 1 ? 1.0L : 0.0L));
    }
    return x;
}

/// The power series of d(ln S) / dw = x' / 2.
constexpr Series slopeSeries(const Series& x) {
    Series slope{};
    for (std::size_t n = 0; n + 1 < x.size(); ++n) {
        slope[n] = static_cast<long double>(n + 1) * x[n + 1] / 2;
    }
    return slope;
}

/// The power series of S from its value and from S' = S d(ln S) / dw.
constexpr Series scaleSeries(long double value, const Series& slope) {
    Series scale{value};
    for (std::size_t n = 0; n + 1 < scale.size(); ++n) {
        long double sum = 0;
        for (std::size_t k = 0; k <= n; ++k) {
            sum += scale[k] * slope[n - k];
        }
        scale[n + 1] = sum / static_cast<long double>(n + 1);
    }
    return scale;
}

constexpr long double valueAt(const Series& series, long double h) {
    long double sum = 0;
    for (std::size_t n = series.size(); n-- > 0;) {
        sum = sum * h + series[n];
    }
    return sum;
}

/// Fills the rows from w = 0 to one end. Outward the solutions of x' D = 2 w draw together, so rounding
/// errors do not grow.
constexpr void fillSide(ChiScaleTable& table, int side) {
    constexpr int middle = -ChiScaleTable::kLowest * ChiScaleTable::kPerUnit;
    constexpr long double spacing = 1.0L / ChiScaleTable::kPerUnit;
    Series x = logSeriesAtZero();
    long double value = 1;
    for (int step = 0; step <= middle; ++step) {
        const Series slope = slopeSeries(x);
        const Series scale = scaleSeries(value, slope);
        auto& row = table.rows[static_cast<std::size_t>(middle + side * step)];
        for (std::size_t n = 0; n < row.size(); ++n) {
            row[n] = {static_cast<double>(scale[n]), static_cast<double>(slope[n])};
        }
        value = valueAt(scale, side * spacing);
        x = logSeriesAt(side * (step + 1) * spacing, valueAt(x, side * spacing));
    }
}

constexpr ChiScaleTable makeTable() {
    ChiScaleTable table{};
    fillSide(table, -1);
    fillSide(table, 1);
    return table;
}

}  // namespace

constinit const ChiScaleTable chiScaleTable = makeTable();

}  // namespace lorvane::numerics
