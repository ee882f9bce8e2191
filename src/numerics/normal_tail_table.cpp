// Makes the table of the upper normal tail at compile time, in extended precision.
#include "numerics/normal_tail_table.h"

#include <cstddef>
#include <numbers>

namespace lorvane::numerics {
namespace {

constexpr int kSeriesTerms = 28;
using Series = std::array<long double, kSeriesTerms>;

/// exp(-y) for y >= 0 as the 1024th power of a short series.
constexpr long double expOfMinus(long double y) {
    const long double part = -y / 1024;
    long double sum = 1;
    for (int n = 20; n >= 1; --n) {
        sum = 1 + sum * part / n;
    }
    for (int doubling = 0; doubling < 10; ++doubling) {
        sum *= sum;
    }
    return sum;
}

constexpr long double normalDensity(long double x) {
    return expOfMinus(x * x / 2) /
           (std::numbers::sqrt2_v<long double> / std::numbers::inv_sqrtpi_v<long double>);
}

/// Laplace's continued fraction for (1 - Phi(x)) / density(x), x well above 0.
constexpr long double millsRatio(long double x) {
    long double fraction = x;
    for (int n = 80; n >= 1; --n) {
        fraction = x + n / fraction;
    }
    return 1 / fraction;
}

/// Taylor series of the density about `center`, from density' = -x density.
constexpr Series densitySeries(long double center, long double density) {
    Series series{};
    series[0] = density;
    series[1] = -center * density;
    for (std::size_t n = 1; n + 1 < series.size(); ++n) {
        series[n + 1] = -(center * series[n] + series[n - 1]) / static_cast<long double>(n + 1);
    }
    return series;
}

/// Taylor series of the upper tail from its value and the series of the density.
constexpr Series tailSeries(long double tail, const Series& density) {
    Series series{};
    series[0] = tail;
    for (std::size_t n = 0; n + 1 < series.size(); ++n) {
        series[n + 1] = -density[n] / static_cast<long double>(n + 1);
    }
    return series;
}

constexpr long double valueAt(const Series& series, long double h) {
    long double sum = 0;
    for (std::size_t n = series.size(); n-- > 0;) {
        sum = sum * h + series[n];
    }
    return sum;
}

/// Starts at the right end, where the continued fraction is exact, and steps down row by row: the
/// tail grows on the way, so rounding errors do not.
constexpr NormalTailTable makeTable() {
    constexpr long double spacing = 1.0L / NormalTailTable::kPerUnit;
    NormalTailTable table{};
    long double center = NormalTailTable::kHighest;
    long double density = normalDensity(center);
    long double tail = density * millsRatio(center);
    for (std::size_t row = table.rows.size(); row-- > 0;) {
        const Series ofDensity = densitySeries(center, density);
        const Series ofTail = tailSeries(tail, ofDensity);
        for (std::size_t n = 0; n < table.rows[row].size(); ++n) {
            table.rows[row][n] = static_cast<double>(ofTail[n]);
        }
        density = valueAt(ofDensity, -spacing);
        tail = valueAt(ofTail, -spacing);
        center -= spacing;
    }
    return table;
}

}  // namespace

constinit const NormalTailTable normalTailTable = makeTable();

}  // namespace lorvane::numerics
