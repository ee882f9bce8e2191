#include "base/money.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace lorvane {
namespace {

TEST(Money, RoundsHalvesToEven) {
    for (const auto& [value, rounded] : {std::pair{0.5, 0.0},
                                         {1.5, 2.0},
                                         {2.5, 2.0},
                                         {-0.5, 0.0},
                                         {-1.5, -2.0},
                                         {-2.5, -2.0},
                                         {2.4999, 2.0},
                                         {2.5001, 3.0},
                                         {7.0, 7.0}})
        EXPECT_EQ(roundHalfToEven(value), rounded) << value;
}

TEST(Money, RoundsEachTermBeforeAdding) {
    MoneySum sum;
    for (int i = 0; i < 3; ++i)
        sum.add(0.4);
    EXPECT_EQ(sum.total(), 0);
    sum.add(1.5);
    sum.add(2.5);
    EXPECT_EQ(sum.total(), 4);
}

TEST(Money, NoticesAnOverflowOfTermAndSum) {
    constexpr double largest = std::numeric_limits<std::int32_t>::max();
    MoneySum sum;
    EXPECT_THROW(sum.add(largest + 1), MoneyOverflow);
    EXPECT_THROW(sum.add(std::nan("")), MoneyOverflow);
    EXPECT_EQ(sum.total(), 0);
    sum.add(largest);
    EXPECT_EQ(sum.total(), std::numeric_limits<std::int32_t>::max());
    EXPECT_THROW(sum.add(1), MoneyOverflow);
    sum.add(-1);
    EXPECT_EQ(sum.total(), std::numeric_limits<std::int32_t>::max() - 1);
}

}  // namespace
}  // namespace lorvane
