// Which designs can still be of use.
#include "search/design_bounds.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "engine/power_test.h"

namespace lorvane {

namespace {

constexpr double tolerance = 1e-9;  // of every bound
constexpr double infinite = std::numeric_limits<double>::infinity();

}  // namespace

DesignBounds::DesignBounds(const Study& study, DistributionLibrary& library, const OptimalOptions& options,
                           double leastOfLevel1)
    : power_(study, library),
      levels_(study, options, leastOfLevel1), tops_{levels_.leastTopOfAll(), largestSizeFound},
      isNormal_(isNormalTest(study)) {}

void DesignBounds::requirePower(double power) {
    power_.require(power);
    levels_.weigh(power_.weights());
}

SizeRange DesignBounds::affordableSizes(const FreeLevel& free, const Chosen& above) const {
    const double room = largestCost() / tops_.first - above.cost;
    const double most = std::floor(room / (free.leastCost * above.units) * (1 + tolerance));
    return {free.least, std::min(most, largestSizeFound)};
}

// With K and V the cost and the sum so far, B and D those of this level at a size of 1 and r what the levels
// below add at least, a size x needs (sqrt((K + B x)(V + D / x)) + r)^2 <= largest cost times largest sum,
// for one unit of the top level. That holds between the roots of a quadratic.
SizeRange DesignBounds::usefulSizes(const FreeLevel& free, const Chosen& above) {
    const SizeRange affordable = affordableSizes(free, above);
    if (power_.saysNothing() || affordable.isEmpty())
        return affordable;
    constexpr SizeRange none{1, 0};
    const double K = above.cost, V = above.sum;
    const double B = free.cost * above.units, D = free.weight / above.units;
    const double leastCost = K + free.leastCost * above.units * free.least;
    const double top = std::clamp(std::floor(largestCost() / leastCost), tops_.first, tops_.last);
    const double root = std::sqrt(power_.largestSum(top) / top * largestCost()) - free.rest;
    if (std::isinf(root))
        return affordable;
    const double p = root * root - K * V - B * D;
    const double discriminant = p * p * (1 + tolerance) - 4 * B * V * K * D;
    if (root <= 0 || p <= 0 || discriminant < 0)
        return none;
    const double sum = p + std::sqrt(discriminant);
    const double first = std::ceil(2 * K * D / sum * (1 - tolerance));
    const double last = B * V > 0 ? std::floor(sum / (2 * B * V) * (1 + tolerance)) : infinite;
    return {std::max(first, affordable.first), std::min(last, affordable.last)};
}

double DesignBounds::lightestSize(const FreeLevel& free, const Chosen& above) const {
    return std::sqrt(above.cost * free.weight / (above.sum * free.cost)) / above.units;
}

double DesignBounds::leastTop(const LevelSizes& sizes) const {
    return std::max(levels_.leastTop(sizes), tops_.first);
}

double DesignBounds::largestTop(const Chosen& design) const {
    return std::min(std::floor(largestCost() / design.cost * (1 + tolerance)), tops_.last);
}

// Costs that round may be equal for several sizes, and without weights no size is known to be worse.
bool DesignBounds::leaps(const FreeLevel& free) const {
    return !roundsCosts() && free.weight > 0 && !power_.saysNothing();
}

double DesignBounds::nextSize(const FreeLevel& free, const Chosen& above, double size, double lowerTop) {
    if (!leaps(free))
        return size + 1;
    if (lowerTop < tops_.first)
        return infinite;
    const double room = power_.largestSum(lowerTop) - above.sum;
    if (room <= 0)
        return infinite;
    return std::max(size + 1, std::ceil(free.weight / above.units / room * (1 - tolerance)));
}

double DesignBounds::largestWithSameTop(const FreeLevel& free, const Chosen& above, double size) const {
    if (!leaps(free))
        return size;
    const double top = largestTop(above.with(free, size));
    return std::max(size, std::floor((limit_ / top - above.cost) / (free.cost * above.units)));
}

}  // namespace lorvane
