#include "base/names.h"

#include <gtest/gtest.h>

#include <vector>

#include "base/letter_case.h"
#include "base/utf8.h"

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
    EXPECT_EQ(inQuotes(std::string(61, 'x')), '"' + std::string(30, 'x') + "…" + std::string(29, 'x') + '"');
}

TEST(Names, SteerNoScreen) {
    EXPECT_EQ(printable("Ä 日 𐐀 \"\\\""), "Ä 日 𐐀 \"\\\"");
    EXPECT_EQ(printable("\x1b[31m\a\n\r\t\x7f"), "\\x1b[31m\\x07\\n\\r\\t\\x7f");
    EXPECT_EQ(printable("\u009b\u202ea\u2069\u2028\ufeff"), "\\x9b\\u202ea\\u2069\\u2028\\ufeff");
    EXPECT_EQ(printable("\xC3 \xFF\xD0"), "\\xc3 \\xff\\xd0");
    EXPECT_EQ(printable("a\n\x1b", LineEnds::kept), "a\n\\x1b");
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
