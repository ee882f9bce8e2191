#include "base/names.h"

#include <gtest/gtest.h>

#include <vector>

namespace lorvane {
namespace {

TEST(Names, TakesAnIndexApart) {
    EXPECT_EQ(splitName("txtNT(2)").stem, "txtNT");
    EXPECT_EQ(splitName("txtNT(2)").index, 2);
    for (const char* name : {"txtd", "txtNT(", "txtNT()", "txtNT(x)", "(2)", "txtNT(2)x"}) {
        EXPECT_EQ(splitName(name).stem, name);
        EXPECT_FALSE(splitName(name).index.has_value());
    }
}

TEST(Names, FindsTheNearestName) {
    const std::vector<std::string> known = {"txtNT(1)", "txtICC(2)", "txtd"};
    EXPECT_EQ(nearestName("txtNT(9)", known), "txtNT(1)");
    EXPECT_EQ(nearestName("TXTICC(2", known), "txtICC(2)");
    EXPECT_EQ(nearestName("d", known), "txtd");
    EXPECT_EQ(nearestName("d", std::vector<std::string>{}), "");
}

}  // namespace
}  // namespace lorvane
