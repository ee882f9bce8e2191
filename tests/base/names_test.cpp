#include "base/names.h"

#include <gtest/gtest.h>

#include <vector>

#include "base/letter_case.h"

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

TEST(Names, HaveCapitalAndSmallLettersInEveryAlphabet) {
    for (const auto& [capital, small] : {std::pair{"AZ 09_{}", "az 09_{}"},
                                         {"ÄØÞ×", "äøþ×"},
                                         {"ĀŁŹŸȺ", "āłźÿⱥ"},
                                         {"ƁǄǺ", "ɓǆǻ"},
                                         {"ḀẤ", "ḁấ"},
                                         {"ΑΣΆΏ", "ασάώ"},
                                         {"ЖЩЁҐӀ", "жщёґӏ"},
                                         {"ԱՖ", "աֆ"},
                                         {"日本 𐐀", "日本 𐐨"}}) {
        EXPECT_EQ(lowerCased(capital), small);
        EXPECT_EQ(lowerCased(small), small);
        EXPECT_EQ(upperCased(small), upperCased(capital));
    }
    EXPECT_EQ(lowerCased("İẞΩ"), "ißω");
    EXPECT_EQ(upperCased("ς ſ µ ÿ ß"), upperCased("σ S μ Ÿ ẞ")) << "forms of one letter";
    EXPECT_EQ(lowerCased("\xC3 \xFF\xD0"), "\xC3 \xFF\xD0") << "bytes that are no letters";
}

}  // namespace
}  // namespace lorvane
