// The round numbers that stand at an axis. Knows numbers only.
#pragma once

#include <QString>
#include <vector>

namespace lorvane {

struct ChartTicks {
    std::vector<double> values;
    int decimals = 0;

    /// The text at a tick.
    QString text(double value) const;
};

/// Equal steps from one end to the other.
ChartTicks evenTicks(double low, double high, int steps);

/// At most so many round numbers between two ends, with the ends among them where that stays round. `whole`
/// asks for whole numbers.
ChartTicks roundTicks(double low, double high, int most, bool whole);

}  // namespace lorvane
