// The least sizes that a design can have.
#include "search/least_sizes.h"

#include <algorithm>
#include <cmath>

#include "engine/cell_screening.h"

namespace lorvane {

namespace {

constexpr double tolerance = 0.00001;
constexpr double largestLevel1 = 100000;

// Degrees of freedom that a level has for every unit beyond the first: a block counts once, an arm for each
// of the two.
double degreesOfFreedomPerUnit(const Study& s, int level) {
    double above = 1;
    for (int k = level + 1; k <= s.NumLevels; ++k)
        above *= s.isBlocked(k) ? s.txtNB(k) : s.txtNT(k);
    return (s.isBlocked(level) ? 1 : 2) * above;
}

bool hasGoodCells(Study& s, DistributionLibrary& library, double n) {
    s.txtNT(1) = s.txtNC(1) = n;
    AAAComputeTwoLevelHDEvents(s, library);
    return !s.counts.anyLow;
}

}  // namespace

double Getmin(const Study& s, int level) {
    const double needed = level == s.NumLevels ? 1 : 0;
    const double wanted = s.txtQ(level) + needed - tolerance;
    return std::max(1.0, 1 + std::ceil(wanted / degreesOfFreedomPerUnit(s, level)));
}

double leastForCovariates(const Study& s, int level) {
    if (s.txtQ(level) <= 0)
        return 1;
    return s.isBlocked(level) ? 3 : 2;
}

// A larger cluster never has lower cells, so the least size is found by halving.
std::optional<double> GetMinN(const Study& study, DistributionLibrary& library) {
    Study s = study;
    if (!hasGoodCells(s, library, largestLevel1))
        return std::nullopt;
    double low = 0;
    double good = largestLevel1;
    while (good - low > 1) {
        const double middle = static_cast<double>(static_cast<int>((low + good) / 2));
        (hasGoodCells(s, library, middle) ? good : low) = middle;
    }
    return good;
}

}  // namespace lorvane
